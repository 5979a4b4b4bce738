// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <ostream>
#include <string>
#include <vector>

namespace grisal::test
{

/// A uniform as it was sent to a program.
struct SentUniform {
    std::string name;
    std::vector<float> values; ///< one or three; of a sampler the texture unit

    bool operator==(const SentUniform &) const = default;
};

std::ostream &operator<<(std::ostream &out, const SentUniform &uniform);

/// Records the uniforms that are sent while it lives and passes them on to the driver. Uniforms that a program lacks
/// are recorded as well: every location that is asked for is found. One at a time; the context must be current.
class UniformRecorder
{
public:
    UniformRecorder();
    UniformRecorder(const UniformRecorder &) = delete;
    UniformRecorder &operator=(const UniformRecorder &) = delete;
    ~UniformRecorder();

    /// The uniforms in the order in which they were sent.
    std::vector<SentUniform> sent() const;

    /// The programs they were sent to, in order, each once for all uniforms in a row.
    std::vector<GLuint> programs() const;
};

} // namespace grisal::test
