// SPDX-License-Identifier: MIT
// Images of every format, depth and size are opened, given a look and saved.
#include "tests/app/FilesTest.h"
#include "tests/graphics/files/MetadataFiles.h"

#include "ui/panels/Mixer.h"

#include <QComboBox>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using namespace grisal::test;

struct Case {
    const char *extension;
    int depth; ///< bits per channel; 0 if the format does not contain it
    int width;
    int height;
    double tolerance; ///< in 65536 levels

    friend std::ostream &operator<<(std::ostream &stream, const Case &each)
    {
        return stream << each.extension << ", " << each.depth << " bits, " << each.width << " x " << each.height;
    }
};

/// One 8-bit level; the rounding of half floats; the loss of JPEG in smooth colours.
constexpr double oneLevel = 257;
constexpr double halfFloats = 64;
constexpr double jpegLoss = 4 * 257;

Samples soft(int x, int y)
{
    const auto byte = [](int value) { return static_cast<std::uint16_t>(value * 257); };
    return {byte(60 + x * 2), byte(220 - x - y), byte(90 + y * 3)};
}

class MainWindowFormats : public FilesTest, public testing::WithParamInterface<Case>
{
protected:
    QString makeSource(const QString &stem)
    {
        const Case &now = GetParam();
        const QString name = stem + QLatin1Char('.') + QString::fromLatin1(now.extension);
        const bool jpeg = now.depth == 0;
        return makePicture(name, now.width, now.height, jpeg ? 8 : now.depth,
                           jpeg            ? soft
                           : now.depth > 8 ? fine
                                           : colourful);
    }

    QString target() const { return inHome(QStringLiteral("saved.%1").arg(QLatin1String(GetParam().extension))); }

    void chooseLuma()
    {
        child<QComboBox>(*window.findChild<Mixer *>(), "comboPresets").setCurrentText(QStringLiteral("Luma"));
    }

    /// The largest difference between the saved samples and the weighted sum of the source's samples.
    static double distanceFromLuma(const Samples16 &saved, const Samples16 &source)
    {
        if (saved.size() != source.size() || saved.empty()) {
            return std::numeric_limits<double>::infinity();
        }
        double worst = 0;
        for (std::size_t i = 0; i < source.size(); ++i) {
            const Samples::value_type *pixel = &source[i - i % 3];
            const double grey = (pixel[0] * 77.0 + pixel[1] * 150.0 + pixel[2] * 28.0) / 255;
            worst = std::max(worst, std::abs(saved[i] - grey));
        }
        return worst;
    }
};

TEST_P(MainWindowFormats, SavedImageHasLookSizeAndDepthAndOpensAgain)
{
    start();
    const QString source = makeSource(QStringLiteral("source"));
    window.openImage(source);
    chooseLuma();
    saveWithDialog(target());
    EXPECT_EQ(bitsPerChannel(target()), GetParam().depth);
    EXPECT_LE(distanceFromLuma(samplesOf(target()), samplesOf(source)), GetParam().tolerance);
    window.openImage(target());
    EXPECT_EQ(title(), QStringLiteral("Lumio Grisal (Alpha) - %1 %2x%3")
                           .arg(QFileInfo(target()).fileName())
                           .arg(GetParam().width)
                           .arg(GetParam().height)
                           .toStdString());
}

INSTANTIATE_TEST_SUITE_P(Formats, MainWindowFormats,
                         testing::Values(Case{"png", 8, 61, 47, oneLevel}, Case{"png", 16, 61, 47, halfFloats},
                                         Case{"tif", 8, 61, 47, oneLevel}, Case{"tif", 16, 61, 47, halfFloats},
                                         Case{"jpg", 0, 61, 47, jpegLoss}));

INSTANTIATE_TEST_SUITE_P(SmallPictures, MainWindowFormats,
                         testing::Values(Case{"png", 8, 1, 1, oneLevel}, Case{"png", 8, 3, 2, oneLevel},
                                         Case{"png", 8, 2, 3, oneLevel}, Case{"tif", 16, 1, 5, halfFloats},
                                         Case{"tif", 16, 5, 1, halfFloats}));

// A side of more than 2048 pixels is divided into four tiles: 4 side by side, 4 one above the other, 16 tiles.
INSTANTIATE_TEST_SUITE_P(TiledPictures, MainWindowFormats,
                         testing::Values(Case{"tif", 16, 2055, 6, halfFloats}, Case{"png", 16, 7, 2054, halfFloats},
                                         Case{"png", 8, 2049, 2055, oneLevel}));

