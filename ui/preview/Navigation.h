// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <optional>

class QKeyEvent;

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

/// The offset of a view after a drag of the mouse by `drag`, in device pixels. The drag moves the view over the image,
/// so that the image moves in the opposite direction. Offsets increase upwards, mouse positions downwards.
QPointF draggedOffset(QPointF offset, QPointF drag);

/// A drag with a pressed mouse button.
class Drag
{
public:
    void start(QPointF position) { m_last = position; }
    void end() { m_last.reset(); }
    bool isActive() const { return m_last.has_value(); }

    /// Returns the displacement from the last position; empty if no button is pressed.
    std::optional<QPointF> moveTo(QPointF position);

private:
    std::optional<QPointF> m_last;
};

/// What a key does in the preview.
struct PreviewKey {
    enum Action {
        None,    ///< the preview does not handle the key
        Pan,     ///< moves the view by one step in `direction`
        ZoomIn,  ///< one notch
        ZoomOut, ///< one notch
        Compare, ///< shows the image without filters until the key is released
    };
    Action action = None;
    QPoint direction; ///< one step right, left, down or up; only for Pan
};

/// Returns what a pressed key does in the preview.
PreviewKey previewKeyOf(const QKeyEvent &event);

} // namespace grisal::ui
