// SPDX-License-Identifier: MIT
// What the status bar of the window shows while no job runs.
#include "tests/app/FilesTest.h"

#include "app/UserGuide.h"
#include "ui/frames/CurveFrame.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTextDocument>

namespace
{

using namespace grisal::test;

class MainWindowStatus : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        if (!IsSkipped()) {
            start();
        }
    }

    QStatusBar &statusBar() { return child<QStatusBar>(window, "statusbar"); }
    QString message() { return statusBar().currentMessage(); }
    QLabel &label(const char *name) { return child<QLabel>(window, name); }

    void open(const QString &path) { window.openImage(path); }

    static void moveMouse(QWidget &widget, QPointF place)
    {
        QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(&widget, &move);
    }
};

TEST_F(MainWindowStatus, HintNamesTheShortcutOfOpenUntilAPictureIsOpen)
{
    EXPECT_EQ(label("labelHint").text(), QStringLiteral("Ctrl+O opens a picture"));
    EXPECT_TRUE(label("labelHint").isVisible());
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    EXPECT_TRUE(label("labelHint").text().isEmpty());
}

TEST_F(MainWindowStatus, ScaleOfThePlaceholderIsNotShown)
{
    EXPECT_TRUE(label("labelScale").text().isEmpty());
    trigger(window, "actionZoomIn");
    EXPECT_TRUE(label("labelScale").text().isEmpty());
}

TEST_F(MainWindowStatus, ScaleFollowsTheView)
{
    open(makePicture(QStringLiteral("a.png"), 600, 400));
    const int fitted = preview().percentOfImage();
    EXPECT_LT(fitted, 100);
    EXPECT_EQ(label("labelScale").text(), QStringLiteral("%1 %").arg(fitted));
    trigger(window, "actionActualPixels");
    EXPECT_EQ(label("labelScale").text(), QStringLiteral("100 %"));
    trigger(window, "actionZoomIn");
    EXPECT_EQ(label("labelScale").text(), QStringLiteral("104 %"));
    EXPECT_FALSE(label("labelDownscaling").isVisible());
}

TEST_F(MainWindowStatus, ScaleOfADownscaledPreviewCountsPixelsOfTheFile)
{
    open(makePicture(QStringLiteral("a.png"), 4100, 8));
    trigger(window, "actionActualPixels");
    EXPECT_EQ(label("labelScale").text(), QStringLiteral("50 %"));
    EXPECT_TRUE(label("labelDownscaling").isVisible());
    EXPECT_EQ(label("labelDownscaling").text(), QStringLiteral("Preview 1:2"));
}

TEST_F(MainWindowStatus, SaveIsConfirmedWithTheNameInTheStatusBarAndTheLog)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    window.saveImage(inHome(QStringLiteral("b.png")));
    EXPECT_EQ(message(), QStringLiteral("Saved b.png"));
    EXPECT_TRUE(log.debugs().contains(QStringLiteral("Saved ") + inHome(QStringLiteral("b.png"))));
}

TEST_F(MainWindowStatus, UnknownExtensionIsReportedBeforeTheRender)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    expectWarning(QStringLiteral("Cannot save ") + inHome(QStringLiteral("b.xyz")));
    window.saveImage(inHome(QStringLiteral("b.xyz")));
    EXPECT_EQ(message(), QStringLiteral("Cannot save b.xyz: the name has to end in .jpg, .jpeg, .png, .tif or .tiff"));
    EXPECT_FALSE(log.debugs().contains(QStringLiteral("(INFO) Begin Rendering Loop")));
    window.saveImage(inHome(QStringLiteral("b.png")));
    EXPECT_TRUE(log.debugs().contains(QStringLiteral("(INFO) Begin Rendering Loop")));
}

