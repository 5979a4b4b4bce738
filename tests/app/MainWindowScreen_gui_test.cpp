// SPDX-License-Identifier: MIT
// The image on the screen.
#include "tests/app/FilesTest.h"

#include "tests/support/PictureCompare.h"
#include "tests/support/Screen.h"
#include "ui/panels/Curves.h"

#include <QFrame>
#include <QSignalSpy>

#include <utility>

namespace
{

using namespace grisal::test;

constexpr int rampWidth = 120;
constexpr int rampHeight = 80;

class MainWindowScreen : public FilesTest
{
protected:
    static Samples ramp(int x, int y)
    {
        const auto value = static_cast<std::uint16_t>((x * 2 + y) % 256 * 257);
        return {value, value, value};
    }

    /// The area of the preview with a grey image at scale 1 in its middle, black elsewhere.
    BytePixels centredRamp()
    {
        const QSize size = (QSizeF(preview().size()) * preview().devicePixelRatioF()).toSize();
        BytePixels area(size.width(), size.height());
        for (int y = 0; y < rampHeight; ++y) {
            for (int x = 0; x < rampWidth; ++x) {
                for (int c = 0; c < 3; ++c) {
                    area.at((size.width() - rampWidth) / 2 + x, (size.height() - rampHeight) / 2 + y, c) =
                        static_cast<std::uint8_t>(ramp(x, y)[0] / 257);
                }
            }
        }
        return area;
    }

    /// Opens a grey ramp, shows it at scale 1 and waits until it is on the screen; returns the screen.
    BytePixels showRamp()
    {
        window.openImage(makePicture(QStringLiteral("ramp.png"), rampWidth, rampHeight, 8, ramp));
        trigger(window, "actionActualPixels");
        return screenOnceLike(centredRamp());
    }

    BytePixels screenOnceLike(const BytePixels &expected) { return grabScreenOnceEqual(preview(), expected); }
};

TEST_F(MainWindowScreen, PanelsReachTheEdgeOfTheirFrame)
{
    start();
    EXPECT_EQ(child<QFrame>(window, "container").contentsMargins(), QMargins());
    EXPECT_GE(child<QFrame>(window, "container").width(), 300);
    EXPECT_LE(child<QFrame>(window, "container").width(), 400);
}

TEST_F(MainWindowScreen, OpenedImageIsOnTheScreen)
{
    startEven();
    EXPECT_TRUE(picturesNear("screen", showRamp(), centredRamp()));
}

// The middle of the image is then between two pixels.
TEST_F(MainWindowScreen, PreviewOfOddHeightShowsEveryRowOnce)
{
    startEven();
    window.resize(window.width(), window.height() + 1);
    ASSERT_EQ(preview().height() % 2, 1);
    EXPECT_TRUE(picturesNear("screen", showRamp(), centredRamp()));
}

TEST_F(MainWindowScreen, ImagesOfOneToThreePixelsAreOnTheScreen)
{
    start();
    for (const auto &[width, height] : {std::pair{1, 1}, std::pair{3, 2}, std::pair{2, 3}}) {
        const auto level = static_cast<std::uint8_t>(width * 40 + height);
        const auto flat = [level](int, int) {
            const auto value = static_cast<std::uint16_t>(level * 257);
            return Samples{value, value, value};
        };
        window.openImage(makePicture(QStringLiteral("small.png"), width, height, 8, flat));
        const auto middle = [this] {
            const BytePixels now = grabScreen(preview());
            return now.at(now.width / 2, now.height / 2, 0);
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return middle() == level; })) << width << " x " << height;
    }
}

TEST_F(MainWindowScreen, InvalidFileLeavesTheScreenUnchanged)
{
    startEven();
    const BytePixels before = showRamp();
    const QString path = inHome(QStringLiteral("rubbish.jpg"));
    writeFile(path, "no picture at all");
    expectWarning(QStringLiteral("No JPEG, PNG or TIFF picture in %1").arg(path));
    {
        const MessageBoxAnswer box(QMessageBox::Ok);
        window.openImage(path);
    }
    EXPECT_TRUE(picturesNear("screen", screenOnceLike(before), before));
}

// If a file is missing, the open image is opened again, and opening fits the image to the window.
TEST_F(MainWindowScreen, MissingFileFitsTheOpenImageAgain)
{
    startEven();
    showRamp();
    expectWarning(QStringLiteral("missing.png"));
    window.openImage(inHome(QStringLiteral("missing.png")));
    EXPECT_GT(preview().scale(), 1.5F);
}

TEST_F(MainWindowScreen, SavingLeavesTheScreenUnchanged)
{
    startEven();
    const BytePixels before = showRamp();
    window.saveImage(inHome(QStringLiteral("saved.png")));
    ASSERT_TRUE(repaintAndWait(preview()));
    EXPECT_TRUE(picturesNear("screen", screenOnceLike(before), before));
}

// The histogram of 16-bit images is also that of the preview, which has 8 bits.
TEST_F(MainWindowScreen, OpeningAnImageSetsTheHistogramOfTheCurvesPanel)
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
