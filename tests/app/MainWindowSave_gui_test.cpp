// SPDX-License-Identifier: MIT
// Saving images from the window.
#include "tests/app/FilesTest.h"

#include "ui/panels/Mixer.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QMenu>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using namespace grisal::test;

struct Weights {
    double r;
    double g;
    double b;
};

/// One 8-bit level in the samples that GraphicsMagick reads.
constexpr double level = 257;

constexpr Weights triX{64 / 255.0, 89 / 255.0, 102 / 255.0};

/// The concatenated quantisation tables of a JPEG file.
QByteArray quantisationTables(const QString &path)
{
    constexpr char table = '\xdb';
    constexpr char startOfScan = '\xda';
    const QByteArray file = contentsOf(path);
    QByteArray tables;
    // A segment consists of 0xff, its marker, a length that includes itself, and its contents.
    for (qsizetype segment = 2; segment + 4 <= file.size() && file[segment + 1] != startOfScan;) {
        const qsizetype length = qFromBigEndian<quint16>(file.constData() + segment + 2);
        if (file[segment + 1] == table) {
            tables += file.mid(segment + 4, length - 2);
        }
        segment += 2 + length;
    }
    return tables;
}

class MainWindowSave : public FilesTest
{
protected:
    void chooseTriX()
    {
        auto &presets = child<QComboBox>(*window.findChild<Mixer *>(), "comboPresets");
        // Opening an image resets the look but not the preset box, so another preset is selected first.
        presets.setCurrentIndex(0);
        presets.setCurrentText(QStringLiteral("Rochester Tri-X"));
    }

    /// The largest difference between a saved file's samples and the weighted sum of the source's samples.
    static double distanceFromGrey(const Samples16 &saved, const Samples16 &source, const Weights &weights)
    {
        if (saved.size() != source.size() || saved.empty()) {
            return std::numeric_limits<double>::infinity();
        }
        double worst = 0;
        for (std::size_t i = 0; i < source.size(); i += 3) {
            const double grey = source[i] * weights.r + source[i + 1] * weights.g + source[i + 2] * weights.b;
            for (std::size_t c = 0; c < 3; ++c) {
                worst = std::max(worst, std::abs(saved[i + c] - std::min(grey, 65535.0)));
            }
        }
        return worst;
    }

    /// Opens `source`, selects a look, saves as `target` and expects the look in an image of the same depth.
    void expectSavedWithTriX(const QString &source, const QString &target, int depth)
    {
        openWithDialog(source);
        chooseTriX();
        saveWithDialog(target);
        EXPECT_EQ(bitsPerChannel(target), depth);
        EXPECT_LE(distanceFromGrey(samplesOf(target), samplesOf(source), triX), level);
    }
};

constexpr int width = 45;
constexpr int height = 31;

TEST_F(MainWindowSave, TiffOf16BitsIsSavedAsTiffOf16Bits)
{
    start();
    expectSavedWithTriX(makePicture(QStringLiteral("a.tif"), width, height, 16, fine), inHome(QStringLiteral("b.tif")),
                        16);
}

TEST_F(MainWindowSave, PngOf8BitsIsSavedAsPngOf8Bits)
{
    start();
    expectSavedWithTriX(makePicture(QStringLiteral("a.png"), width, height), inHome(QStringLiteral("b.png")), 8);
}

TEST_F(MainWindowSave, JpegIsSavedAsPngOf8Bits)
{
    start();
    expectSavedWithTriX(makePicture(QStringLiteral("a.jpg"), width, height), inHome(QStringLiteral("b.png")), 8);
}

TEST_F(MainWindowSave, SavedImageHasTheSizeOfTheSource)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.jpg"), width, height));
    window.saveImage(inHome(QStringLiteral("b.jpg")));
    grisal::graphics::LumioImage saved;
    ASSERT_TRUE(saved.read(inHome(QStringLiteral("b.jpg"))));
    EXPECT_EQ(saved.width(), width);
    EXPECT_EQ(saved.height(), height);
}

