// SPDX-License-Identifier: MIT
// What the user sees of the window: icons, and the picture on the screen.
#include "tests/app/FilesTest.h"

#include "tests/support/PictureCompare.h"
#include "tests/support/Screen.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Mixer.h"

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QSignalSpy>

#include <algorithm>
#include <array>
#include <utility>

namespace
{

using namespace grisal::test;

constexpr std::array<std::pair<const char *, const char *>, 14> iconTable{{
    {"actionMixer", ":/Icons/Icons/mixer.png"},
    {"actionCurves", ":/Icons/Icons/curves.png"},
    {"actionSharpen", ":/Icons/Icons/sharpen.png"},
    {"actionVignette", ":/Icons/Icons/vignette.png"},
    {"actionGrain", ":/Icons/Icons/grain.png"},
    {"actionSplitTone", ":/Icons/Icons/split.png"},
    {"actionOpen", ":/Actions/Icons/Actions/load.png"},
    {"actionSave", ":/Actions/Icons/Actions/save.png"},
    {"actionSave_As", ":/Actions/Icons/Actions/save_as.png"},
    {"actionQuit", ":/Actions/Icons/Actions/exit.png"},
    {"actionPreferences", ":/Actions/Icons/Actions/prefs.png"},
    {"actionAbout", ":/Actions/Icons/Actions/info.png"},
    {"actionWebsite", ":/Actions/Icons/Actions/web.png"},
    {"actionHelp", ":/Actions/Icons/Actions/help.png"},
}};

QImage drawn(const QIcon &icon)
{
    return icon.pixmap(32, 32).toImage();
}

class MainWindowScreen : public FilesTest
{
protected:
    static Samples ramp(int x, int y)
    {
        const auto value = static_cast<std::uint16_t>((x * 2 + y) % 256 * 257);
        return {value, value, value};
    }

    /// The preview's area with a grey picture in its middle, one picture pixel per pixel, all else black.
    BytePixels centredRamp(int width, int height)
    {
        const QSize size = (QSizeF(preview().size()) * preview().devicePixelRatioF()).toSize();
        BytePixels area(size.width(), size.height());
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                for (int c = 0; c < 3; ++c) {
                    area.at((size.width() - width) / 2 + x, (size.height() - height) / 2 + y, c) =
                        static_cast<std::uint8_t>(ramp(x, y)[0] / 257);
                }
            }
        }
        return area;
    }

    /// Opens a ramp of grey and shows it one to one; returns the screen, once the ramp is on it.
    BytePixels showRamp(int width = 120, int height = 80)
    {
        window.openImage(makePicture(QStringLiteral("ramp.png"), width, height, 8, ramp));
        trigger(window, "actionActualPixels");
        return screenOnceLike(centredRamp(width, height));
    }

    BytePixels screenOnceLike(const BytePixels &expected) { return onScreenOnceLike(preview(), expected); }

    void choose(const char *look)
    {
        child<QComboBox>(*window.findChild<Mixer *>(), "comboPresets").setCurrentText(QString::fromLatin1(look));
    }
};

TEST_F(MainWindowScreen, ActionsHaveTheirIcons)
{
    for (const auto &[name, path] : iconTable) {
        const QIcon expected(QString::fromLatin1(path));
        ASSERT_FALSE(expected.pixmap(32, 32).isNull()) << path;
        EXPECT_EQ(drawn(action(name).icon()), drawn(expected)) << name;
    }
}

TEST_F(MainWindowScreen, TheWindowHasTheProgramsIcon)
{
    const QIcon expected(QStringLiteral(":/Icons/Icons/grisal.png"));
    ASSERT_FALSE(expected.pixmap(32, 32).isNull());
    EXPECT_EQ(drawn(window.windowIcon()), drawn(expected));
}

TEST_F(MainWindowScreen, ThePanelsReachTheEdgeOfTheirFrame)
{
    start();
    EXPECT_EQ(child<QFrame>(window, "container").contentsMargins(), QMargins());
    EXPECT_GE(child<QFrame>(window, "container").width(), 300);
    EXPECT_LE(child<QFrame>(window, "container").width(), 400);
}

TEST_F(MainWindowScreen, PreferencesAndHelpDoNothingYet)
{
    start();
    trigger(window, "actionPreferences");
    trigger(window, "actionHelp");
    const QWidgetList windows = QApplication::topLevelWidgets();
    EXPECT_EQ(std::count_if(windows.begin(), windows.end(), [](const QWidget *each) { return each->isVisible(); }), 1);
    EXPECT_EQ(status(), "");
}

TEST_F(MainWindowScreen, AnOpenedPictureIsOnTheScreen)
{
    start();
    EXPECT_TRUE(picturesNear("screen", showRamp(), centredRamp(120, 80)));
}

TEST_F(MainWindowScreen, PicturesOfOneToThreePixelsAreOnTheScreen)
{
    start();
    // The preview is cut to a multiple of four where a side has at least four pixels.
    for (const auto &[width, height] : {std::pair{1, 1}, std::pair{3, 2}, std::pair{2, 3}}) {
        EXPECT_TRUE(picturesNear("screen", showRamp(width, height), centredRamp(width, height)));
    }
}

TEST_F(MainWindowScreen, ALookIsOnTheScreenAtOnce)
{
    start();
    const BytePixels before = showRamp();
    choose("Rochester Tri-X");
    BytePixels now = onScreen(preview());
    EXPECT_TRUE(QTest::qWaitFor([&] { return (now = onScreen(preview())).values != before.values; }));
}

TEST_F(MainWindowScreen, AFileThatIsNoPictureLeavesTheScreenAsItIs)
{
    start();
    const BytePixels before = showRamp();
    const QString path = inHome(QStringLiteral("rubbish.jpg"));
    writeFile(path, "no picture at all");
    expectWarning(QString());
    {
        const MessageBoxAnswer box(QMessageBox::Ok);
        window.openImage(path);
    }
    EXPECT_TRUE(picturesNear("screen", screenOnceLike(before), before));
}

// A missing file opens the present picture once more, and a picture that is opened is fitted.
TEST_F(MainWindowScreen, AMissingFileFitsThePictureAgain)
{
    start();
    showRamp();
    expectWarning(QStringLiteral("missing.png"));
    window.openImage(inHome(QStringLiteral("missing.png")));
    EXPECT_GT(preview().scale(), 1.5F);
}

TEST_F(MainWindowScreen, SavingLeavesTheScreenAsItIs)
{
    start();
    const BytePixels before = showRamp();
    window.saveImage(inHome(QStringLiteral("saved.png")));
    QTest::qWait(50);
    EXPECT_TRUE(picturesNear("screen", screenOnceLike(before), before));
}

// Also for 16 bits the tones are those of the preview, which has 8.
TEST_F(MainWindowScreen, TheTonesOfAnOpenedPictureReachTheCurves)
{
    start();
    const auto halfWhite = [](int x, int) {
        const auto value = static_cast<std::uint16_t>(x < 4 ? 65535 : 100 * 257);
        return Samples{value, value, value};
    };
    window.openImage(makePicture(QStringLiteral("a.tif"), 8, 4, 16, halfWhite));
    auto &curves = *window.findChild<Curves *>();
    const QSignalSpy tones(&curves, &Curves::signalOutHistogram);
    curves.on_buttonReset_clicked();
    ASSERT_EQ(tones.count(), 1);
    QVector<float> expected(256, 0.0F);
    expected[100] = expected[255] = 15; // half of the pixels each, times 30
    EXPECT_EQ(tones[0][0].value<QVector<float>>(), expected);
}

} // namespace
