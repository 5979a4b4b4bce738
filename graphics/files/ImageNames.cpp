// SPDX-License-Identifier: MIT
#include "graphics/files/ImageNames.h"

#include <array>
#include <cstddef>

namespace grisal::graphics
{

namespace
{

// The first name of each table is the undefined one, the others follow by their numbers.
constexpr std::array colorSpaceNames{"UndefinedColorspace", "RGBColorspace", "GRAYColorspace"};

constexpr std::array intentNames{"UndefinedIntent", "SaturationIntent", "PerceptualIntent", "AbsoluteIntent",
                                 "RelativeIntent"};

constexpr std::array typeNames{
    "UndefinedType",    "BilevelType",   "GrayscaleType",      "GrayscaleMatteType",  "PaletteType",
    "PaletteMatteType", "TrueColorType", "TrueColorMatteType", "ColorSeparationType", "ColorSeparationMatteType",
    "OptimizeType"};

template <std::size_t Count>
const char *nameIn(const std::array<const char *, Count> &names, int value)
{
    const bool listed = value > 0 && static_cast<std::size_t>(value) < Count;
    return names.at(listed ? static_cast<std::size_t>(value) : 0);
}

} // namespace

const char *colorSpaceName(int colorSpace)
{
    return nameIn(colorSpaceNames, colorSpace);
}

const char *renderingIntentName(int intent)
{
    return nameIn(intentNames, intent);
}

const char *imageTypeName(int type)
{
    return nameIn(typeNames, type);
}

} // namespace grisal::graphics
