// SPDX-License-Identifier: MIT
#include "graphics/cpu/ToneTables.h"

#include "graphics/cpu/StoredValues.h"
#include "graphics/image/HalfFloats.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace grisal::graphics::cpu
{

namespace
{

/// The sample at a coordinate 0..1; other coordinates repeat, so that 1 is the first sample.
float sampleAt(const QVector<float> &samples, float coordinate)
{
    if (samples.isEmpty()) {
        return 0;
    }
    const float inside = coordinate - std::floor(coordinate);
    const float position = inside > 0 ? inside * static_cast<float>(samples.size()) : 0;
    return samples[std::min(static_cast<qsizetype>(position), samples.size() - 1)];
}

/// The soft-light overlay of a tint onto a base, both 0..1.
float tinted(float base, float tint)
{
    const float i = base * white;
    const float m = tint * white;
    return (i * nearly255th) * (i + (m * 2.0F * nearly255th) * (white - i)) * nearly255th;
}

float splitTone(float grey, float weight, float highlightTint, float shadowTint)
{
    const float highlights = grey * weight;
    const float rest = 1.0F - highlights;
    const float shadows = rest * rest;
    const float original = 1.0F - highlights - shadows;
    return tinted(grey, highlightTint) * highlights + tinted(grey, shadowTint) * shadows + grey * original;
}

template <typename Sample>
ColorRGB<float> splitToned(float grey, const HalfToneFilterParameters &p)
{
    using Values = StoredValues<Sample>;
    return {Values::stored(splitTone(grey, p.weight, p.highlights.r, p.shadows.r)),
            Values::stored(splitTone(grey, p.weight, p.highlights.g, p.shadows.g)),
            Values::stored(splitTone(grey, p.weight, p.highlights.b, p.shadows.b))};
}

template <typename Sample>
Tone toneOf(float grey, const FilterParameters &parameters, const EnabledFilters &enabled)
{
    if (enabled.get<CurveFilter>()) {
        const float inside = std::min(0.999F, std::max(0.0F, grey));
        grey = StoredValues<Sample>::stored(sampleAt(parameters.get<CurveFilter>().curve, inside));
    }
    ColorRGB<float> colour{grey, grey, grey};
    if (enabled.get<HalfToneFilter>()) {
        colour = splitToned<Sample>(grey, parameters.get<HalfToneFilter>());
    }
    return {colour.r, colour.g, colour.b, sampleAt(parameters.get<GrainFilter>().weights, colour.r)};
}

template <typename Sample>
std::vector<float> uploadedValues()
{
    std::vector<Sample> samples(std::size_t{std::numeric_limits<Sample>::max()} + 1);
    std::iota(samples.begin(), samples.end(), Sample{0});
    if constexpr (sizeof(Sample) == 1) {
        std::vector<float> values(samples.begin(), samples.end());
        for (float &value : values) {
            value /= white;
        }
        return values;
    } else {
        std::vector<qfloat16> halfFloats(samples.size());
        convertToHalfFloats(samples.data(), samples.size(), halfFloats.data());
        return {halfFloats.begin(), halfFloats.end()};
    }
}

} // namespace

template <typename Sample>
ToneTables<Sample>::ToneTables(const FilterParameters &parameters, const EnabledFilters &enabled)
    : uploaded(uploadedValues<Sample>())
{
    using Values = StoredValues<Sample>;
    tones.reserve(Values::count);
    for (std::size_t i = 0; i < Values::count; ++i) {
        tones.push_back(toneOf<Sample>(Values::valueOf(i), parameters, enabled));
    }
}

template struct ToneTables<std::uint8_t>;
template struct ToneTables<std::uint16_t>;

} // namespace grisal::graphics::cpu
