// SPDX-License-Identifier: MIT
// The looks of the mixer panel.
#include "tests/ui/panels/MixerTest.h"

namespace
{

using namespace grisal::test;

using MixerLooks = MixerTest;

struct Look {
    const char *name;
    std::array<int, 3> weights;
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

TEST_F(MixerLooks, LooksAreInFixedOrder)
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

TEST_F(MixerLooks, EveryLookEmitsItsWeights)
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

TEST_F(MixerLooks, AverageIsAppliedInitially)
{
    EXPECT_EQ(presets.currentIndex(), 0);
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{85, 85, 85}));
}

TEST_F(MixerLooks, SelectedLookIsKept)
{
    choose("Luma");
    slider("sliderR").setValue(3);
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{77, 150, 28}));
}

TEST_F(MixerLooks, SelectingTheCurrentLookAgainEmitsNothing)
{
    choose("Luma");
    emitted.clear();
    choose("Luma");
    EXPECT_TRUE(emitted.isEmpty());
}

TEST_F(MixerLooks, HighlightingALookEmitsNothing)
{
    emit presets.highlighted(5);
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
}

TEST_F(MixerLooks, LookReplacesTypedWeights)
{
    spinBox("spinBoxR").setValue(200);
    choose("Luma");
    expectEmitted(77, 150, 28);
}

TEST_F(MixerLooks, LookWithTooFewWeightsIsRejected)
{
    presets.setItemData(4, QVariantList{1, 2});
    expectWarning(QStringLiteral("mixer: color list too small"));
    presets.setCurrentIndex(4);
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{85, 85, 85}));
}

TEST_F(MixerLooks, LookWithInvalidLastWeightIsRejected)
{
    presets.setItemData(4, QVariantList{1, 2, QStringLiteral("blue")});
    expectWarning(QStringLiteral("mixer: could not get all rgb values"));
    presets.setCurrentIndex(4);
    EXPECT_TRUE(emitted.isEmpty());
    EXPECT_EQ(sliders(), (Triple{85, 85, 85}));
    EXPECT_EQ(panel.presetWeights(), (grisal::graphics::ColorRGB<float>{1, 2, 0}));
}

// All looks are defined in the program itself, so only the last weight is checked.
TEST_F(MixerLooks, OnlyTheLastWeightIsChecked)
{
    presets.setItemData(4, QVariantList{QStringLiteral("red"), 2, 3});
    presets.setCurrentIndex(4);
    expectEmitted(0, 2, 3);
}

} // namespace
