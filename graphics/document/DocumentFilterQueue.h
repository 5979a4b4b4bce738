// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace grisal::graphics
{

class IFilter;

/// The filters to run, in order. Owns none of them; the same filter added twice runs twice; an empty queue is legal
/// and leaves a picture as it is.
class DocumentFilterQueue
{
public:
    DocumentFilterQueue() = default;
    DocumentFilterQueue(const DocumentFilterQueue &) = delete;
    DocumentFilterQueue &operator=(const DocumentFilterQueue &) = delete;
    virtual ~DocumentFilterQueue() = default;

    /// Appends a filter, which has to outlive the queue.
    void add(IFilter *filter) { m_filters.push_back(filter); }

    /// Takes all filters out.
    void clear() { m_filters.clear(); }

    /// A copy of the filters in the order they were added.
    std::vector<IFilter *> filters() const { return m_filters; }

private:
    std::vector<IFilter *> m_filters;
};

/// How many of the filters are enabled.
int countEnabled(const std::vector<IFilter *> &filters);

/// Whether any filter from position `first` on is enabled.
bool anyEnabledFrom(const std::vector<IFilter *> &filters, std::size_t first);

} // namespace grisal::graphics