class MainWindowRotatedImages : public FilesTest
{
protected:
    /// A photograph in portrait orientation as cameras store it: rotated.
    QString makeRotated(const QString &name)
    {
        const QString path = makePicture(name, 60, 40);
        Metadata metadata;
        metadata.exif["Exif.Image.Orientation"] = std::uint16_t{6};
        metadata.exif["Exif.Image.Model"] = "Box 1";
        metadata.profile = profileFor("RGB ");
        setMetadata(path, metadata);
        return path;
    }
};

TEST_F(MainWindowRotatedImages, HaveNormalisedOrientationInTitlePreviewAndLog)
{
    start();
    openWithDialog(makeRotated(QStringLiteral("a.jpg")));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.jpg 40x60");
    EXPECT_EQ(preview().previewWidth(), 40);
    EXPECT_EQ(preview().previewHeight(), 60);
    EXPECT_TRUE(log.contains(QStringLiteral("  width :     40")));
}

TEST_F(MainWindowRotatedImages, AreSavedWithNormalisedOrientationAndMetadata)
{
    start();
    openWithDialog(makeRotated(QStringLiteral("a.jpg")));
    for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
        const QString path = inHome(QString::fromLatin1(name));
        saveWithDialog(path);
        const Metadata saved = metadataIn(path);
        EXPECT_EQ(saved["Exif.Image.Model"], "Box 1") << name;
        EXPECT_EQ(saved["Exif.Image.Orientation"], "1") << name;
        EXPECT_EQ(saved["Exif.Photo.PixelYDimension"], "60") << name;
        EXPECT_EQ(saved.profile, profileFor("RGB ")) << name;
    }
    openWithDialog(makePicture(QStringLiteral("plain.jpg"), 30, 20));
    saveWithDialog(inHome(QStringLiteral("c.jpg")));
    // Only the look, which every saved image gets.
    const Metadata written = metadataIn(inHome(QStringLiteral("c.jpg")));
    EXPECT_TRUE(written.exif.empty() && written.iptc.empty() && written.profile.isEmpty());
    EXPECT_EQ(written.xmp.count(), 1);
    EXPECT_NE(written["Xmp.grisal.Look"], "");
}

class MainWindowManyPictures : public FilesTest
{
};

TEST_F(MainWindowManyPictures, LastOfFiftyImagesIsShownAndSaved)
{
    start();
    const QString wide = makePicture(QStringLiteral("wide.png"), 301, 40);
    const QString tall = makePicture(QStringLiteral("tall.tif"), 30, 203, 16);
    for (int i = 0; i < 25; ++i) {
        window.openImage(wide);
        trigger(window, "actionGrain");
        window.openImage(tall);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - tall.tif 30x203");
    EXPECT_FALSE(action("actionGrain").isChecked());
    window.saveImage(inHome(QStringLiteral("saved.tif")));
    EXPECT_EQ(samplesOf(inHome(QStringLiteral("saved.tif"))).size(), std::size_t{30} * 203 * 3);
}

TEST_F(MainWindowManyPictures, ImageCanBeSavedRepeatedlyOverItself)
{
    start();
    const auto grey = [](int x, int y) {
        const auto value = static_cast<std::uint16_t>((x * 7 + y * 3) % 256 * 257);
        return Samples{value, value, value};
    };
    const QString path = makePicture(QStringLiteral("a.tif"), 64, 48, 8, grey);
    const Samples16 source = samplesOf(path);
    openWithDialog(path);
    for (int i = 0; i < 3; ++i) {
        const MessageBoxAnswer box(QMessageBox::Ok);
        trigger(window, "actionSave");
        EXPECT_EQ(samplesOf(path), source) << i;
    }
    EXPECT_EQ(bitsPerChannel(path), 8);
}

TEST_F(MainWindowManyPictures, SavingToTheNameOfAFolderFailsAndKeepsTheFolder)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), 8, 4));
    const QString folder = inHome(QStringLiteral("b.png"));
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/inside")));
    expectWarning(QStringLiteral("Cannot save %1: ").arg(folder));
    window.saveImage(folder);
    EXPECT_EQ(status(), "Cannot save b.png: the name belongs to something other than a file");
    EXPECT_TRUE(QDir(folder + QStringLiteral("/inside")).exists());
}

} // namespace
