// SPDX-License-Identifier: MIT
#include "ui/frames/VignetteShape.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double hundred = 100;

/// The grey of the image: light enough to be darkened, dark enough for the overlay to have a visible effect.
constexpr int grey = 160;

/// The result of the filter for this grey at the given darkening.
uchar darkenedGrey(float darkening)
{
    constexpr float nearly255th = 0.0039F;
    constexpr float white = 255;
    constexpr auto level = static_cast<float>(grey);
    const float overlay = (1 - darkening) * level + darkening * (level * level * nearly255th);
    const float shade = overlay * nearly255th * white;
    // A radius of 0 gives NaN, which becomes black, too.
    return shade > 0 ? static_cast<uchar>(shade + 0.5F) : uchar{0};
}

} // namespace

bool nearlyEqualFractions(float a, float b)
{
    return std::abs(a - b) <= 0.00001F * std::max(std::abs(a), std::abs(b));
}

bool replacesFraction(float current, float wanted)
{
    return wanted >= 0 && wanted <= 1 && !nearlyEqualFractions(current, wanted);
}

float fractionAfterWheel(float fraction, int delta)
{
    constexpr double step = 0.0001;
    return static_cast<float>(fraction + delta * step);
}

int wholePercent(double percent, int lowest, int highest)
{
    if (!(percent > lowest)) {
        return lowest;
    }
    return percent < highest ? static_cast<int>(percent) : highest;
}

double fractionAfterStep(double fraction, int shown, int step)
{
    constexpr int whole = 100;
    if (step == 0 && (fraction >= 1 || wholePercent(fraction * hundred, 0, whole) == shown)) {
        return fraction;
    }
    const int wanted = std::clamp(shown + step, 0, whole);
    const double moved = wanted / hundred;
    return moved * hundred < wanted ? std::nextafter(moved, 1.0) : moved;
}

QSizeF vignetteReach(float radius, QSize proportions)
{
    const double reach = radius * 0.01 * (proportions.width() + proportions.height()) / 2;
    return {reach / proportions.width(), reach / proportions.height()};
}

QImage vignettePicture(const grisal::graphics::VignetteParameters &parameters, QSize pixels, QSize proportions)
{
    QImage picture(pixels, QImage::Format_Grayscale8);
    if (!(parameters.strength > 0)) {
        picture.fill(QColor(grey, grey, grey));
        return picture;
    }
    const auto width = static_cast<float>(proportions.width());
    const auto height = static_cast<float>(proportions.height());
    const float stepX = width / static_cast<float>(pixels.width());
    const float stepY = height / static_cast<float>(pixels.height());
    for (int y = 0; y < picture.height(); ++y) {
        uchar *row = picture.scanLine(y);
        const float py = (static_cast<float>(y) + 0.5F) * stepY;
        for (int x = 0; x < picture.width(); ++x) {
            const float px = (static_cast<float>(x) + 0.5F) * stepX;
            row[x] = darkenedGrey(grisal::graphics::vignetteValue(parameters, width, height, px, py));
        }
    }
    return picture;
}
