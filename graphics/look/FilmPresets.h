// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/ColorRGB.h"

#include <QtGlobal>

#include <array>

namespace grisal::graphics
{

/// A preset: the channel weights that imitate how a black-and-white film renders colours.
struct FilmPreset {
    const char *name;
    int r; ///< 0..255; the sum of the three is about 255
    int g;
    int b;

    /// The weights as multipliers, which the mixer takes.
    ColorRGB<float> weights() const
    {
        constexpr float full = 255;
        return {static_cast<float>(r) / full, static_cast<float>(g) / full, static_cast<float>(b) / full};
    }
};

/// All presets in the order of the preset box. "Berlin 200X" adds up to 256 and "Rochester Tmax 100" to 254, and two of
/// the Redbridge films have the same weights: users know the presets by these weights. Film names are not translated.
constexpr std::array<FilmPreset, 17> filmPresets{{
    {QT_TRANSLATE_NOOP("Mixer", "Average"), 85, 85, 85},
    {QT_TRANSLATE_NOOP("Mixer", "Luma"), 77, 150, 28},
    {"Berlin 200X", 46, 105, 105},
    {"Berlinpan 25", 64, 99, 92},
    {"Berlinpan 100", 54, 102, 99},
    {"Berlinpan 400", 51, 105, 99},
    {"Redbridge Delta 100", 54, 107, 94},
    {"Redbridge Delta 400", 56, 107, 92},
    {"Redbridge Delta 400 Pro", 79, 92, 84},
    {"Redbridge FP4", 71, 105, 79},
    {"Redbridge HP5", 59, 94, 102},
    {"Redbridge Pan F", 84, 92, 79},
    {"Redbridge SFX", 92, 79, 84},
    {"Redbridge XP2 Super", 54, 107, 94},
    {"Rochester Tmax 100", 61, 94, 99},
    {"Rochester Tmax 400", 69, 92, 94},
    {"Rochester Tri-X", 64, 89, 102},
}};

} // namespace grisal::graphics
