// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/YUVFrame.h"
#include "ui/panels/SplitTone.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <array>

namespace
{

using namespace grisal::test;

using Triple = std::array<int, 3>;

constexpr std::array<const char *, 6> channels{"spinBoxHR", "spinBoxHG", "spinBoxHB",
                                               "spinBoxSR", "spinBoxSG", "spinBoxSB"};
constexpr Triple warm{190, 156, 54};
constexpr Triple cool{110, 148, 198};

class SplitToneTest : public GuiTest
{
protected:
    QSlider &slider(const char *name) { return child<QSlider>(panel, name); }
    QSpinBox &spinBox(const char *name) { return child<QSpinBox>(panel, name); }

    Triple highlights()
    {
        return {spinBox("spinBoxHR").value(), spinBox("spinBoxHG").value(), spinBox("spinBoxHB").value()};
    }
    Triple shadows()
    {
        return {spinBox("spinBoxSR").value(), spinBox("spinBoxSG").value(), spinBox("spinBoxSB").value()};
    }

    void reset()
    {
        QTest::mouseClick(&child<QPushButton>(panel, "buttonReset"), Qt::LeftButton);
        emitted.clear();
    }

    /// Expects one emission since the last call, of tints on the scale 0..255.
    void expectEmitted(float weight, const Triple &first, const Triple &second)
    {
        ASSERT_EQ(emitted.count(), 1);
        const QVariantList sent = emitted.takeFirst();
        EXPECT_FLOAT_EQ(sent[0].toFloat(), weight);
        for (int c = 0; c < 3; ++c) {
            const auto channel = static_cast<std::size_t>(c);
            EXPECT_FLOAT_EQ(sent[1 + c].toFloat(), static_cast<float>(first[channel]) / 255) << c;
            EXPECT_FLOAT_EQ(sent[4 + c].toFloat(), static_cast<float>(second[channel]) / 255) << c;
        }
    }

    static void expectOnWheel(const YUVFrame &wheel, const Triple &tint)
    {
        const double mean = (tint[0] + tint[1] + tint[2]) / 3.0;
        EXPECT_NEAR(wheel.luma(), mean, 1e-3);
        EXPECT_NEAR(wheel.markerX(), (tint[2] - mean + 170) / 340, 1e-5);
        EXPECT_NEAR(wheel.markerY(), (mean - tint[0] + 170) / 340, 1e-5);
    }

    SplitTone panel;
    YUVFrame &frameHighlights = child<YUVFrame>(panel, "frameHighlights");
    YUVFrame &frameShadows = child<YUVFrame>(panel, "frameShadows");
    QSignalSpy emitted{&panel, &SplitTone::signalSplit};
};

// The blue of the shadows differs between the form and the reset on purpose.
TEST_F(SplitToneTest, FormHasItsInitialTints)
{
    EXPECT_EQ(highlights(), warm);
    EXPECT_EQ(shadows(), (Triple{110, 148, 253}));
    reset();
    EXPECT_EQ(highlights(), warm);
    EXPECT_EQ(shadows(), cool);
}

/// Counts the emissions of the first panel that is constructed during its lifetime, from its first child on.
class BuildListener : public QObject
{
public:
    BuildListener() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *panel = qobject_cast<SplitTone *>(watched);
        if (panel != nullptr && event->type() == QEvent::ChildAdded && !listening) {
            listening = true;
            connect(panel, &SplitTone::signalSplit, this, [this] { ++emissions; });
        }
        return false;
    }

    bool listening = false;
    int emissions = 0;
};

TEST_F(SplitToneTest, ConstructionEmitsNothing)
{
    const BuildListener listener;
    SplitTone another;
    EXPECT_TRUE(listener.listening);
    EXPECT_EQ(listener.emissions, 0);
    another.emitAll();
    EXPECT_EQ(listener.emissions, 1);
}

TEST_F(SplitToneTest, ResetEmitsItsTints)
{
    spinBox("spinBoxHR").setValue(3);
    spinBox("spinBoxSB").setValue(4);
    panel.on_buttonReset_clicked();
    expectEmitted(1, warm, cool);
    EXPECT_EQ(slider("sliderHLuma").value(), 133);
    EXPECT_EQ(slider("sliderSLuma").value(),
              151); // three thirds of twelve digits give slightly less than 152, which is truncated
    expectOnWheel(frameHighlights, warm);
    expectOnWheel(frameShadows, cool);
}

