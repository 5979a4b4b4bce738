// SPDX-License-Identifier: MIT
#include "tests/ui/panels/MixerTest.h"

#include <QPushButton>
#include <QTest>

namespace
{

using namespace grisal::test;

// The channel sliders do not take effect one by one, so that the image does not change with each of them.
TEST_F(MixerTest, ChannelSliderEmitsNothing)
{
    slider("sliderR").setValue(100);
    EXPECT_EQ(spinBox("spinBoxR").value(), 100);
    EXPECT_EQ(slider("sliderLuma").value(), 270);
    EXPECT_TRUE(emitted.isEmpty());
    slider("sliderG").setValue(-20);
    slider("sliderB").setValue(7);
    EXPECT_EQ(spinBoxes(), (Triple{100, -20, 7}));
    EXPECT_EQ(slider("sliderLuma").value(), 87);
    EXPECT_TRUE(emitted.isEmpty());
}

TEST_F(MixerTest, ChannelSpinBoxEmitsNothing)
{
    spinBox("spinBoxR").setValue(90);
    spinBox("spinBoxG").setValue(-20);
    spinBox("spinBoxB").setValue(7);
    EXPECT_EQ(sliders(), (Triple{90, -20, 7}));
    EXPECT_EQ(slider("sliderLuma").value(), 77);
    EXPECT_TRUE(emitted.isEmpty());
}

// The spin box of the sum shows the sum in effect, its slider the sum of the channel sliders.
TEST_F(MixerTest, ChannelSliderDoesNotChangeTheSumSpinBox)
{
    slider("sliderR").setValue(100);
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 255);
}

TEST_F(MixerTest, NegativeSumIsShownAsZero)
{
    setChannels({-100, -100, -100});
    EXPECT_EQ(slider("sliderLuma").value(), 0);
}

TEST_F(MixerTest, SumSliderShiftsAllChannelsEqually)
{
    choose("Luma");
    emitted.clear();
    slider("sliderLuma").setValue(300);
    expectEmitted(92, 165, 43);
    EXPECT_EQ(sliders(), (Triple{92, 165, 43}));
    EXPECT_EQ(spinBoxes(), (Triple{92, 165, 43}));
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 300);
}

TEST_F(MixerTest, SumSpinBoxShiftsAllChannelsEqually)
{
    choose("Luma");
    emitted.clear();
    spinBox("spinBoxLuma").setValue(300);
    expectEmitted(92, 165, 43);
    EXPECT_EQ(slider("sliderLuma").value(), 300);
}

// A third of 256 is not an integer: the controls show 85 each, and their sum, but the fraction is emitted.
TEST_F(MixerTest, ShownSumIsThatOfTheWholeWeights)
{
    slider("sliderLuma").setValue(256);
    expectEmitted(256 / 3.0F, 256 / 3.0F, 256 / 3.0F);
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(slider("sliderLuma").value(), 255);
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 255);
}

// Red is 10 - 60 + 50. The mean weights green slightly more than the others and is slightly above 60 here; with equal
// weights it would be below 60 and red positive. The sliders show whole weights, which are the same in both cases.
TEST_F(MixerTest, SumShiftUsesTheMeanThatWeightsGreenMore)
{
    setChannels({10, 110, 60});
    emitted.clear();
    slider("sliderLuma").setValue(150);
    ASSERT_EQ(emitted.count(), 1);
    EXPECT_NEAR(emitted[0][0].toFloat(), -5e-11 / 255, 1e-14);
    EXPECT_EQ(sliders(), (Triple{0, 100, 50}));
}

TEST_F(MixerTest, SumSliderCommitsTheChannelSliders)
{
    setChannels({100, 85, 70});
    slider("sliderLuma").setValue(285);
    expectEmitted(110, 95, 80);
}

// The example in the user guide in all languages.
TEST_F(MixerTest, SumShiftsATypedWeightWithTheOthers)
{
    spinBox("spinBoxR").setValue(200);
    spinBox("spinBoxLuma").setValue(256);
    expectEmitted(162, 47, 47);
    EXPECT_EQ(spinBoxes(), (Triple{162, 47, 47}));
}

TEST_F(MixerTest, ClickOnTheWheelReplacesTypedWeights)
{
    wheel.resize(200, 200);
    spinBox("spinBoxR").setValue(200);
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, QPoint(100, 100));
    expectEmitted(370 / 3.0F, 370 / 3.0F, 370 / 3.0F);
}

