// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/VignetteParameters.h"

#include <QImage>
#include <QSize>
#include <QSizeF>

/// Whether two fractions differ by at most 0.00001 of the larger magnitude.
bool nearlyEqualFractions(float a, float b);

/// Whether `wanted` replaces `current`: it is within 0..1 and not nearly equal to it.
bool replacesFraction(float current, float wanted);

/// A fraction after the mouse wheel is turned by `delta` eighths of a degree, 0.0001 for each of them. Not clamped.
float fractionAfterWheel(float fraction, int delta);

/// A percentage truncated to an integer and clamped to lowest..highest; `lowest` for NaN.
int wholePercent(double percent, int lowest, int highest);

/// The fraction that is `step` whole percents away from a fraction displayed as `shown` percent, clamped to 0..1.
/// Truncated like wholePercent(), it is displayed as `shown + step`. A step of 0 returns the fraction unchanged, also
/// outside of 0..1, if it is displayed as `shown`.
double fractionAfterStep(double fraction, int shown, int step);

/// The proportions of an image whose size is unknown: 3:2.
constexpr QSize usualProportions(3, 2);

/// The extent of a vignette's radius in an image of these proportions, as fractions of the image's width and height.
/// The radius is in percent.
QSizeF vignetteReach(float radius, QSize proportions = usualProportions);

/// An image of these proportions in plain light grey with the vignette applied. It has the size `pixels` and is
/// stretched if that has other proportions. Unchanged grey for a strength of 0, otherwise black for a radius of 0.
QImage vignettePicture(const grisal::graphics::VignetteParameters &parameters, QSize pixels,
                       QSize proportions = usualProportions);
