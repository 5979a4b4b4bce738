// SPDX-License-Identifier: MIT
// A saved picture contains the look of the panels: the filters get exactly the same parameters from it.
#include "graphics/files/LookInFile.h"
#include "graphics/look/LookText.h"
#include "tests/app/FilesTest.h"
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/VFrame.h"
#include "ui/frames/YUVFrame.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>

#include <random>

namespace
{

using namespace grisal::test;
using grisal::graphics::Look;

class SavedLook : public FilesTest
{
protected:
    void openPicture()
    {
        start();
        window.openImage(makePicture(QStringLiteral("a.png"), 60, 40, 16, [](int x, int y) {
            return Samples{static_cast<std::uint16_t>(x * 1000), static_cast<std::uint16_t>(y * 1600), 30000};
        }));
    }

    template <typename Panel>
    Panel &panel()
    {
        return *window.findChild<Panel *>();
    }

    int number(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(m_random); }
    bool coin() { return number(0, 1) == 1; }

    QPoint placeIn(const QWidget &frame) { return {number(0, frame.width() - 1), number(0, frame.height() - 1)}; }

    void dragAnywhere(QWidget &frame)
    {
        const QPoint end = placeIn(frame);
        QTest::mousePress(&frame, Qt::LeftButton, {}, placeIn(frame));
        QTest::mouseMove(&frame, end);
        QTest::mouseRelease(&frame, Qt::LeftButton, {}, end);
    }

    /// Moves the slider without reaching its present value, so that the panel emits.
    void moveSlider(QWidget &panel, const char *name)
    {
        auto &slider = child<QSlider>(panel, name);
        slider.setValue(number(slider.minimum(), slider.maximum()));
    }

    void drawCurve(QWidget &panel)
    {
        auto &frame = child<CurveFrame>(panel, "frameCurve");
        for (int i = number(0, 4); i > 0; --i) {
            dragAnywhere(frame);
        }
        QTest::keyClick(&frame, coin() ? Qt::Key_Up : Qt::Key_Left);
    }

    void changeAllPanels()
    {
        for (const char *name : {"actionCurves", "actionGrain", "actionVignette", "actionSplitTone"}) {
            if (coin()) {
                trigger(window, name);
            }
        }
        child<QComboBox>(panel<Mixer>(), "comboPresets").setCurrentIndex(number(0, 16));
        if (coin()) {
            dragAnywhere(child<YUVFrame>(panel<Mixer>(), "frameYUV"));
        }
        moveSlider(panel<Mixer>(), coin() ? "sliderLuma" : "sliderR");
        drawCurve(panel<Curves>());
        child<QRadioButton>(panel<Curves>(), coin() ? "radioLinear" : "radioBSpline").click();
        drawCurve(panel<Grain>());
        moveSlider(panel<Grain>(), "sliderBlur");
        dragAnywhere(child<VFrame>(panel<Vignette>(), "frame"));
        moveSlider(panel<Vignette>(), "sliderStrength");
        dragAnywhere(child<YUVFrame>(panel<SplitTone>(), "frameShadows"));
        moveSlider(panel<SplitTone>(), "sliderHLuma");
        moveSlider(panel<SplitTone>(), "sliderWeight");
    }

    /// Saves the picture and returns the look in the file.
    Look saved(const QString &name)
    {
        window.saveImage(inHome(name));
        QString problem;
        const std::optional<Look> look =
            grisal::graphics::parseLook(grisal::graphics::readLook(inHome(name)).text, problem);
        EXPECT_TRUE(look) << problem.toStdString();
        return look.value_or(Look());
    }

    void expectLookOfThePanels(const QString &name)
    {
        const Look look = saved(name);
        const grisal::ui::GLWidget &preview = *window.findChild<grisal::ui::GLWidget *>();
        EXPECT_TRUE(look.parameters() == preview.parameters()) << grisal::graphics::lookText(look).toStdString();
        EXPECT_EQ(look.enabled, preview.enabledFilters());
        EXPECT_EQ(look.enabled.get<grisal::graphics::GrainFilter>(), action("actionGrain").isChecked());
    }

private:
    std::mt19937 m_random{22};
};

TEST_F(SavedLook, IsThatOfTheStartWithoutChanges)
{
    openPicture();
    expectLookOfThePanels(QStringLiteral("b.png"));
    EXPECT_EQ(saved(QStringLiteral("b.png")), Look());
}

TEST_F(SavedLook, HasTheSameParametersAsThePanels)
{
    for (int round = 0; round < 12; ++round) {
        openPicture();
        changeAllPanels();
        for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
            SCOPED_TRACE(std::string(name) + " in round " + std::to_string(round));
            expectLookOfThePanels(QString::fromLatin1(name));
        }
    }
}

// The curve in the picture is still the one before the drag.
TEST_F(SavedLook, DoesNotContainAPointThatIsBeingDragged)
{
    openPicture();
    trigger(window, "actionCurves");
    auto &frame = child<CurveFrame>(panel<Curves>(), "frameCurve");
    QTest::mousePress(&frame, Qt::LeftButton, {}, frame.rect().center());
    QTest::mouseMove(&frame, {frame.width() / 3, frame.height() / 3});
    ASSERT_NE(frame.points(), Look().toneCurve.points);

    expectLookOfThePanels(QStringLiteral("b.png"));
    EXPECT_EQ(saved(QStringLiteral("b.png")).toneCurve, Look().toneCurve);
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, {frame.width() / 3, frame.height() / 3});
    expectLookOfThePanels(QStringLiteral("b.png"));
    EXPECT_NE(saved(QStringLiteral("b.png")).toneCurve, Look().toneCurve);
}

} // namespace