TEST_F(MainWindowStatus, LastMessageStaysAsToolTip)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    window.saveImage(inHome(QStringLiteral("<b>&amp;.png")));
    statusBar().clearMessage();
    QTextDocument tip;
    tip.setHtml(statusBar().toolTip());
    EXPECT_EQ(tip.toPlainText(), QStringLiteral("Saved <b>&amp;.png"));
}

TEST_F(MainWindowStatus, ShowsTheValuesUnderTheMouseInTheCurveEditor)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    trigger(window, "actionCurves");
    auto &frame = child<CurveFrame>(*window.findChild<Curves *>(), "frameCurve");
    const QPointF quarter = QPointF(frame.contentsRect().width(), frame.contentsRect().height()) / 4;
    EXPECT_TRUE(frame.hasMouseTracking());
    moveMouse(frame, quarter);
    EXPECT_EQ(message(), QStringLiteral("In 64, out 191"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&frame, &leave);
    EXPECT_TRUE(message().isEmpty());
}

TEST_F(MainWindowStatus, ShowsTheStrengthUnderTheMouseInTheGrainEditor)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    trigger(window, "actionGrain");
    auto &frame = child<CurveFrame>(*window.findChild<Grain *>(), "frameCurve");
    moveMouse(frame, QPointF(frame.contentsRect().width(), frame.contentsRect().height()) / 4);
    EXPECT_EQ(message(), QStringLiteral("Tone 64, strength 75 %"));
}

// The mouse may be over the curve while Ctrl+S is pressed.
TEST_F(MainWindowStatus, MouseMovesDoNotReplaceAMessage)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    trigger(window, "actionCurves");
    auto &frame = child<CurveFrame>(*window.findChild<Curves *>(), "frameCurve");
    window.saveImage(inHome(QStringLiteral("b.png")));
    moveMouse(frame, QPointF(10, 10));
    EXPECT_EQ(message(), QStringLiteral("Saved b.png"));
    statusBar().clearMessage();
    moveMouse(frame, QPointF(11, 10));
    EXPECT_TRUE(message().startsWith(QStringLiteral("In ")));
}

TEST_F(MainWindowStatus, ShowsThatAWeightCountsWithTheNextChangeOfLuma)
{
    open(makePicture(QStringLiteral("a.png"), 30, 20));
    child<QSlider>(window, "sliderR").setValue(100);
    EXPECT_EQ(message(),
              QStringLiteral("Takes effect with the next change of Luma, which shifts all three by the same amount"));
    child<QSlider>(window, "sliderLuma").setValue(200);
    EXPECT_TRUE(message().isEmpty());
}

TEST_F(MainWindowStatus, F1ShowsTheGuide)
{
    QTest::keyClick(&window, Qt::Key_F1);
    const auto *guide = window.findChild<UserGuide *>();
    ASSERT_NE(guide, nullptr);
    EXPECT_TRUE(guide->isVisible());
}

TEST_F(MainWindowStatus, SaveAsProposesTheNameOfTheOpenPictureWithBw)
{
    for (const auto &[name, proposed] : {std::pair{"a.b.png", "a.b-bw.png"}, {"c.TIF", "c-bw.TIF"}}) {
        open(makePicture(QString::fromLatin1(name), 30, 20));
        FileDialogAnswer cancel({});
        expectWarning(QStringLiteral("Invalid filename"));
        trigger(window, "actionSave_As");
        EXPECT_EQ(cancel.proposedName.toStdString(), proposed);
    }
}

TEST_F(MainWindowStatus, SaveAsProposesAnExtensionForANameWithoutOne)
{
    ASSERT_TRUE(QFile::rename(makePicture(QStringLiteral("a.tif"), 30, 20), inHome(QStringLiteral("a"))));
    open(inHome(QStringLiteral("a")));
    FileDialogAnswer cancel({});
    expectWarning(QStringLiteral("Invalid filename"));
    trigger(window, "actionSave_As");
    EXPECT_EQ(cancel.proposedName, QStringLiteral("a-bw.tif"));
}

} // namespace
