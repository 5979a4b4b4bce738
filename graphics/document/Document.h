// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/document/DocumentFilterQueue.h"
#include "graphics/gl/GL.h"

namespace grisal::graphics
{

class DocumentView;

/// A rendering job: a source texture, the filters that process it and the view that displays the result. Owns none of
/// them.
class Document
{
public:
    /// `source` is the name of the texture to be processed; 0 if the renderer has its own source pixels.
    Document(GLuint source, DocumentFilterQueue *queue) : m_source(source), m_queue(queue) {}

    GLuint source() const { return m_source; }
    DocumentFilterQueue *queue() const { return m_queue; }

    /// Appends a filter to the queue.
    void add(IFilter *filter) { m_queue->add(filter); }

    DocumentView *view() const { return m_view; }
    void setView(DocumentView *view) { m_view = view; }

    /// If set, the source is displayed without filters, so that the user can compare.
    bool bypass() const { return m_bypass; }
    void setBypass(bool bypass) { m_bypass = bypass; }

private:
    GLuint m_source;
    DocumentFilterQueue *m_queue;
    DocumentView *m_view = nullptr;
    bool m_bypass = false;
};

} // namespace grisal::graphics
