// SPDX-License-Identifier: MIT
// Opening images in the window.
#include "tests/app/FilesTest.h"

#include "tests/support/InaccessibleFolder.h"
#include "ui/frames/VFrame.h"
#include "ui/panels/Mixer.h"

#include <QComboBox>
#include <QFile>
#include <QMenu>

namespace
{

using namespace grisal::test;
using grisal::graphics::ColorRGB;
using grisal::graphics::MixerFilter;

class MainWindowOpen : public FilesTest
{
protected:
    /// An existing file that is not an image.
    QString makeRubbish(const QString &name)
    {
        writeFile(inHome(name), "no picture at all");
        return inHome(name);
    }

    void choose(const char *look)
    {
        child<QComboBox>(*window.findChild<Mixer *>(), "comboPresets").setCurrentText(QString::fromLatin1(look));
    }

    ColorRGB<float> weights() { return preview().parameters().get<MixerFilter>().weights; }

    const ColorRGB<float> neutral{1.0F / 3, 1.0F / 3, 1.0F / 3};
    const ColorRGB<float> luma{77 / 255.0F, 150 / 255.0F, 28 / 255.0F};
};

TEST_F(MainWindowOpen, OpenedImageIsShownWithNameAndSizeInTheTitle)
{
    start();
    openWithDialog(makePicture(QStringLiteral("a.png"), 300, 200));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 300x200");
    EXPECT_EQ(preview().previewWidth(), 300);
    EXPECT_EQ(preview().previewHeight(), 200);
}

TEST_F(MainWindowOpen, VignettePanelTakesTheProportionsOfTheImage)
{
    start();
    window.openImage(makePicture(QStringLiteral("upright.png"), 30, 40));
    const auto &frame = child<VFrame>(window, "frame");
    EXPECT_EQ(frame.heightForWidth(300), 300);
    window.openImage(makePicture(QStringLiteral("wide.png"), 40, 10));
    EXPECT_EQ(frame.heightForWidth(300), 75);
}

TEST_F(MainWindowOpen, PercentSignsInNamesAreShownLiterally)
{
    start();
    window.openImage(makePicture(QStringLiteral("50%3 off.png"), 8, 4));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - 50%3 off.png 8x4");
}

TEST_F(MainWindowOpen, FilesWithNonLatinNamesOpen)
{
    start();
    openWithDialog(makePicture(QStringLiteral("Größe 写真.png"), 8, 4));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - Größe 写真.png 8x4");
    EXPECT_EQ(storedRecent(), QStringList(inHome(QStringLiteral("Größe 写真.png"))));
}

TEST_F(MainWindowOpen, ImageOf16BitsIsShownWith8Bits)
{
    start();
    log.clear();
    window.openImage(makePicture(QStringLiteral("a.tif"), 40, 20, 16, fine));
    EXPECT_TRUE(log.contains(QStringLiteral("  depth:      16")));
    EXPECT_TRUE(log.contains(QStringLiteral("Element Type(GLUB):    true")));
}

TEST_F(MainWindowOpen, OpeningLogsADescriptionOfTheImage)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.jpg"), 40, 20));
    EXPECT_TRUE(log.contains(QStringLiteral(" ******** LumioImage ******** ")));
    EXPECT_TRUE(log.contains(QStringLiteral("  width :     40")));
}

TEST_F(MainWindowOpen, OpeningAnotherImageResetsPanelsAndActions)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), 40, 20));
    choose("Luma");
    trigger(window, "actionVignette");
    window.openImage(makePicture(QStringLiteral("b.png"), 20, 40));
    EXPECT_EQ(weights(), neutral);
    EXPECT_EQ(shownPanel(), "Mixer");
    EXPECT_FALSE(action("actionVignette").isChecked());
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - b.png 20x40");
}

TEST_F(MainWindowOpen, CancelledDialogChangesNothing)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), 40, 20));
    choose("Luma");
    openWithDialog({});
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 40x20");
    EXPECT_EQ(weights(), luma);
}

TEST_F(MainWindowOpen, OpenedImagesAreAddedToTheRecentImages)
{
    start();
    const QString a = makePicture(QStringLiteral("a.png"), 40, 20);
    const QString b = makePicture(QStringLiteral("b.png"), 40, 20);
    openWithDialog(a);
    openWithDialog(b);
    EXPECT_EQ(storedRecent(), (QStringList{b, a}));
}

TEST_F(MainWindowOpen, RecentMenuItemOpensItsImage)
{
    start();
    openWithDialog(makePicture(QStringLiteral("a.png"), 40, 20));
    openWithDialog(makePicture(QStringLiteral("b.png"), 20, 40));
    child<QMenu>(window, "menuRecent").actions()[1]->trigger();
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 40x20");
}

TEST_F(MainWindowOpen, MissingFileWithoutOpenImageShowsABox)
{
    start();
    choose("Luma");
    const QString path = inHome(QStringLiteral("missing.png"));
    expectWarning(path);
    MessageBoxAnswer box(QMessageBox::Ok);
    window.openImage(path);
    EXPECT_EQ(box.title, QStringLiteral("Open Image"));
    EXPECT_EQ(box.text, QStringLiteral("Cannot load %1.").arg(path));
    EXPECT_EQ(box.buttons, QMessageBox::Ok);
    EXPECT_EQ(title(), "Lumio Grisal (Alpha)");
    EXPECT_EQ(weights(), luma);
    EXPECT_TRUE(storedRecent().isEmpty());
}

