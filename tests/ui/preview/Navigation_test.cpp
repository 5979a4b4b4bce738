// SPDX-License-Identifier: MIT
#include "ui/preview/Navigation.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace
{

using namespace grisal::ui;

TEST(Navigation, RatiosAreWidgetPixelsPerImagePixel)
{
    const FitRatios ratios = fitRatios(600, 400, 300, 100);
    EXPECT_FLOAT_EQ(ratios.width, 2);
    EXPECT_FLOAT_EQ(ratios.height, 4);
    EXPECT_FLOAT_EQ(ratios.larger(), 4);
    EXPECT_FLOAT_EQ(ratios.smaller(), 2);
}

TEST(Navigation, ImageWithoutSizeHasRatiosOfOne)
{
    const FitRatios ratios = fitRatios(600, 400, 0, 0);
    EXPECT_FLOAT_EQ(ratios.width, 1);
    EXPECT_FLOAT_EQ(ratios.height, 1);
}

TEST(Navigation, StepIsOneTwentyFifth)
{
    EXPECT_FLOAT_EQ(zoomedScale(1, 1, 1), 1.04F);
    EXPECT_FLOAT_EQ(zoomedScale(1, -1, 1), 0.96F);
    EXPECT_FLOAT_EQ(zoomedScale(1, 3, 1), 1.12F);
}

// 20 is not a maximum: above it, zooming in depends on the fit, because single pixels are inspected on large screens.
TEST(Navigation, ZoomingInContinuesAboveTwenty)
{
    EXPECT_FLOAT_EQ(zoomedScale(19.99F, 1, 1), 20.03F);
    EXPECT_FLOAT_EQ(zoomedScale(20.03F, 1, 1), 20.07F);
}

TEST(Navigation, ZoomingInAboveTwentyStopsIfTheFitIsLarger)
{
    EXPECT_FLOAT_EQ(zoomedScale(20.5F, 1, 50), 20.5F);
}

TEST(Navigation, ZoomingOutStopsAtHalfTheFit)
{
    EXPECT_FLOAT_EQ(zoomedScale(0.5F, -1, 1), 0.5F);
    EXPECT_FLOAT_EQ(zoomedScale(0.4F, -1, 1), 0.4F);
    EXPECT_FLOAT_EQ(zoomedScale(0.51F, -1, 1), 0.47F);
}

TEST(Navigation, ZoomingInIsAllowedBelowHalfTheFit)
{
    EXPECT_FLOAT_EQ(zoomedScale(0.1F, 1, 1), 0.14F);
}

TEST(Navigation, PartsOfAWheelNotchAreIgnored)
{
    EXPECT_EQ(wheelSteps(120), 1);
    EXPECT_EQ(wheelSteps(-120), -1);
    EXPECT_EQ(wheelSteps(119), 0);
    EXPECT_EQ(wheelSteps(-119), 0);
    EXPECT_EQ(wheelSteps(360), 3);
}

// Offsets increase upwards.
TEST(Navigation, DragMovesTheImageAgainstTheMouse)
{
    EXPECT_EQ(draggedOffset({100, 80}, {7, -3}), QPointF(93, 77));
}

TEST(Navigation, DragReturnsTheDisplacementFromTheLastPosition)
{
    Drag drag;
    drag.start({10, 20});
    EXPECT_EQ(drag.moveTo({13, 18}), QPointF(3, -2));
    EXPECT_EQ(drag.moveTo({13, 19}), QPointF(0, 1));
}

TEST(Navigation, DragIsActiveWhileTheButtonIsPressed)
{
    Drag drag;
    EXPECT_FALSE(drag.isActive());
    EXPECT_FALSE(drag.moveTo({1, 1}).has_value());
    drag.start({0, 0});
    EXPECT_TRUE(drag.isActive());
    drag.end();
    EXPECT_FALSE(drag.isActive());
    EXPECT_FALSE(drag.moveTo({2, 2}).has_value());
}

PreviewKey keyOf(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return previewKeyOf(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(Navigation, ArrowKeysPanInTheirDirection)
{
    EXPECT_EQ(keyOf(Qt::Key_Left).action, PreviewKey::Pan);
    EXPECT_EQ(keyOf(Qt::Key_Left).direction, QPoint(-1, 0));
    EXPECT_EQ(keyOf(Qt::Key_Right).direction, QPoint(1, 0));
    EXPECT_EQ(keyOf(Qt::Key_Up).direction, QPoint(0, -1));
    EXPECT_EQ(keyOf(Qt::Key_Down).direction, QPoint(0, 1));
}

TEST(Navigation, PlusMinusAndSpaceZoomAndCompare)
{
    EXPECT_EQ(keyOf(Qt::Key_Plus, Qt::ShiftModifier).action, PreviewKey::ZoomIn);
    EXPECT_EQ(keyOf(Qt::Key_Minus).action, PreviewKey::ZoomOut);
    EXPECT_EQ(keyOf(Qt::Key_Space).action, PreviewKey::Compare);
}

TEST(Navigation, OtherKeysAndCommandsHaveNoAction)
{
    EXPECT_EQ(keyOf(Qt::Key_A).action, PreviewKey::None);
    EXPECT_EQ(keyOf(Qt::Key_Plus, Qt::ControlModifier).action, PreviewKey::None);
    EXPECT_EQ(keyOf(Qt::Key_Left, Qt::AltModifier).action, PreviewKey::None);
}

} // namespace
