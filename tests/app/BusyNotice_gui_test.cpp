// SPDX-License-Identifier: MIT
// What the window shows while it reads, renders and writes.
#include "tests/app/FilesTest.h"

#include "tests/support/Screen.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>

namespace
{

using namespace grisal::test;

/// Records the status text and the cursor at each paint of the status bar.
class PaintRecorder : public QObject
{
public:
    explicit PaintRecorder(QStatusBar &statusBar, const QProgressBar &progressBar)
        : m_statusBar(statusBar), m_progressBar(progressBar)
    {
        statusBar.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const QCursor *cursor = QApplication::overrideCursor();
        if (event->type() == QEvent::Paint && cursor != nullptr && cursor->shape() == Qt::WaitCursor) {
            texts << m_statusBar.currentMessage();
            barsSeen += m_progressBar.isVisible() ? 1 : 0;
        }
        return false;
    }

    QStringList texts;
    int barsSeen = 0;

private:
    QStatusBar &m_statusBar;
    const QProgressBar &m_progressBar;
};

class BusyNotice : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        if (!IsSkipped()) {
            start();
            ASSERT_TRUE(repaintAndWait(preview()));
        }
    }

    QStatusBar &statusBar() { return child<QStatusBar>(window, "statusbar"); }
    QProgressBar &progressBar() { return child<QProgressBar>(window, "progressBar"); }

    void expectIdle(const std::string &message = {})
    {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(progressBar().isVisible());
        EXPECT_EQ(status(), message);
    }
};

TEST_F(BusyNotice, IsShownWhileReading)
{
    const QString path = makePicture(QStringLiteral("a.png"), 61, 47);
    const PaintRecorder recorder(statusBar(), progressBar());
    window.openImage(path);
    EXPECT_EQ(recorder.texts, QStringList("Reading a.png"));
    EXPECT_EQ(recorder.barsSeen, 1);
    expectIdle();
}

TEST_F(BusyNotice, IsShownWhileRenderingAndWriting)
{
    window.openImage(makePicture(QStringLiteral("a.png"), 2052, 40));
    const PaintRecorder recorder(statusBar(), progressBar());
    window.saveImage(inHome(QStringLiteral("b.png")));
    ASSERT_GE(recorder.texts.size(), 2);
    EXPECT_EQ(recorder.texts.first(), "Rendering tile 1 of 4");
    EXPECT_EQ(recorder.texts.last(), "Writing b.png");
    EXPECT_EQ(recorder.barsSeen, recorder.texts.size());
    expectIdle("Saved b.png");
}

TEST_F(BusyNotice, ProgressBarIsPaintedOnTheScreen)
{
    QImage shown;
    const auto grab = [&] { QGuiApplication::primaryScreen()->grabWindow(0).toImage().swap(shown); };
    grab();
    const QPoint corner = progressBar().mapToGlobal(QPoint(0, 0));
    const QRect place(corner, progressBar().size());
    const QImage before = shown.copy(place);
    QObject::connect(&statusBar(), &QStatusBar::messageChanged, &window, [&](const QString &text) {
        if (text.isEmpty() && shown.copy(place) == before) {
            grab(); // the work is finished and no event was processed, so the work itself has painted this
        }
    });
    window.openImage(makePicture(QStringLiteral("a.png"), 61, 47));
    EXPECT_NE(shown.copy(place), before);
}

// During a render the filters have the sizes of tiles; a repaint of the preview must not affect the result.
TEST_F(BusyNotice, PreviewRepaintDuringRenderingKeepsTheFileCorrect)
{
    const QString source = makePicture(QStringLiteral("a.png"), 2052, 40);
    window.openImage(source);
    trigger(window, "actionVignette");
    window.saveImage(inHome(QStringLiteral("right.png")));
    int paints = 0;
    QObject::connect(&statusBar(), &QStatusBar::messageChanged, &window, [&](const QString &text) {
        if (text.startsWith(QStringLiteral("Rendering"))) {
            preview().renderImage();
            ++paints;
        }
    });
    window.saveImage(inHome(QStringLiteral("b.png")));
    EXPECT_GE(paints, 1);
    EXPECT_EQ(samplesOf(inHome(QStringLiteral("b.png"))), samplesOf(inHome(QStringLiteral("right.png"))));
    EXPECT_EQ(samplesOf(source).size(), samplesOf(inHome(QStringLiteral("b.png"))).size());
}

TEST_F(BusyNotice, NoEventIsProcessedWhileReadingAndSaving)
{
    const QString path = makePicture(QStringLiteral("a.png"), 300, 200);
    int events = 0;
    QTimer::singleShot(0, &window, [&] { ++events; });
    window.openImage(path);
    window.saveImage(inHome(QStringLiteral("b.tif")));
    EXPECT_EQ(events, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return events == 1; }));
}

TEST_F(BusyNotice, EndsBeforeTheErrorBoxOpens)
{
    expectWarning(QStringLiteral("No JPEG, PNG or TIFF picture in "));
    writeFile(inHome(QStringLiteral("a.png")), "rubbish");
    bool cursorInBox = true;
    QTimer::singleShot(0, &window, [&] {
        cursorInBox = QApplication::overrideCursor() != nullptr;
        qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->accept();
    });
    window.openImage(inHome(QStringLiteral("a.png")));
    EXPECT_FALSE(cursorInBox);
    expectIdle();
}

TEST_F(BusyNotice, ErrorTextStaysInTheStatusBar)
{
    expectWarning(QStringLiteral("the name has to end in .jpg, .jpeg, .png, .tif or .tiff"));
    window.openImage(makePicture(QStringLiteral("a.png"), 8, 8));
    window.saveImage(inHome(QStringLiteral("b.xyz")));
    EXPECT_TRUE(status().starts_with("Cannot save ")) << status();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
