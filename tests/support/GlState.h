// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <gtest/gtest.h>

namespace grisal::test
{

inline GLint glInteger(GLenum name)
{
    GLint value = -1;
    glGetIntegerv(name, &value);
    return value;
}

/// The index of the active texture unit, from 0.
inline GLint activeUnit()
{
    return glInteger(GL_ACTIVE_TEXTURE) - GL_TEXTURE0;
}

/// The result of glGetIntegerv() for a texture unit; restores the active unit.
inline GLint glIntegerOfUnit(std::uint32_t unit, GLenum name)
{
    const GLint before = glInteger(GL_ACTIVE_TEXTURE);
    glActiveTexture(GL_TEXTURE0 + unit);
    const GLint value = glInteger(name);
    glActiveTexture(static_cast<GLenum>(before));
    return value;
}

inline GLint bound2D(std::uint32_t unit)
{
    return glIntegerOfUnit(unit, GL_TEXTURE_BINDING_2D);
}

inline GLint bound1D(std::uint32_t unit)
{
    return glIntegerOfUnit(unit, GL_TEXTURE_BINDING_1D);
}

/// Expects the state that every pass leaves: no program, framebuffer 0, no 2D texture on the unit of the source.
inline void expectStateAfterPass()
{
    EXPECT_EQ(glInteger(GL_CURRENT_PROGRAM), 0);
    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
    EXPECT_EQ(bound2D(graphics::unit::source), 0);
}

} // namespace grisal::test