// The open image is opened again under the requested name: the program has always treated recent images that were
// moved in this way.
TEST_F(MainWindowOpen, MissingFileReopensTheOpenImageUnderItsName)
{
    start();
    const QString a = makePicture(QStringLiteral("a.png"), 40, 20);
    openWithDialog(a);
    choose("Luma");
    trigger(window, "actionCurves");
    const QString path = inHome(QStringLiteral("missing.png"));
    expectWarning(path);
    window.openImage(path);
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - missing.png 40x20");
    EXPECT_EQ(preview().previewWidth(), 40);
    EXPECT_EQ(weights(), neutral);
    EXPECT_EQ(shownPanel(), "Mixer");
    EXPECT_FALSE(action("actionCurves").isChecked());
    EXPECT_EQ(storedRecent(), QStringList(a));
}

TEST_F(MainWindowOpen, InvalidFileShowsABoxAndChangesNothing)
{
    start();
    const QString a = makePicture(QStringLiteral("a.png"), 40, 20);
    openWithDialog(a);
    choose("Luma");
    trigger(window, "actionVignette");
    const QString path = makeRubbish(QStringLiteral("rubbish.png"));
    expectWarning(QStringLiteral("rubbish.png"));
    MessageBoxAnswer box(QMessageBox::Ok);
    window.openImage(path);
    EXPECT_EQ(box.text, QStringLiteral("Cannot load %1.").arg(path));
    EXPECT_EQ(box.informativeText, QStringLiteral("No JPEG, PNG or TIFF picture in %1").arg(path));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 40x20");
    EXPECT_EQ(weights(), luma);
    EXPECT_EQ(shownPanel(), "Vignette");
    EXPECT_TRUE(action("actionVignette").isChecked());
    EXPECT_EQ(storedRecent(), QStringList(a));
}

TEST_F(MainWindowOpen, OpenImageCanBeSavedAfterAnInvalidFile)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), 40, 20));
    expectWarning(QStringLiteral("rubbish.png"));
    {
        const MessageBoxAnswer box(QMessageBox::Ok);
        window.openImage(makeRubbish(QStringLiteral("rubbish.png")));
    }
    window.saveImage(inHome(QStringLiteral("saved.png")));
    EXPECT_EQ(samplesOf(inHome(QStringLiteral("saved.png"))).size(), std::size_t{40} * 20 * 3);
}

TEST_F(MainWindowOpen, FolderShowsTheBoxOfAnInvalidFile)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), 40, 20));
    QDir().mkpath(inHome(QStringLiteral("folder.png")));
    expectWarning(QStringLiteral("folder.png"));
    const MessageBoxAnswer box(QMessageBox::Ok);
    window.openImage(inHome(QStringLiteral("folder.png")));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 40x20");
}

TEST_F(MainWindowOpen, DanglingLinkShowsTheBoxOfAnInvalidFile)
{
    start();
    window.openImage(makePicture(QStringLiteral("a.png"), 40, 20));
    const QString link = inHome(QStringLiteral("link.png"));
    ASSERT_TRUE(QFile::link(inHome(QStringLiteral("gone.png")), link));
    expectWarning(link);
    const MessageBoxAnswer box(QMessageBox::Ok);
    window.openImage(link);
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 40x20");
}

// The file may exist: if it were treated as missing, the open image would get its name and Save would overwrite it.
TEST_F(MainWindowOpen, InaccessibleFileShowsABoxAndChangesNothing)
{
    start();
    const QString a = makePicture(QStringLiteral("a.png"), 40, 20);
    openWithDialog(a);
    choose("Luma");
    trigger(window, "actionVignette");
    QDir().mkpath(inHome(QStringLiteral("closed")));
    const QString path = makePicture(QStringLiteral("closed/b.png"), 20, 40);
    expectWarning(path);
    MessageBoxAnswer box(QMessageBox::Ok);
    {
        const InaccessibleFolder closed(inHome(QStringLiteral("closed")));
        window.openImage(path);
    }
    EXPECT_EQ(box.text, QStringLiteral("Cannot load %1.").arg(path));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 40x20");
    EXPECT_EQ(weights(), luma);
    EXPECT_EQ(shownPanel(), "Vignette");
    EXPECT_EQ(storedRecent(), QStringList(a));
}

TEST_F(MainWindowOpen, TruncatedJpegOpensWithAWarningInTheStatusBar)
{
    start();
    const QString path = makePicture(QStringLiteral("a.jpg"), 64, 64);
    const QByteArray whole = contentsOf(path);
    writeFile(path, whole.left(whole.size() / 2));
    expectWarning(QStringLiteral("Premature end of JPEG file"));
    window.openImage(path);
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.jpg 64x64");
    ASSERT_EQ(log.warnings().size(), 1);
    EXPECT_EQ(status(), log.warnings().first().toStdString());
}

TEST_F(MainWindowOpen, ImagesOfOneToThreePixelsOpen)
{
    start();
    for (int side = 1; side <= 3; ++side) {
        window.openImage(makePicture(QStringLiteral("%1.png").arg(side), side, side));
        EXPECT_EQ(preview().previewWidth(), side);
        EXPECT_EQ(preview().previewHeight(), side);
    }
}

} // namespace
