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

/// Takes down what the status bar and the cursor were at each paint of the status bar.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QStatusBar &statusBar, const QProgressBar &progressBar)
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

    void expectNothingShown()
    {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(progressBar().isVisible());
        EXPECT_EQ(status(), "");
    }
};

TEST_F(BusyNotice, ReadingIsShown)
{
    const QString path = makePicture(QStringLiteral("a.png"), 61, 47);
    const PaintWatch watch(statusBar(), progressBar());
    window.openImage(path);
    EXPECT_EQ(watch.texts, QStringList("Reading a.png"));
    EXPECT_EQ(watch.barsSeen, 1);
    expectNothingShown();
}

TEST_F(BusyNotice, RenderingAndWritingAreShown)
{
    window.openImage(makePicture(QStringLiteral("a.png"), 2052, 40));
    const PaintWatch watch(statusBar(), progressBar());
    window.saveImage(inHome(QStringLiteral("b.png")));
    ASSERT_GE(watch.texts.size(), 2);
    EXPECT_EQ(watch.texts.first(), "Rendering tile 1 of 4");
    EXPECT_EQ(watch.texts.last(), "Writing b.png");
    EXPECT_EQ(watch.barsSeen, watch.texts.size());
    expectNothingShown();
}

TEST_F(BusyNotice, TheProgressBarIsPaintedOnTheScreen)
{
    QImage shown;
    const auto lookAtIt = [&] { QGuiApplication::primaryScreen()->grabWindow(0).toImage().swap(shown); };
    lookAtIt();
    const QPoint corner = progressBar().mapToGlobal(QPoint(0, 0));
    const QRect place(corner, progressBar().size());
    const QImage before = shown.copy(place);
    QObject::connect(&statusBar(), &QStatusBar::messageChanged, &window, [&](const QString &text) {
        if (text.isEmpty() && shown.copy(place) == before) {
            lookAtIt(); // the work is over, and no event has been processed: what is on the screen was painted by it
        }
    });
    window.openImage(makePicture(QStringLiteral("a.png"), 61, 47));
    EXPECT_NE(shown.copy(place), before);
}

// The filters then have the sizes of tiles, and the preview must not take part in that.
TEST_F(BusyNotice, APreviewThatWantsToBePaintedDoesNotSpoilTheFile)
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

TEST_F(BusyNotice, NoEventIsProcessedMeanwhile)
{
    const QString path = makePicture(QStringLiteral("a.png"), 300, 200);
    int events = 0;
    QTimer::singleShot(0, &window, [&] { ++events; });
    window.openImage(path);
    window.saveImage(inHome(QStringLiteral("b.tif")));
    EXPECT_EQ(events, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return events == 1; }));
}

TEST_F(BusyNotice, IsOverWhenSomethingIsToldOfTheWork)
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
    expectNothingShown();
}

TEST_F(BusyNotice, WhatIsToldAtTheEndStays)
{
    expectWarning(QStringLiteral("The name ends in none of .jpg, .jpeg, .png, .tif and .tiff"));
    window.openImage(makePicture(QStringLiteral("a.png"), 8, 8));
    window.saveImage(inHome(QStringLiteral("b.xyz")));
    EXPECT_TRUE(status().starts_with("Cannot save ")) << status();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
