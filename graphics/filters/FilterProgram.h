// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/shader/ShaderProgram.h"

#include <memory>

namespace grisal::graphics
{

/// The program of a filter, made of the shared vertex shader and one of the filters' fragment shaders. It is compiled
/// at its first use: most images need few of the filters, and the window should not wait for all of them.
///
/// The context must be current when it is used and at the end of its life.
class FilterProgram
{
public:
    /// `label` identifies the program to people, `stem` is the name of the fragment shader's file.
    FilterProgram(const char *label, const char *stem) : m_label(label), m_stem(stem) {}

    /// The program, compiled at the first call.
    const ShaderProgram &get() const
    {
        if (!m_program) {
            m_program = std::make_unique<ShaderProgram>(m_label, vertexSource(), fragmentSource(m_stem));
        }
        return *m_program;
    }

private:
    const char *m_label;
    const char *m_stem;
    mutable std::unique_ptr<ShaderProgram> m_program;
};

} // namespace grisal::graphics