TEST_F(MainWindowSave, JpegIsWrittenWithQuality90)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.jpg"), width, height));
    const QString saved = inHome(QStringLiteral("b.jpg"));
    window.saveImage(saved);
    const auto tablesOfQuality = [&](unsigned quality) {
        const QString again = inHome(QStringLiteral("again.jpg"));
        Magick::Image image(saved.toStdString());
        image.quality(quality);
        image.write(again.toStdString());
        return quantisationTables(again);
    };
    const QByteArray tables = quantisationTables(saved);
    EXPECT_FALSE(tables.isEmpty());
    EXPECT_EQ(tables, tablesOfQuality(90));
    EXPECT_NE(tables, tablesOfQuality(89));
    EXPECT_NE(tables, tablesOfQuality(91));
}

TEST_F(MainWindowSave, SavingWithoutAnImageShowsAStatusAndWritesNothing)
{
    start();
    expectWarning(QStringLiteral("MainWindow::saveImage(): Image is Null"));
    saveWithDialog(inHome(QStringLiteral("a.png")));
    EXPECT_EQ(status(), "No image");
    EXPECT_FALSE(QFile::exists(inHome(QStringLiteral("a.png"))));
}

TEST_F(MainWindowSave, FinalRenderingWithoutAnImageFails)
{
    start();
    expectWarning(QStringLiteral("The picture could not be rendered. No picture is open"));
    window.slotFinalRendering();
    EXPECT_EQ(status(), "The picture could not be rendered. Nothing was saved; the log contains the reason.");
}

TEST_F(MainWindowSave, CancelledSaveAsShowsAStatusForTwoSeconds)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), width, height));
    expectWarning(QStringLiteral("MainWindow::saveImage(): Invalid filename"));
    saveWithDialog({});
    EXPECT_EQ(status(), "No filename");
    QElapsedTimer shown;
    shown.start();
    EXPECT_TRUE(QTest::qWaitFor([this] { return status().empty(); }, 4000));
    EXPECT_GE(shown.elapsed(), 1500);
}

TEST_F(MainWindowSave, SaveWithoutACurrentPathDoesNothing)
{
    start();
    trigger(window, "actionSave");
    EXPECT_EQ(status(), "");
}

