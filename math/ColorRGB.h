// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::math
{

/// Three channel values in the order r, g, b. Their range depends on the use: 0..1 for weights and colours of the
/// filters, 0..255 and beyond in the panels.
template <typename T>
struct ColorRGB {
    T r{};
    T g{};
    T b{};

    bool operator==(const ColorRGB &) const = default;
};

} // namespace grisal::math
