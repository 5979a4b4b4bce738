// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IFilter.h"

#include <ostream>
#include <string>
#include <vector>

namespace grisal::test
{

/// One call of a filter's apply().
struct RecordedPass {
    std::string filter;
    GLuint source = 0;      ///< the texture to read
    GLuint framebuffer = 0; ///< the framebuffer to draw into

    bool operator==(const RecordedPass &) const = default;
};

inline std::ostream &operator<<(std::ostream &out, const RecordedPass &pass)
{
    return out << pass.filter << " from " << pass.source << " into " << pass.framebuffer;
}

/// A filter that draws nothing and needs no GL context: it records its calls in a list that several filters may share.
class RecordingFilter : public graphics::IFilter
{
public:
    RecordingFilter(std::string name, bool isEnabled, std::vector<RecordedPass> &passes)
        : IFilter(std::move(name)), m_passes(passes)
    {
        enabled = isEnabled;
    }

    void apply(GLuint sourceTexture, const graphics::FramebufferObject &target) override
    {
        m_passes.push_back({getName(), sourceTexture, target.framebuffer});
    }

private:
    std::vector<RecordedPass> &m_passes;
};

} // namespace grisal::test
