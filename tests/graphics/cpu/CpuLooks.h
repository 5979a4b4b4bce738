// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/cpu/CpuRenderer.h"
#include "tests/support/Images.h"
#include "tests/support/ReferenceRenderer.h"

#include <cmath>
#include <map>
#include <random>

namespace grisal::test
{

/// A look of the reference with a name for messages.
struct NamedLook {
    const char *name;
    reference::Look look;
};

/// Parameters with which every filter changes every tone.
inline graphics::FilterParameters strongParameters()
{
    graphics::FilterParameters p;
    p.get<graphics::MixerFilter>().weights = {64 / 255.0F, 89 / 255.0F, 102 / 255.0F};
    for (int i = 0; i < 256; ++i) {
        const float x = static_cast<float>(i) / 256;
        p.get<graphics::CurveFilter>().curve[i] = x * x * (3 - 2 * x);
        p.get<graphics::GrainFilter>().weights[i] = 0.6F - std::abs(x - 0.5F);
    }
    p.get<graphics::HalfToneFilter>().weight = 0.9F;
    p.get<graphics::VignetteFilter>().shape = {{35, 60, 0}, 55, 80};
    return p;
}

inline std::vector<NamedLook> everyFilterAloneAndAllTogether()
{
    const graphics::FilterParameters p = strongParameters();
    return {{"mixer", {p, true, false, false, false, false}},     {"curve", {p, true, true, false, false, false}},
            {"split tone", {p, true, false, true, false, false}}, {"grain", {p, true, false, false, true, false}},
            {"vignette", {p, true, false, false, false, true}},   {"all", {p, true, true, true, true, true}}};
}

inline graphics::EnabledFilters enabledIn(const reference::Look &look)
{
    graphics::EnabledFilters enabled;
    enabled.get<graphics::MixerFilter>() = look.mixer;
    enabled.get<graphics::CurveFilter>() = look.curve;
    enabled.get<graphics::HalfToneFilter>() = look.splitTone;
    enabled.get<graphics::GrainFilter>() = look.grain;
    enabled.get<graphics::VignetteFilter>() = look.vignette;
    return enabled;
}

/// The image as the CPU renderer renders it.
template <typename T>
Pixels<T> cpuRender(Pixels<T> picture, const reference::Look &look)
{
    const graphics::CpuRenderer renderer(look.parameters, enabledIn(look));
    changeInPlace(picture, [&](graphics::Image &image) {
        renderer.render(image);
        return true;
    });
    return picture;
}

/// The image as the reference renders it, with the noise of the look.
template <typename T>
Pixels<T> referenceRender(const Pixels<T> &picture, const reference::Look &look)
{
    static std::map<float, BytePixels> noises;
    const float radius = look.parameters.get<graphics::GrainFilter>().radius;
    const auto [noise, isNew] = noises.try_emplace(radius);
    if (isNew) {
        noise->second = reference::blurredNoise(reference::noiseMap(), radius);
    }
    return reference::fileOf(picture, look, noise->second);
}

/// An image of random samples; every tenth pixel has a channel at the end of the range or next to it.
template <typename T>
Pixels<T> randomPicture(int width, int height, int components = 3)
{
    std::mt19937 random(1);
    Pixels<T> picture(width, height, components);
    for (T &sample : picture.values) {
        const std::uint32_t number = random();
        sample = static_cast<T>(number);
        if (number >> 24U < 8) {
            sample = number >> 24U < 4 ? static_cast<T>(number % 4) : static_cast<T>(-1 - static_cast<int>(number % 4));
        }
    }
    return picture;
}

} // namespace grisal::test
