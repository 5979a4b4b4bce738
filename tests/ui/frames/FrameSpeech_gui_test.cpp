// SPDX-License-Identifier: MIT
// The values that the frames report to screen readers.
#include "tests/support/AccessibilityEventRecorder.h"
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/GrainPreview.h"
#include "ui/frames/VFrame.h"
#include "ui/frames/YUVFrame.h"

#include <QTest>

namespace
{

using namespace grisal::test;

class FrameSpeech : public GuiTest
{
protected:
    void SetUp() override { GRISAL_SKIP_WITHOUT_SCREEN_READER(); }

    static void show(QWidget &frame)
    {
        frame.resize(200, 100);
        frame.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    }

    static std::string value(QWidget &frame) { return accessibleText(frame, QAccessible::Value).toStdString(); }

    /// The value that a frame has reported; several values are separated by line feeds.
    static std::string reported(AccessibilityEventRecorder &recorder, const QWidget &frame)
    {
        return recorder.valuesOf(frame).join(QLatin1Char('\n')).toStdString();
    }
};

TEST_F(FrameSpeech, WheelReportsHueLevelAndWeights)
{
    YUVFrame wheel;
    EXPECT_EQ(roleOf(wheel), QAccessible::ColorChooser);
    wheel.slotSetRGB({77, 150, 28});
    EXPECT_EQ(value(wheel), "Green, level 85: red 77, green 150, blue 28");
    wheel.slotSetRGB({85, 85, 85});
    EXPECT_EQ(value(wheel), "Grey, level 85: red 85, green 85, blue 85");
    wheel.slotSetRGB({255, 0, 0});
    EXPECT_EQ(value(wheel), "Red, level 85: red 255, green 0, blue 0");
    wheel.slotSetRGB({0, 0, 120});
    EXPECT_EQ(value(wheel), "Blue, level 40: red 0, green 0, blue 120");
    wheel.slotSetRGB({90, 90, 0});
    EXPECT_EQ(value(wheel), "Yellow, level 60: red 90, green 90, blue 0");
    wheel.slotSetRGB({0, 90, 90});
    EXPECT_EQ(value(wheel), "Cyan, level 60: red 0, green 90, blue 90");
    wheel.slotSetRGB({90, 0, 90});
    EXPECT_EQ(value(wheel), "Magenta, level 60: red 90, green 0, blue 90");
}

TEST_F(FrameSpeech, WheelReportsEveryChange)
{
    YUVFrame wheel;
    wheel.slotSetRGB({85, 85, 85});
    show(wheel);
    AccessibilityEventRecorder recorder;
    wheel.slotSetRGB({100, 80, 75});
    EXPECT_EQ(reported(recorder, wheel), "Red, level 85: red 100, green 80, blue 75");
    wheel.slotSetLuma(100);
    EXPECT_EQ(reported(recorder, wheel), "Red, level 100: red 115, green 95, blue 90");
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, QPoint(100, 50));
    EXPECT_EQ(reported(recorder, wheel), "Grey, level 100: red 100, green 100, blue 100");
    QTest::keyClick(&wheel, Qt::Key_PageUp);
    EXPECT_EQ(reported(recorder, wheel), "Grey, level 101: red 101, green 101, blue 101");
    QTest::keyClick(&wheel, Qt::Key_Right);
    recorder.valuesOf(wheel);
    QTest::keyClick(&wheel, Qt::Key_Up);
    EXPECT_EQ(reported(recorder, wheel), "Magenta, level 101: red 108, green 88, blue 108");
}

TEST_F(FrameSpeech, CurveReportsItsPoints)
{
    CurveFrame curve;
    EXPECT_EQ(roleOf(curve), QAccessible::Canvas);
    EXPECT_EQ(value(curve), "Points: 2, none selected");
    curve.setPoints({0, 0.25F, 1}, {1, 0.6F, 0});
    show(curve);
    AccessibilityEventRecorder recorder;
    QTest::keyClick(&curve, Qt::Key_PageDown);
    EXPECT_EQ(reported(recorder, curve), "Point 1 of 3: 0 % from the left, 0 % from the bottom");
    QTest::keyClick(&curve, Qt::Key_PageDown);
    EXPECT_EQ(reported(recorder, curve), "Point 2 of 3: 25 % from the left, 40 % from the bottom");
    QTest::keyClick(&curve, Qt::Key_Up);
    EXPECT_EQ(reported(recorder, curve), "Point 2 of 3: 25 % from the left, 41 % from the bottom");
    curve.slotSetActiveTo(0.5F, 0.2F);
    EXPECT_EQ(reported(recorder, curve), "Point 2 of 3: 50 % from the left, 80 % from the bottom");
    curve.deleteSelected();
    EXPECT_EQ(reported(recorder, curve), "Point 1 of 2: 0 % from the left, 0 % from the bottom");
    curve.slotSetInactive();
    EXPECT_EQ(reported(recorder, curve), "Points: 2, none selected");
    curve.setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
    EXPECT_EQ(reported(recorder, curve), "Points: 3, none selected");
}

TEST_F(FrameSpeech, CurveReportsEveryPositionOfADraggedPoint)
{
    CurveFrame curve;
    curve.setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
    show(curve);
    AccessibilityEventRecorder recorder;
    QTest::mousePress(&curve, Qt::LeftButton, {}, curve.contentsRect().center());
    EXPECT_EQ(reported(recorder, curve), "Point 2 of 3: 50 % from the left, 50 % from the bottom");
    QTest::mouseMove(&curve, QPoint(50, 98));
    EXPECT_EQ(reported(recorder, curve), "Point 2 of 3: 25 % from the left, 0 % from the bottom");
    QTest::mouseRelease(&curve, Qt::LeftButton, {}, QPoint(50, 98));
    EXPECT_EQ(reported(recorder, curve), "");
}

TEST_F(FrameSpeech, VignetteReportsCentreRadiusAndStrength)
{
    VFrame vignette;
    EXPECT_EQ(roleOf(vignette), QAccessible::Canvas);
    EXPECT_EQ(value(vignette), "Centre 50 % from the left and 50 % from the top, radius 50 %, strength 50 %");
    show(vignette);
    AccessibilityEventRecorder recorder;
    vignette.setPercents({57, 99, 29, 48});
    EXPECT_EQ(reported(recorder, vignette),
              "Centre 57 % from the left and 99 % from the top, radius 29 %, strength 48 %");
    vignette.setPercents({57, 99, 29, 48});
    EXPECT_EQ(reported(recorder, vignette), "");
}

TEST_F(FrameSpeech, StripReportsBlurAndStrength)
{
    GrainPreview strip;
    EXPECT_EQ(roleOf(strip), QAccessible::Graphic);
    EXPECT_EQ(value(strip), "Blurred by 1.5 pixels");
    show(strip);
    AccessibilityEventRecorder recorder;
    QVector<float> weights(256, 0.25F);
    weights[0] = 0;
    weights[255] = 2;
    strip.slotAdjustWeights(weights);
    EXPECT_EQ(reported(recorder, strip),
              "Blurred by 1.5 pixels, 0 % strong in the blacks, 25 % in the middle greys, 100 % in the whites");
    strip.slotSetRadius(2.3F);
    EXPECT_EQ(reported(recorder, strip),
              "Blurred by 2.3 pixels, 0 % strong in the blacks, 25 % in the middle greys, 100 % in the whites");
}

} // namespace
