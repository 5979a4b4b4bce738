// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::ui
{

/// The two scales at which a picture just fits a widget, in widget pixels per picture pixel.
struct FitRatios {
    float width = 1;  ///< fits the widths
    float height = 1; ///< fits the heights

    float larger() const { return width > height ? width : height; }
    float smaller() const { return width > height ? height : width; }
};

/// Ratios for sizes in pixels. A picture side of 0 gives 1.
FitRatios fitRatios(int widgetWidth, int widgetHeight, int pictureWidth, int pictureHeight);

/// A fitted picture leaves this share of the widget to itself, so that its border can be told from the widget's.
constexpr float fitMargin = 0.99F;

/// The scale after a zoom step (1 is one notch, negative zooms out), `fit` being the smaller ratio.
///
/// A step changes the scale by step / 25. Zooming in is free up to a scale of 20; any other step is taken only while
/// the scale is above half the fit. Both are looked at before the step, so that zooming in goes on above 20: the only
/// bound is the one for zooming out.
float zoomedScale(float scale, float step, float fit);

/// Notches of a wheel turn of `delta` eighths of a degree; parts of a notch are dropped.
int wheelSteps(int delta);

} // namespace grisal::ui
