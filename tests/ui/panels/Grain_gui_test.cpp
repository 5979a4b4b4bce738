// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/GrainPreview.h"
#include "ui/panels/Grain.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace
{

using namespace grisal::test;

class GrainTest : public GuiTest
{
protected:
    /// Expects one emission since the last call, of these strengths and this blur.
    void expectEmitted(const QVector<float> &weights, float blur)
    {
        ASSERT_EQ(emitted.count(), 1);
        EXPECT_EQ(emitted[0][0].value<QVector<float>>(), weights);
        EXPECT_FLOAT_EQ(emitted[0][1].toFloat(), blur);
        emitted.clear();
    }

    QVector<float> drawn() { return linearCurve(frame.points(), 256); }

    void show()
    {
        panel.resize(300, 500);
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    Grain panel;
    CurveFrame &frame = child<CurveFrame>(panel, "frameCurve");
    GrainPreview &strip = child<GrainPreview>(panel, "framePreview");
    QSlider &slider = child<QSlider>(panel, "sliderBlur");
    QDoubleSpinBox &spinBox = child<QDoubleSpinBox>(panel, "doubleSpinBoxBlur");
    QPushButton &reset = child<QPushButton>(panel, "buttonReset");
    QSignalSpy emitted{&panel, &Grain::signalGrain};
};

TEST_F(GrainTest, FormHasItsRangesAndInitialValues)
{
    EXPECT_EQ(slider.orientation(), Qt::Horizontal);
    EXPECT_EQ(slider.minimum(), 0);
    EXPECT_EQ(slider.maximum(), 30);
    EXPECT_EQ(slider.value(), 15);
    EXPECT_EQ(spinBox.minimum(), 0);
    EXPECT_EQ(spinBox.maximum(), 3);
    EXPECT_EQ(spinBox.decimals(), 1);
    EXPECT_EQ(spinBox.singleStep(), 0.1);
    EXPECT_EQ(spinBox.value(), 1.5);
    EXPECT_EQ(strip.minimumSize(), QSize(0, 60));
    EXPECT_EQ(strip.maximumSize(), QSize(16777215, 60));
}

TEST_F(GrainTest, FormHasItsTexts)
{
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
    EXPECT_EQ(child<QLabel>(panel, "labelPreset").text(), QStringLiteral("Presets:"));
    EXPECT_EQ(child<QLabel>(panel, "labelBlur").text(), QStringLiteral("Blur"));
    EXPECT_EQ(reset.text(), QStringLiteral("\t↻"));
}

TEST_F(GrainTest, PresetsAreEmptyAndDisabled)
{
    EXPECT_EQ(child<QComboBox>(panel, "comboBoxPresets").count(), 0);
    EXPECT_FALSE(child<QComboBox>(panel, "comboBoxPresets").isEnabled());
}

TEST_F(GrainTest, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    EXPECT_EQ(methodsOf(Grain::staticMetaObject),
              "signalGrain(QList<float>,float) slotSetHistogram(QList<float>) "
              "on_doubleSpinBoxBlur_valueChanged(double) on_sliderBlur_valueChanged(int) emitAll() "
              "on_buttonReset_clicked()");
}

TEST_F(GrainTest, CurveIsLinearAndShownInTheStripInitially)
{
    EXPECT_EQ(frame.interpolation(), CurveFrame::Linear);
    EXPECT_EQ(strip.property("fulcrums").value<QVector<float>>(), QVector<float>(256, 0.5F));
    EXPECT_EQ(strip.property("radius").toFloat(), 1.5F);
}

TEST_F(GrainTest, ResetGivesGrainInTheMiddleGreys)
{
    QTest::mouseClick(&reset, Qt::LeftButton);
    EXPECT_EQ(frame.points().xs, (QVector<float>{0, 0.5F, 1}));
    EXPECT_EQ(frame.points().ys, (QVector<float>{1, 0.5F, 1}));
    ASSERT_EQ(emitted.count(), 1);
    const auto weights = emitted[0][0].value<QVector<float>>();
    ASSERT_EQ(weights.size(), 256);
    EXPECT_FLOAT_EQ(weights[0], 0);
    EXPECT_FLOAT_EQ(weights[64], 0.25F);
    EXPECT_FLOAT_EQ(weights[128], 0.5F);
    EXPECT_FLOAT_EQ(weights[192], 0.25F);
    EXPECT_FLOAT_EQ(emitted[0][1].toFloat(), 1.5F);
}

TEST_F(GrainTest, ResetRestoresTheBlur)
{
    spinBox.setValue(2.7);
    panel.on_buttonReset_clicked();
    EXPECT_EQ(spinBox.value(), 1.5);
    EXPECT_EQ(slider.value(), 15);
    EXPECT_FLOAT_EQ(emitted.last()[1].toFloat(), 1.5F);
}

TEST_F(GrainTest, SliderEmitsOnceThroughTheSpinBox)
{
    for (int tenths = 0; tenths <= 30; ++tenths) {
        slider.setValue(tenths == 0 ? 1 : tenths - 1);
        emitted.clear();
        slider.setValue(tenths);
        EXPECT_DOUBLE_EQ(spinBox.value(), tenths / 10.0);
        EXPECT_EQ(slider.value(), tenths);
        expectEmitted(drawn(), static_cast<float>(tenths / 10.0));
    }
}

TEST_F(GrainTest, SpinBoxEmitsOnceAndMovesTheSlider)
{
    for (int tenths = 30; tenths >= 0; --tenths) {
        emitted.clear();
        spinBox.setValue(tenths / 10.0);
        EXPECT_EQ(slider.value(), tenths);
        EXPECT_DOUBLE_EQ(spinBox.value(), tenths / 10.0);
        expectEmitted(drawn(), static_cast<float>(tenths / 10.0));
    }
}

TEST_F(GrainTest, StripShowsCurveAndBlur)
{
    panel.on_buttonReset_clicked();
    EXPECT_EQ(strip.property("fulcrums").value<QVector<float>>(), drawn());
    slider.setValue(23);
    EXPECT_FLOAT_EQ(strip.property("radius").toFloat(), 2.3F);
}

TEST_F(GrainTest, DragEmitsTheGrainWhenTheButtonIsReleased)
{
    panel.on_buttonReset_clicked();
    show();
    emitted.clear();
    const QPoint middle = frame.rect().center();
    QTest::mousePress(&frame, Qt::LeftButton, {}, middle);
    QTest::mouseMove(&frame, middle - QPoint(0, frame.height() / 4));
    EXPECT_TRUE(emitted.isEmpty());
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, middle - QPoint(0, frame.height() / 4));
    expectEmitted(drawn(), 1.5F);
    EXPECT_NEAR(drawn()[128], 0.75, 0.02);
}

TEST_F(GrainTest, DeleteKeyWorksWhereverTheFocusIs)
{
    panel.on_buttonReset_clicked();
    show();
    QTest::mouseClick(&frame, Qt::LeftButton, {}, frame.rect().center());
    slider.setFocus();
    emitted.clear();
    QTest::keyClick(panel.windowHandle(), Qt::Key_Delete);
    EXPECT_EQ(frame.points().count(), 2);
    expectEmitted(QVector<float>(256, 0.0F), 1.5F);
}

TEST_F(GrainTest, HistogramIsShownBehindTheCurve)
{
    const QVector<float> histogram(256, 0.125F);
    panel.slotSetHistogram(histogram);
    EXPECT_EQ(frame.histogram(), histogram);
    EXPECT_TRUE(emitted.isEmpty());
}

TEST_F(GrainTest, StripIsAsWideAsTheCurve)
{
    show();
    EXPECT_EQ(strip.geometry().left(), frame.geometry().left());
    EXPECT_EQ(strip.geometry().right(), frame.geometry().right());
    EXPECT_EQ(strip.height(), 60);
}

TEST_F(GrainTest, ControlsHaveNamesAndTips)
{
    for (const char *name :
         {"comboBoxPresets", "buttonReset", "frameCurve", "framePreview", "sliderBlur", "doubleSpinBoxBlur"}) {
        EXPECT_FALSE(child<QWidget>(panel, name).accessibleName().isEmpty()) << name;
        EXPECT_FALSE(child<QWidget>(panel, name).toolTip().isEmpty()) << name;
    }
}

} // namespace
