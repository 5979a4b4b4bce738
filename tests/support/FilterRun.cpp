// SPDX-License-Identifier: MIT
#include "tests/support/FilterRun.h"

#include "graphics/gl/Textures.h"
#include "tests/support/GlState.h"

namespace grisal::test
{

using graphics::createTexture;
using graphics::RenderTarget;
using graphics::Texture;

namespace
{

/// Runs one pass and checks the state that it leaves. Reading the target afterwards would change this state.
void runPassOf(graphics::IFilter &filter, GLuint texture, const RenderTarget &target)
{
    filter.apply(texture, target.record());
    expectStateAfterPass();
}

} // namespace

FloatPixels runFilter(graphics::IFilter &filter, const FloatPixels &source)
{
    const Texture texture(
        createTexture(source.width, source.height, GL_RGB32F, GL_RGB, GL_FLOAT, source.values.data()));
    const RenderTarget target(source.width, source.height, GL_RGBA, GL_RGBA32F, GL_FLOAT);
    filter.width = source.width;
    filter.height = source.height;
    runPassOf(filter, texture.name(), target);

    FloatPixels result(source.width, source.height, 4);
    graphics::readPixels(target.record(), source.width, source.height, GL_RGBA, GL_FLOAT, result.values.data());
    return result;
}

BytePixels runFilter(graphics::IFilter &filter, const BytePixels &source)
{
    const Texture texture(
        createTexture(source.width, source.height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, source.values.data()));
    const RenderTarget target(source.width, source.height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    filter.width = source.width;
    filter.height = source.height;
    runPassOf(filter, texture.name(), target);
    return readBytes(target.record(), source.width, source.height);
}

BytePixels readBytes(const graphics::FramebufferObject &target, int width, int height)
{
    BytePixels result(width, height);
    graphics::readPixels(target, width, height, GL_RGB, GL_UNSIGNED_BYTE, result.values.data());
    return result;
}

BytePixels readTexture(GLuint texture, int width, int height)
{
    BytePixels result(width, height);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RGB, GL_UNSIGNED_BYTE, result.values.data());
    glBindTexture(GL_TEXTURE_2D, 0);
    return result;
}

} // namespace grisal::test
