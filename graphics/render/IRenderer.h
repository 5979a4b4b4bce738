// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

class Document;

/// Runs the filters of a document. The context must be current.
class IRenderer
{
public:
    IRenderer() = default;
    IRenderer(const IRenderer &) = delete;
    IRenderer &operator=(const IRenderer &) = delete;

    virtual bool render(Document &document) = 0;
    virtual ~IRenderer() = default;
};

} // namespace grisal::graphics