// The user guide recommends this for applying exactly the typed weights.
TEST_F(MixerTest, WheelNotchForthAndBackEmitsTypedWeights)
{
    for (const Triple &typed : {Triple{200, 85, 85}, Triple{200, -20, 75}, Triple{511, 400, -512}, Triple{1, 2, 3}}) {
        setChannels(typed);
        QTest::keyClick(&wheel, Qt::Key_PageUp);
        QTest::keyClick(&wheel, Qt::Key_PageDown);
        for (std::size_t c = 0; c < typed.size(); ++c) {
            EXPECT_NEAR(emitted.last()[static_cast<int>(c)].toDouble() * 255, typed[c], 1e-3);
            EXPECT_NEAR(spinBoxes()[c], typed[c], 1);
        }
    }
}

TEST_F(MixerTest, SetWeightsAreEmittedUnchangedAndShownTruncated)
{
    panel.slotSetRGB(10.9F, -20.9F, 30.5F);
    expectEmitted(10.9F, -20.9F, 30.5F);
    EXPECT_EQ(sliders(), (Triple{10, -20, 30}));
    EXPECT_EQ(spinBoxes(), (Triple{10, -20, 30}));
    EXPECT_EQ(slider("sliderLuma").value(), 20);
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 20);
}

TEST_F(MixerTest, WeightsBeyondTheSlidersAreEmittedUnchanged)
{
    panel.slotSetRGB(512, -512, 600);
    expectEmitted(512, -512, 600);
    EXPECT_EQ(sliders(), (Triple{511, -512, 511}));
    EXPECT_EQ(slider("sliderLuma").value(), 511);
}

TEST_F(MixerTest, WheelShowsTheWeightsInitially)
{
    EXPECT_EQ(wheel.colorSpace(), 1);
    EXPECT_EQ(wheel.minimumSize(), QSize(0, 200));
    expectOnWheel(85, 85, 85);
}

TEST_F(MixerTest, PickOnTheWheelIsEmittedAndShown)
{
    emit wheel.signalWeights(10.9F, 20.5F, 200.25F);
    expectEmitted(10.9F, 20.5F, 200.25F);
    EXPECT_EQ(sliders(), (Triple{10, 20, 200}));
    EXPECT_EQ(spinBoxes(), (Triple{10, 20, 200}));
    EXPECT_EQ(slider("sliderLuma").value(), 230);
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 230);
}

// The wheel is more precise than the whole weights of the sliders, so it must not be set to these.
TEST_F(MixerTest, PickPutsTheMarkerUnderTheMouse)
{
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, QPoint(wheel.width() / 3, wheel.height() / 3));
    EXPECT_EQ(emitted.count(), 1);
    EXPECT_DOUBLE_EQ(wheel.markerX(), double(wheel.width() / 3) / wheel.width());
    EXPECT_DOUBLE_EQ(wheel.markerY(), double(wheel.height() / 3) / wheel.height());
}

TEST_F(MixerTest, WheelShowsChangesOfChannelsSumLooksAndReset)
{
    const QSignalSpy picked(&wheel, &YUVFrame::signalWeights);
    setChannels({100, 60, 20});
    expectOnWheel(100, 60, 20);
    choose("Luma");
    expectOnWheel(77, 150, 28);
    slider("sliderLuma").setValue(300);
    expectOnWheel(92, 165, 43);
    panel.on_buttonReset_clicked();
    expectOnWheel(85, 85, 85);
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(MixerTest, ResetEmitsOneThirdEachOnce)
{
    choose("Luma");
    setChannels({400, -300, 2});
    emitted.clear();
    QTest::mouseClick(&child<QPushButton>(panel, "buttonReset"), Qt::LeftButton);
    expectEmitted(85, 85, 85);
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(spinBoxes(), (Triple{85, 85, 85}));
    EXPECT_EQ(slider("sliderLuma").value(), 255);
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 255);
    EXPECT_EQ(presets.currentText(), QStringLiteral("Luma"));
}

// The slider of the sum is at 255, the sum of the channel sliders; its spin box shows the sum in effect.
TEST_F(MixerTest, ResetRestoresTheSumSpinBox)
{
    slider("sliderLuma").setValue(300);
    slider("sliderR").setValue(55);
    ASSERT_EQ(slider("sliderLuma").value(), 255);
    panel.on_buttonReset_clicked();
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 255);
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
}

// The sum of "Luma" is the neutral one, so the slider of the sum does not move and does not update the others.
TEST_F(MixerTest, ResetSetsAllControlsEvenIfTheSumIsUnchanged)
{
    choose("Luma");
    panel.on_buttonReset_clicked();
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(spinBoxes(), (Triple{85, 85, 85}));
}

TEST_F(MixerTest, ResetEmitsEvenIfNothingHasChanged)
{
    panel.on_buttonReset_clicked();
    ASSERT_EQ(emitted.count(), 1);
    EXPECT_EQ(emitted[0][0].toFloat(), 0.33333334F);
    EXPECT_EQ(emitted[0][1].toFloat(), 0.33333334F);
    EXPECT_EQ(emitted[0][2].toFloat(), 0.33333334F);
}

} // namespace
