// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/YUVFrame.h"
#include "ui/panels/Mixer.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <array>

namespace
{

using namespace grisal::test;

using Triple = std::array<int, 3>;

struct Look {
    const char *name;
    Triple weights;
    std::array<double, 3> emitted;
};

constexpr std::array<Look, 17> looks{{
    {"Average", {85, 85, 85}, {0.333333, 0.333333, 0.333333}},
    {"Luma", {77, 150, 28}, {0.301961, 0.588235, 0.109804}},
    {"Berlin 200X", {46, 105, 105}, {0.180392, 0.411765, 0.411765}},
    {"Berlinpan 25", {64, 99, 92}, {0.250980, 0.388235, 0.360784}},
    {"Berlinpan 100", {54, 102, 99}, {0.211765, 0.400000, 0.388235}},
    {"Berlinpan 400", {51, 105, 99}, {0.200000, 0.411765, 0.388235}},
    {"Redbridge Delta 100", {54, 107, 94}, {0.211765, 0.419608, 0.368627}},
    {"Redbridge Delta 400", {56, 107, 92}, {0.219608, 0.419608, 0.360784}},
    {"Redbridge Delta 400 Pro", {79, 92, 84}, {0.309804, 0.360784, 0.329412}},
    {"Redbridge FP4", {71, 105, 79}, {0.278431, 0.411765, 0.309804}},
    {"Redbridge HP5", {59, 94, 102}, {0.231373, 0.368627, 0.400000}},
    {"Redbridge Pan F", {84, 92, 79}, {0.329412, 0.360784, 0.309804}},
    {"Redbridge SFX", {92, 79, 84}, {0.360784, 0.309804, 0.329412}},
    {"Redbridge XP2 Super", {54, 107, 94}, {0.211765, 0.419608, 0.368627}},
    {"Rochester Tmax 100", {61, 94, 99}, {0.239216, 0.368627, 0.388235}},
    {"Rochester Tmax 400", {69, 92, 94}, {0.270588, 0.360784, 0.368627}},
    {"Rochester Tri-X", {64, 89, 102}, {0.250980, 0.349020, 0.400000}},
}};

class MixerTest : public GuiTest
{
protected:
    QSlider &slider(const char *name) { return child<QSlider>(panel, name); }
    QSpinBox &spinBox(const char *name) { return child<QSpinBox>(panel, name); }

    Triple sliders() { return {slider("sliderR").value(), slider("sliderG").value(), slider("sliderB").value()}; }
    Triple spinBoxes()
    {
        return {spinBox("spinBoxR").value(), spinBox("spinBoxG").value(), spinBox("spinBoxB").value()};
    }

    void choose(const char *look) { presets.setCurrentText(QString::fromLatin1(look)); }

    void setChannels(const Triple &weights)
    {
        slider("sliderR").setValue(weights[0]);
        slider("sliderG").setValue(weights[1]);
        slider("sliderB").setValue(weights[2]);
    }

    /// Expects one emission since the last call, of these weights on the scale 0..255.
    void expectEmitted(float r, float g, float b)
    {
        ASSERT_EQ(emitted.count(), 1);
        const QVariantList weights = emitted.takeFirst();
        EXPECT_FLOAT_EQ(weights[0].toFloat(), r / 255.0F);
        EXPECT_FLOAT_EQ(weights[1].toFloat(), g / 255.0F);
        EXPECT_FLOAT_EQ(weights[2].toFloat(), b / 255.0F);
    }

    void expectOnWheel(float r, float g, float b)
    {
        const float mean = (r + g + b) / 3;
        EXPECT_NEAR(wheel.luma(), mean, 1e-3);
        EXPECT_NEAR(wheel.markerX(), (b - mean + 341) / 682, 1e-5);
        EXPECT_NEAR(wheel.markerY(), (mean - r + 341) / 682, 1e-5);
    }

    Mixer panel;
    YUVFrame &wheel = child<YUVFrame>(panel, "frameYUV");
    QComboBox &presets = child<QComboBox>(panel, "comboPresets");
    QSignalSpy emitted{&panel, &Mixer::signalMixer};
};

TEST_F(MixerTest, LooksAreInFixedOrder)
{
    ASSERT_EQ(presets.count(), static_cast<int>(looks.size()));
    for (int i = 0; i < presets.count(); ++i) {
        const Look &look = looks[static_cast<std::size_t>(i)];
        EXPECT_EQ(presets.itemText(i), QString::fromLatin1(look.name));
        EXPECT_EQ(presets.itemData(i).toList(), (QVariantList{look.weights[0], look.weights[1], look.weights[2]}))
            << look.name;
        EXPECT_TRUE(presets.itemIcon(i).isNull()) << look.name;
    }
}

TEST_F(MixerTest, EveryLookEmitsItsWeights)
{
    for (int i = 0; i < presets.count(); ++i) {
        const Look &look = looks[static_cast<std::size_t>(i)];
        presets.setCurrentIndex((i + 1) % presets.count());
        emitted.clear();
        presets.setCurrentIndex(i);
        ASSERT_EQ(emitted.count(), 1) << look.name;
        for (int c = 0; c < 3; ++c) {
            EXPECT_NEAR(emitted[0][c].toDouble(), look.emitted[static_cast<std::size_t>(c)], 1e-6) << look.name;
        }
        EXPECT_EQ(sliders(), look.weights) << look.name;
        EXPECT_EQ(spinBoxes(), look.weights) << look.name;
        EXPECT_EQ(slider("sliderLuma").value(), look.weights[0] + look.weights[1] + look.weights[2]) << look.name;
    }
}

TEST_F(MixerTest, AverageIsAppliedInitially)
{
    EXPECT_EQ(presets.currentIndex(), 0);
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{85, 85, 85}));
}

TEST_F(MixerTest, SelectedLookIsKept)
{
    choose("Luma");
    slider("sliderR").setValue(3);
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{77, 150, 28}));
}

TEST_F(MixerTest, SelectingTheCurrentLookAgainEmitsNothing)
{
    choose("Luma");
    emitted.clear();
    choose("Luma");
    EXPECT_TRUE(emitted.isEmpty());
}

TEST_F(MixerTest, HighlightingALookEmitsNothing)
{
    emit presets.highlighted(5);
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
}

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

TEST_F(MixerTest, LookReplacesTypedWeights)
{
    spinBox("spinBoxR").setValue(200);
    choose("Luma");
    expectEmitted(77, 150, 28);
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

TEST_F(MixerTest, LookWithTooFewWeightsIsRejected)
{
    presets.setItemData(4, QVariantList{1, 2});
    expectWarning(QStringLiteral("mixer: color list too small"));
    presets.setCurrentIndex(4);
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{85, 85, 85}));
}

TEST_F(MixerTest, LookWithInvalidLastWeightIsRejected)
{
    presets.setItemData(4, QVariantList{1, 2, QStringLiteral("blue")});
    expectWarning(QStringLiteral("mixer: could not get all rgb values"));
    presets.setCurrentIndex(4);
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{1, 2, 0}));
}

// All looks are defined in the program itself, so only the last weight is checked.
TEST_F(MixerTest, OnlyTheLastWeightIsChecked)
{
    presets.setItemData(4, QVariantList{QStringLiteral("red"), 2, 3});
    presets.setCurrentIndex(4);
    expectEmitted(0, 2, 3);
}

} // namespace
