// SPDX-License-Identifier: MIT
#include "ui/frames/ChromaPlane.h"

#include "math/OpponentColour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace
{

constexpr int levels = 256;
constexpr float largestLevel = 255.0F;

std::uint8_t byteOf(float level)
{
    return static_cast<std::uint8_t>(std::clamp(level, 0.0F, largestLevel));
}

std::uint8_t greenByte(float luma, int red, int blue)
{
    using grisal::math::greenThird;
    using grisal::math::third;
    const double green = (luma - third * red - third * blue) / greenThird + 0.5;
    return static_cast<std::uint8_t>(std::clamp(green, 0.0, double{largestLevel}));
}

/// The colours of one row, indexed by their blue value.
std::array<QRgb, levels> rowColours(float luma, int red)
{
    std::array<QRgb, levels> colours{};
    for (int blue = 0; blue < levels; ++blue) {
        colours[static_cast<std::size_t>(blue)] = qRgb(red, greenByte(luma, red, blue), blue);
    }
    return colours;
}

} // namespace

std::optional<ChromaPlane> chromaPlaneOf(int mode)
{
    constexpr std::array<ChromaPlane, 3> planes{
        {{-170, 170, -170, 170}, {-341, 341, -341, 341}, {-907, 907, -718, 718}}};
    if (mode < 0 || mode >= static_cast<int>(planes.size())) {
        return std::nullopt;
    }
    return planes[static_cast<std::size_t>(mode)];
}

QPointF markerAt(const ChromaPlane &plane, const Chroma &chroma)
{
    const float fromLeft = (chroma.u - static_cast<float>(plane.uMin)) / static_cast<float>(plane.width());
    const float fromBottom = (chroma.v - static_cast<float>(plane.vMin)) / static_cast<float>(plane.height());
    return {fromLeft, 1.0 - fromBottom};
}

Chroma chromaAt(const ChromaPlane &plane, QPointF marker)
{
    return {static_cast<float>(plane.width() * marker.x() + plane.uMin),
            static_cast<float>(-(plane.height() * marker.y() + plane.vMin))};
}

double markerAfterStep(double place, double step)
{
    return std::clamp(place + step, std::min(place, 0.0), std::max(place, 1.0));
}

// The level adds the same amount to all channels, so it does not affect the hue. Less than half a step in a channel
// counts as grey.
Hue hueOf(const Chroma &chroma)
{
    constexpr std::array<Hue, 6> circle{Hue::Red, Hue::Yellow, Hue::Green, Hue::Cyan, Hue::Blue, Hue::Magenta};
    constexpr float visible = 0.5F;
    const float red = chroma.v;
    const float blue = chroma.u;
    const float green = -red - blue;
    if (std::max(std::abs(red), std::abs(blue)) < visible) {
        return Hue::Grey;
    }
    const float highest = std::max({red, green, blue});
    const float range = highest - std::min({red, green, blue});
    float place = 4 + (red - green) / range;
    if (highest == red) {
        place = 6 + (green - blue) / range;
    } else if (highest == green) {
        place = 2 + (blue - red) / range;
    }
    return circle[static_cast<std::size_t>(std::lround(place)) % circle.size()];
}

bool nearlyEqualWeights(float a, float b)
{
    return std::abs(a - b) <= 0.00001F * std::min(std::abs(a), std::abs(b));
}

float lumaAfterWheel(float luma, int delta)
{
    constexpr int deltaOfAStep = 5;
    constexpr double step = 0.05;
    const int steps = delta / deltaOfAStep;
    return grisal::math::clampedWeight(static_cast<float>(luma + steps * step));
}

// The image is recomputed at every step of the mouse wheel and of the level slider. It has at most 256 different rows,
// each with at most 256 different colours.
QImage wheelImageOf(const ChromaPlane &plane, float luma)
{
    QImage image(plane.width(), plane.height(), QImage::Format_ARGB32);
    std::vector<std::uint8_t> blues(static_cast<std::size_t>(plane.width()));
    for (int u = plane.uMin; u < plane.uMax; ++u) {
        blues[static_cast<std::size_t>(u - plane.uMin)] = byteOf(luma + static_cast<float>(u));
    }
    const QRgb *rowBelow = nullptr;
    int redBelow = -1;
    for (int v = plane.vMin; v < plane.vMax; ++v) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(plane.vMax - 1 - v));
        const int red = byteOf(luma + static_cast<float>(v));
        if (red == redBelow) {
            std::memcpy(row, rowBelow, blues.size() * sizeof(QRgb));
        } else {
            const std::array<QRgb, levels> colours = rowColours(luma, red);
            std::transform(blues.begin(), blues.end(), row, [&colours](std::uint8_t blue) { return colours[blue]; });
        }
        rowBelow = row;
        redBelow = red;
    }
    return image;
}
