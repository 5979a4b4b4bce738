// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace grisal::graphics
{

class IFilter;

/// The filters to run, in order. Owns none of them. A filter that is added twice runs twice; an empty queue is valid
/// and leaves the image unchanged.
class DocumentFilterQueue
{
public:
    DocumentFilterQueue() = default;
    DocumentFilterQueue(const DocumentFilterQueue &) = delete;
    DocumentFilterQueue &operator=(const DocumentFilterQueue &) = delete;
    virtual ~DocumentFilterQueue() = default;

    /// Appends a filter, which must outlive the queue.
    void add(IFilter *filter) { m_filters.push_back(filter); }

    /// Removes all filters.
    void clear() { m_filters.clear(); }

    /// Returns a copy of the filters in the order in which they were added.
    std::vector<IFilter *> filters() const { return m_filters; }

private:
    std::vector<IFilter *> m_filters;
};

/// Returns the number of enabled filters.
int countEnabled(const std::vector<IFilter *> &filters);

/// Returns whether any filter from index `first` on is enabled.
bool anyEnabledFrom(const std::vector<IFilter *> &filters, std::size_t first);

} // namespace grisal::graphics
