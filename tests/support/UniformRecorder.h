// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <ostream>
#include <string>
#include <vector>

namespace grisal::test
{

/// A uniform that was sent to a program.
struct SentUniform {
    std::string name;
    std::vector<float> values; ///< one or three; the texture unit for a sampler

    bool operator==(const SentUniform &) const = default;
};

std::ostream &operator<<(std::ostream &out, const SentUniform &uniform);

/// Records during its lifetime the uniforms that are sent and passes them on to the OpenGL driver. Uniforms that a
/// program does not have are recorded, too: every location is found. Only one instance at a time; the context must be
/// current.
class UniformRecorder
{
public:
    UniformRecorder();
    UniformRecorder(const UniformRecorder &) = delete;
    UniformRecorder &operator=(const UniformRecorder &) = delete;
    ~UniformRecorder();

    /// The uniforms in the order of sending.
    std::vector<SentUniform> sent() const;

    /// The programs that received them, in order; consecutive uniforms of the same program count once.
    std::vector<GLuint> programs() const;
};

} // namespace grisal::test
