// SPDX-License-Identifier: MIT
#include "app/DesktopRequests.h"
#include "tests/support/GuiTest.h"

#include <QEventLoop>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWidget>

namespace
{

using namespace grisal::test;

class DesktopRequests : public GuiTest
{
protected:
    DesktopRequests()
    {
        QObject::connect(&requests, &grisal::DesktopRequests::signalOpen, &window,
                         [this](const QStringList &uris) { opened << uris; });
    }

    void SetUp() override
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// The colour of the screen in the middle of the window.
    QColor shownColour() const
    {
        const QPoint middle = window.mapToGlobal(window.rect().center());
        return window.screen()->grabWindow(0, middle.x(), middle.y(), 1, 1).toImage().pixelColor(0, 0);
    }

    void expectNothingOpensSoon()
    {
        QTest::qWait(300);
        EXPECT_EQ(opened.size(), 0);
    }

    bool opens(const QStringList &uris)
    {
        return QTest::qWaitFor([&] { return !opened.isEmpty(); }) && opened == QList<QStringList>{uris};
    }

    const QStringList a{QStringLiteral("file:///a")};
    const QStringList b{QStringLiteral("file:///b1"), QStringLiteral("file:///b2")};
    QList<QStringList> opened;
    QWidget window;
    grisal::DesktopRequests requests{window};
};

TEST_F(DesktopRequests, FilesAreOpenedAfterTheCallReturned)
{
    requests.add(b, {});
    EXPECT_EQ(opened.size(), 0);
    EXPECT_TRUE(opens(b));
}

TEST_F(DesktopRequests, WithoutFilesNothingIsOpened)
{
    requests.add({}, {});
    requests.add({QString(), QStringLiteral("")}, {});
    expectNothingOpensSoon();
}

TEST_F(DesktopRequests, AMinimisedOrHiddenWindowIsShown)
{
    window.showMinimized();
    requests.add({}, {});
    EXPECT_FALSE(window.isMinimized());
    window.hide();
    requests.add({}, {});
    EXPECT_TRUE(window.isVisible());
}

TEST_F(DesktopRequests, AMaximisedWindowStaysMaximised)
{
    window.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    requests.add({}, {});
    EXPECT_EQ(window.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowMaximized);
}

TEST_F(DesktopRequests, ACoveredWindowBecomesVisibleAndActive)
{
    window.setPalette(Qt::blue);
    QWidget other;
    other.setPalette(Qt::yellow);
    other.setGeometry(window.geometry());
    other.show();
    other.raise();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    ASSERT_TRUE(QTest::qWaitFor([this] { return shownColour() == QColor(Qt::yellow); }));
    requests.add({}, {});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(QTest::qWaitFor([this] { return shownColour() == QColor(Qt::blue); }));
}

TEST_F(DesktopRequests, FilesWaitForTheEndOfADialogWhichBecomesActive)
{
    QMessageBox dialog;
    dialog.setModal(true);
    dialog.show();
    requests.add(a, {});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    expectNothingOpensSoon();
    dialog.hide();
    EXPECT_TRUE(opens(a));
}

// The code that opened the dialog runs after its event loop, and must not find another image.
TEST_F(DesktopRequests, FilesWaitForTheEndOfTheLoopOfADialogThatIsHidden)
{
    QEventLoop program;
    QTimer::singleShot(0, &program, [&] {
        QEventLoop dialog;
        requests.add(a, {});
        QTimer::singleShot(300, &dialog, &QEventLoop::quit);
        dialog.exec();
        EXPECT_EQ(opened.size(), 0);
        QObject::connect(&requests, &grisal::DesktopRequests::signalOpen, &program, &QEventLoop::quit);
    });
    QTimer::singleShot(5000, &program, &QEventLoop::quit);
    program.exec();
    EXPECT_EQ(opened, QList<QStringList>{a});
}

TEST_F(DesktopRequests, FilesWaitForTheEndOfAMenu)
{
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(window.mapToGlobal(QPoint()));
    requests.add(a, {});
    expectNothingOpensSoon();
    menu.close();
    EXPECT_TRUE(opens(a));
}

TEST_F(DesktopRequests, OnlyTheNewestFilesAreOpened)
{
    requests.add(a, {});
    requests.add(b, {});
    EXPECT_TRUE(opens(b));
}

TEST_F(DesktopRequests, ARequestWithoutFilesKeepsThoseThatWait)
{
    requests.add(a, {});
    requests.add({}, {});
    EXPECT_TRUE(opens(a));
}

/// The activation token in the environment while a window is raised.
class TokenAtRaise : public QObject
{
public:
    QByteArray token;

protected:
    bool eventFilter(QObject * /*window*/, QEvent *event) override
    {
        if (event->type() == QEvent::ZOrderChange) {
            token = qgetenv("XDG_ACTIVATION_TOKEN");
        }
        return false;
    }
};

TEST_F(DesktopRequests, TheTokenIsInTheEnvironmentOnlyWhileTheWindowIsRaised)
{
    TokenAtRaise atRaise;
    window.installEventFilter(&atRaise);
    requests.add({}, QStringLiteral("token"));
    EXPECT_EQ(atRaise.token, QByteArray("token"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

} // namespace