// The weight is reset first, and its change is emitted separately with the previous tints.
TEST_F(SplitToneTest, ResetEmitsAChangedWeightFirst)
{
    reset();
    slider("sliderWeight").setValue(100);
    spinBox("spinBoxHR").setValue(3);
    emitted.clear();
    panel.on_buttonReset_clicked();
    ASSERT_EQ(emitted.count(), 2);
    EXPECT_FLOAT_EQ(emitted[0][0].toFloat(), 1);
    EXPECT_FLOAT_EQ(emitted[0][1].toFloat(), 3.0F / 255);
    emitted.removeFirst();
    expectEmitted(1, warm, cool);
}

TEST_F(SplitToneTest, WeightRangesFromThreeQuartersToFiveQuarters)
{
    reset();
    slider("sliderWeight").setValue(0);
    expectEmitted(0.75F, warm, cool);
    EXPECT_EQ(spinBox("spinBoxWeight").value(), 0);
    slider("sliderWeight").setValue(100);
    expectEmitted(1.25F, warm, cool);
    spinBox("spinBoxWeight").setValue(25);
    expectEmitted(0.875F, warm, cool);
    EXPECT_EQ(slider("sliderWeight").value(), 25);
}

// A colour consists of three numbers, so a single one is not emitted.
TEST_F(SplitToneTest, TypedColoursMoveWheelAndLumaButEmitNothing)
{
    reset();
    const std::array<int, 6> tints{200, 100, 30, 20, 40, 61};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        spinBox(channels[i]).setValue(tints[i]);
    }
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(slider("sliderHLuma").value(),
              109); // three thirds of twelve digits give slightly less than 110, which is truncated
    EXPECT_EQ(slider("sliderSLuma").value(), 40);
    expectOnWheel(frameHighlights, {200, 100, 30});
    expectOnWheel(frameShadows, {20, 40, 61});
    panel.emitAll();
    expectEmitted(1, {200, 100, 30}, {20, 40, 61});
}

// The mean weights green slightly more than the others and is slightly above 100 here; with equal weights it would be
// below 100 and truncated to 99.
TEST_F(SplitToneTest, LumaOfAGreenTintIsNotOneTooLow)
{
    spinBox("spinBoxHR").setValue(90);
    spinBox("spinBoxHG").setValue(120);
    spinBox("spinBoxHB").setValue(90);
    EXPECT_EQ(slider("sliderHLuma").value(), 100);
    panel.slotSetShadows(90, 120, 90);
    EXPECT_EQ(slider("sliderSLuma").value(), 100);
}

TEST_F(SplitToneTest, LumaSliderShiftsAllChannelsEqually)
{
    reset();
    slider("sliderHLuma").setValue(143);
    EXPECT_EQ(slider("sliderHLuma").value(), 142); // the sum of the truncated numbers is slightly less
    ASSERT_EQ(emitted.count(), 1);
    EXPECT_EQ(highlights(), (Triple{199, 165, 63}));
    EXPECT_EQ(frameHighlights.luma(), 143);
    expectEmitted(1, {199, 165, 63}, cool);
}

TEST_F(SplitToneTest, LumaSliderSetsAllChannelsOfAGrey)
{
    for (const char *name : channels) {
        spinBox(name).setValue(100);
    }
    slider("sliderHLuma").setValue(200);
    EXPECT_EQ(highlights(), (Triple{200, 200, 200}));
    EXPECT_EQ(slider("sliderHLuma").value(), 200);
    slider("sliderSLuma").setValue(7);
    EXPECT_EQ(shadows(), (Triple{7, 7, 7}));
    EXPECT_EQ(emitted.count(), 2);
}

TEST_F(SplitToneTest, TintIsTruncatedAndClampedToTheSpinBoxes)
{
    reset();
    panel.slotSetHighlights(300.9F, 100.9F, -20);
    EXPECT_EQ(highlights(), (Triple{255, 100, 0}));
    EXPECT_EQ(slider("sliderHLuma").value(), 126); // the mean of 300, 100 and -20
    expectEmitted(1, {255, 100, 0}, cool);
    panel.slotSetShadows(1.5F, 2.5F, 3.5F);
    EXPECT_EQ(shadows(), (Triple{1, 2, 3}));
    expectEmitted(1, {255, 100, 0}, {1, 2, 3});
}

