// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::ui
{

/// The two scales at which an image fits a widget, in widget pixels per image pixel.
struct FitRatios {
    float width = 1;  ///< the widths are equal
    float height = 1; ///< the heights are equal

    float larger() const { return width > height ? width : height; }
    float smaller() const { return width > height ? height : width; }
};

/// Ratios for sizes in pixels. An image side of 0 gives 1.
FitRatios fitRatios(int widgetWidth, int widgetHeight, int pictureWidth, int pictureHeight);

/// A fitted image takes this share of the widget, so that the borders of image and widget can be distinguished.
constexpr float fitMargin = 0.99F;

/// The scale after a zoom step (1 is one notch, negative values zoom out); `fit` is the smaller ratio.
///
/// A step changes the scale by step / 25. Up to a scale of 20, zooming in is always possible; any other step requires
/// that the scale is above half the fit. Both limits are checked before the step, and the second one also allows
/// zooming in above 20, so that only zooming out is limited.
float zoomedScale(float scale, float step, float fit);

/// Notches of a wheel turn by `delta` eighths of a degree; incomplete notches are dropped.
int wheelSteps(int delta);

} // namespace grisal::ui
