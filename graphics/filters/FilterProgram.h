// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/shader/ShaderProgram.h"

#include <memory>

namespace grisal::graphics
{

/// The shader program of a filter: the shared vertex shader and a fragment shader. It is compiled at its first use,
/// because most images need only a few filters and compiling all of them would delay the window.
///
/// The context must be current when the program is used and destroyed.
class FilterProgram
{
public:
    /// `label` is the name of the program, `stem` the file name of the fragment shader without extension. Neither is
    /// copied.
    FilterProgram(const char *label, const char *stem) : m_label(label), m_stem(stem) {}

    /// Returns the program, which the first call compiles.
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