TEST_F(MainWindowSave, SaveToARemovedFileDoesNothing)
{
    start();
    const QString path = makePicture(QStringLiteral("a.png"), width, height);
    openWithDialog(path);
    QFile::remove(path);
    trigger(window, "actionSave");
    EXPECT_EQ(status(), "");
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(MainWindowSave, SaveAsksBeforeReplacingAFile)
{
    start();
    const QString path = makePicture(QStringLiteral("a.b.png"), width, height);
    const Samples16 source = samplesOf(path);
    openWithDialog(path);
    chooseTriX();
    MessageBoxAnswer box(QMessageBox::Ok);
    trigger(window, "actionSave");
    EXPECT_EQ(box.title, QStringLiteral("Overwrite?"));
    EXPECT_EQ(box.text, QStringLiteral("File a already exists.\n Do you want to replace it?"));
    EXPECT_EQ(box.informativeText, path) << "the picture in the window may be another one of the same name";
    EXPECT_EQ(box.buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(box.defaultButton, QMessageBox::Ok);
    EXPECT_LE(distanceFromGrey(samplesOf(path), source, triX), level);
}

TEST_F(MainWindowSave, SaveReplacesNothingOnCancel)
{
    start();
    const QString path = makePicture(QStringLiteral("a.png"), width, height);
    const QByteArray before = contentsOf(path);
    openWithDialog(path);
    const MessageBoxAnswer box(QMessageBox::Cancel);
    trigger(window, "actionSave");
    EXPECT_EQ(contentsOf(path), before);
}

// Save writes to the path of the last dialog, even after another image is opened from the Recent menu.
TEST_F(MainWindowSave, SaveAsksAboutTheFileOfTheLastDialog)
{
    start();
    openWithDialog(makePicture(QStringLiteral("a.png"), width, height));
    openWithDialog(makePicture(QStringLiteral("b.png"), width, height));
    child<QMenu>(window, "menuRecent").actions()[1]->trigger();
    MessageBoxAnswer box(QMessageBox::Cancel);
    trigger(window, "actionSave");
    EXPECT_EQ(box.text, QStringLiteral("File b already exists.\n Do you want to replace it?"));
}

TEST_F(MainWindowSave, SaveWritesTheShownImageToThePathOfTheLastDialog)
{
    start();
    const QString shown = makePicture(QStringLiteral("a.png"), width, height);
    const QString chosen = makePicture(QStringLiteral("b.png"), height, width, 8, fine);
    const Samples16 source = samplesOf(shown);
    const QByteArray before = contentsOf(shown);
    openWithDialog(shown);
    openWithDialog(chosen);
    child<QMenu>(window, "menuRecent").actions()[1]->trigger();
    ASSERT_EQ(title(), QStringLiteral("Lumio Grisal (Alpha) - a.png %1x%2").arg(width).arg(height).toStdString());
    chooseTriX();
    const MessageBoxAnswer box(QMessageBox::Ok);
    trigger(window, "actionSave");
    EXPECT_EQ(contentsOf(shown), before);
    EXPECT_LE(distanceFromGrey(samplesOf(chosen), source, triX), level);
}

// The file dialog has already asked.
TEST_F(MainWindowSave, SaveAsReplacesAFileWithoutAnotherQuestion)
{
    start();
    const QString source = makePicture(QStringLiteral("a.png"), width, height);
    const QString target = makePicture(QStringLiteral("b.png"), 5, 5);
    openWithDialog(source);
    chooseTriX();
    MessageBoxAnswer box(QMessageBox::Yes);
    saveWithDialog(target);
    EXPECT_EQ(box.title, QStringLiteral("Save image"));
    EXPECT_LE(distanceFromGrey(samplesOf(target), samplesOf(source), triX), level);
}

TEST_F(MainWindowSave, SavedImageIsNotAddedToTheRecentImages)
{
    start();
    const QString source = makePicture(QStringLiteral("a.png"), width, height);
    openWithDialog(source);
    QDir().mkpath(inHome(QStringLiteral("elsewhere")));
    saveWithDialog(inHome(QStringLiteral("elsewhere/b.png")));
    ASSERT_TRUE(QFile::exists(inHome(QStringLiteral("elsewhere/b.png"))));
    EXPECT_EQ(storedRecent(), QStringList(source));
    EXPECT_EQ(QSettings(QStringLiteral("grisal.example"), QStringLiteral("Quillmark"))
                  .value(QStringLiteral("lastDirectory"))
                  .toString(),
              homePath());
}

TEST_F(MainWindowSave, UnwritablePathShowsAStatusAndKeepsTheTitle)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), width, height));
    const QString path = inHome(QStringLiteral("no such folder/b.png"));
    expectWarning(QStringLiteral("Cannot save %1: ").arg(path));
    window.saveImage(path);
    EXPECT_EQ(status(), "Cannot save b.png: the file cannot be reached (No such file or directory)");
    EXPECT_EQ(title(), QStringLiteral("Lumio Grisal (Alpha) - a.png %1x%2").arg(width).arg(height).toStdString());
}

TEST_F(MainWindowSave, FailedRenderingWritesNoFile)
{
    // A window that was never shown has no GL context.
    window.openImage(makePicture(QStringLiteral("a.png"), width, height));
    expectWarning(QStringLiteral("The picture could not be rendered."));
    window.saveImage(inHome(QStringLiteral("b.png")));
    EXPECT_EQ(status(), "The picture could not be rendered. Nothing was saved; the log contains the reason.");
    EXPECT_FALSE(QFile::exists(inHome(QStringLiteral("b.png"))));
}

TEST_F(MainWindowSave, RepeatedSavingWithNeutralSettingsChangesNothing)
{
    start();
    const auto grey = [](int x, int y) {
        const auto value = static_cast<std::uint16_t>((x * 7 + y * 3) % 256 * 257);
        return Samples{value, value, value};
    };
    const QString first = makePicture(QStringLiteral("a.png"), width, height, 8, grey);
    const Samples16 source = samplesOf(first);
    window.openImage(first);
    for (int i = 0; i < 3; ++i) {
        const QString next = inHome(QStringLiteral("%1.png").arg(i));
        window.saveImage(next);
        window.openImage(next);
        EXPECT_EQ(samplesOf(next), source) << i;
    }
}

TEST_F(MainWindowSave, ImagesOfOneToThreePixelsAreSaved)
{
    start();
    for (int side = 1; side <= 3; ++side) {
        const QString source = makePicture(QStringLiteral("%1.png").arg(side), side, side);
        const QString target = inHome(QStringLiteral("saved%1.png").arg(side));
        window.openImage(source);
        chooseTriX();
        window.saveImage(target);
        EXPECT_LE(distanceFromGrey(samplesOf(target), samplesOf(source), triX), level) << side;
    }
}

} // namespace
