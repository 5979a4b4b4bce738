// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>

namespace grisal::test
{

/// Measures the processor time of all threads of this process since its construction, for tests of work that must not
/// take minutes. Unlike elapsed time, it hardly depends on what else the machine is doing; waiting does not count.
class CpuTimer
{
public:
    double seconds() const { return static_cast<double>(std::clock() - m_start) / CLOCKS_PER_SEC; }

private:
    std::clock_t m_start = std::clock();
};

} // namespace grisal::test