TEST_F(SplitToneTest, LumaSliderKeepsTheMarkerAndTheOtherTint)
{
    reset();
    const QPointF marker(frameShadows.markerX(), frameShadows.markerY());
    const QSignalSpy picked(&frameShadows, &YUVFrame::signalWeights);
    slider("sliderSLuma").setValue(250);
    expectEmitted(1, warm, {208, 246, 255});
    EXPECT_EQ(slider("sliderSLuma").value(), 249); // the mean of 208, 246 and 296, truncated
    EXPECT_EQ(frameShadows.luma(), 250);
    EXPECT_EQ(QPointF(frameShadows.markerX(), frameShadows.markerY()), marker);
    EXPECT_TRUE(picked.isEmpty());
}

// Truncation reduces the luma by up to one, so a step of one upwards would have no effect.
TEST_F(SplitToneTest, ArrowKeysChangeTheLuma)
{
    for (const Triple &tint : {Triple{100, 100, 100}, Triple{101, 100, 100}, Triple{101, 101, 100}, cool}) {
        spinBox("spinBoxHR").setValue(tint[0]);
        spinBox("spinBoxHG").setValue(tint[1]);
        spinBox("spinBoxHB").setValue(tint[2]);
        QSlider &luma = slider("sliderHLuma");
        const int before = luma.value();
        QTest::keyClick(&luma, Qt::Key_Up);
        const int above = luma.value();
        EXPECT_GT(above, before);
        QTest::keyClick(&luma, Qt::Key_Down);
        EXPECT_LT(luma.value(), above);
    }
}

TEST_F(SplitToneTest, OnlyTheWeightSpinBoxEmitsTypedNumbers)
{
    reset();
    for (const char *name : channels) {
        spinBox(name).selectAll();
        QTest::keyClicks(&spinBox(name), QStringLiteral("200"));
        QTest::keyClick(&spinBox(name), Qt::Key_Return);
    }
    EXPECT_EQ(highlights(), (Triple{200, 200, 200}));
    EXPECT_EQ(shadows(), (Triple{200, 200, 200}));
    EXPECT_TRUE(emitted.isEmpty());
    spinBox("spinBoxWeight").selectAll();
    QTest::keyClicks(&spinBox("spinBoxWeight"), QStringLiteral("26"));
    EXPECT_TRUE(emitted.isEmpty());
    QTest::keyClick(&spinBox("spinBoxWeight"), Qt::Key_Return);
    expectEmitted(0.88F, {200, 200, 200}, {200, 200, 200});
}

TEST_F(SplitToneTest, DragOnAWheelEmitsItsColourAtEveryMove)
{
    reset();
    panel.resize(300, 520);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    for (YUVFrame *wheel : {&frameHighlights, &frameShadows}) {
        const QSignalSpy picked(wheel, &YUVFrame::signalWeights);
        const auto expectPicked = [&](int count) {
            ASSERT_EQ(picked.count(), count);
            Triple tint{};
            for (std::size_t i = 0; i < tint.size(); ++i) {
                tint[i] = std::clamp(static_cast<int>(picked.last()[static_cast<int>(i)].toFloat()), 0, 255);
            }
            EXPECT_EQ(wheel == &frameHighlights ? highlights() : shadows(), tint);
            expectEmitted(1, highlights(), shadows());
        };
        const QPoint middle = wheel->rect().center();
        QTest::mousePress(wheel, Qt::LeftButton, {}, middle);
        expectPicked(1);
        QTest::mouseMove(wheel, middle + QPoint(20, -7));
        expectPicked(2);
        QTest::mouseMove(wheel, middle + QPoint(400, 300));
        expectPicked(3);
        QTest::mouseRelease(wheel, Qt::LeftButton, {}, middle);
        EXPECT_TRUE(emitted.isEmpty());
        EXPECT_DOUBLE_EQ(wheel->markerX(), (middle.x() + 400.0) / wheel->width());
    }
    EXPECT_EQ(shadows()[0], 0);
    EXPECT_EQ(shadows()[2], 255);
}

} // namespace
