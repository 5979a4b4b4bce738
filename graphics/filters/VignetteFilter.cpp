// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteFilter.h"

#include "graphics/filters/NoiseMap.h"
#include "graphics/filters/VignetteMask.h"

namespace grisal::graphics
{

const FilterDeclaration<VignetteFilter::Parameters> &VignetteFilter::declaration()
{
    static const FilterDeclaration<Parameters> declared{
        .name = "VignetteFilter",
        .dependsOnPosition = true,
        .parameters = {
            {"x", "%", 0, 99, std::nullopt, [](Parameters &p) { return std::span(&p.shape.center.x, 1); }},
            {"y", "%", 0, 99, std::nullopt, [](Parameters &p) { return std::span(&p.shape.center.y, 1); }},
            {"radius", "%", 0, 99, std::nullopt, [](Parameters &p) { return std::span(&p.shape.radius, 1); }},
            {"strength", "%", 0, 99, 0.0F, [](Parameters &p) { return std::span(&p.shape.strength, 1); }}}};
    return declared;
}

VignetteFilter::VignetteFilter() : IFilter(declaration().name), m_program("BWVignette", "VignetteFilter")
{
    makePositionMask = [this](std::uint32_t imageWidth, std::uint32_t imageHeight) {
        return std::make_unique<VignetteMask>(parameters, imageWidth, imageHeight, largestTextureSide());
    };
}

void VignetteFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    if (m_noiseTexture.name() == 0) {
        m_noiseTexture = Texture(loadNoiseMap());
    }
    setVignetteUniforms(program(), parameters, width, height, maxWidth, maxHeight);
    bindTexture2D(program(), "NoiseMap", m_noiseTexture.name(), unit::extra);
    runPass(program(), width, height, sourceTexture, target);
}

} // namespace grisal::graphics
