// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// Three channel values in the order r, g, b. Their scale is the owner's business: weights and colours of the filters
/// are 0..1, the mixer panel counts 0..255.
template <typename T>
struct ColorRGB {
    T r{};
    T g{};
    T b{};

    bool operator==(const ColorRGB &) const = default;
};

} // namespace grisal::graphics
