// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/VignetteParameters.h"

#include <QImage>
#include <QSize>
#include <QSizeF>

/// Whether two fractions differ by no more than 0.00001 of the larger one's size.
bool nearlyEqualFractions(float a, float b);

/// Whether `wanted` takes the place of `current`: it lies within 0..1 and is not nearly the same.
bool replacesFraction(float current, float wanted);

/// A fraction after a turn of the mouse wheel by `delta` eighths of a degree, 0.0001 for each of them. Not clamped.
float fractionAfterWheel(float fraction, int delta);

/// A percentage cut to a whole number within lowest..highest; the lowest for what is no number.
int wholePercent(double percent, int lowest, int highest);

/// The fraction that lies `step` whole percents from a fraction that is shown as `shown` percents, within 0..1. Cut as
/// above, it shows as `shown + step`. A step of 0 leaves the fraction as it is, beyond 0..1 too, if it shows so.
double fractionAfterStep(double fraction, int shown, int step);

/// How far the radius of a vignette reaches in a picture of 3:2, as fractions of the picture's width and height.
/// The radius is in percent.
QSizeF vignetteReach(float radius);

/// A picture of 3:2 in plain light grey under the vignette, in shades of grey: `pixels` wide and high, which stretches
/// it where these are no 3:2. Plain for a strength of 0, otherwise black for a radius of 0.
QImage vignettePicture(const grisal::graphics::VignetteParameters &parameters, QSize pixels);
