// SPDX-License-Identifier: MIT
// Files that are dragged onto the window.
#include "tests/app/FilesTest.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QUrl>

namespace
{

using namespace grisal::test;

class MainWindowDrop : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        if (!IsSkipped()) {
            start();
        }
    }

    /// Drags files onto the preview; returns whether the window accepts them.
    bool dragUrls(const QList<QUrl> &urls)
    {
        m_data.setUrls(urls);
        QDragEnterEvent event(m_place, Qt::CopyAction, &m_data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&window, &event);
        return event.isAccepted();
    }

    bool drag(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths) {
            urls << QUrl::fromLocalFile(path);
        }
        return dragUrls(urls);
    }

    void drop(const QStringList &paths)
    {
        ASSERT_TRUE(drag(paths));
        QDropEvent event(m_place, Qt::CopyAction | Qt::MoveAction, &m_data, Qt::LeftButton, Qt::ShiftModifier);
        event.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&window, &event);
        EXPECT_TRUE(event.isAccepted());
        // After a move, the other program would delete the files.
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
    }

    bool titleBecomes(const QString &end)
    {
        return QTest::qWaitFor([&] { return window.windowTitle().endsWith(end); });
    }

private:
    const QPoint m_place{100, 100};
    QMimeData m_data;
};

TEST_F(MainWindowDrop, OpensImagesOfAllFormats)
{
    for (const char *name : {"a.jpg", "b.png", "c.tif"}) {
        drop({makePicture(QString::fromLatin1(name), 30, 20)});
        EXPECT_TRUE(titleBecomes(QString::fromLatin1(name) + QStringLiteral(" 30x20")));
    }
}

// As a choice from the Recent menu does.
TEST_F(MainWindowDrop, KeepsThePathThatSaveWritesTo)
{
    const QString dialog = makePicture(QStringLiteral("a.png"), 30, 20);
    openWithDialog(dialog);
    drop({makePicture(QStringLiteral("b.png"), 24, 16)});
    EXPECT_TRUE(titleBecomes(QStringLiteral("b.png 24x16")));
    EXPECT_EQ(storedRecent(), QStringList(dialog));
}

TEST_F(MainWindowDrop, OpensTheFirstOfSeveralImagesAndShowsAMessage)
{
    const QString first = makePicture(QStringLiteral("a.png"), 30, 20);
    drop({first, makePicture(QStringLiteral("b.png"), 24, 16)});
    EXPECT_TRUE(titleBecomes(QStringLiteral("a.png 30x20")));
    EXPECT_EQ(child<QStatusBar>(window, "statusbar").currentMessage(),
              QStringLiteral("Only the first of the 2 pictures was opened"));
}

TEST_F(MainWindowDrop, DamagedImageShowsTheBoxOfAnOpenedOne)
{
    const QString damaged = inHome(QStringLiteral("damaged.jpg"));
    writeFile(damaged, QByteArray::fromHex("ffd8ffe000104a464946"));
    allowWarning(QStringLiteral("damaged.jpg"));
    MessageBoxAnswer box(QMessageBox::Ok);
    drop({damaged, makePicture(QStringLiteral("a.png"), 30, 20)});
    QTRY_COMPARE(box.text, QStringLiteral("Cannot load %1.").arg(damaged));
    EXPECT_TRUE(child<QStatusBar>(window, "statusbar").currentMessage().isEmpty());
}

TEST_F(MainWindowDrop, SkipsFilesThatAreNoImages)
{
    const QString text = inHome(QStringLiteral("text.png"));
    writeFile(text, "no picture");
    drop({text, makePicture(QStringLiteral("a.png"), 30, 20)});
    EXPECT_TRUE(titleBecomes(QStringLiteral("a.png 30x20")));
}

TEST_F(MainWindowDrop, RefusesWhatIsNoImage)
{
    const QString text = inHome(QStringLiteral("text.png"));
    writeFile(text, "no picture");
    EXPECT_FALSE(drag({text}));
    EXPECT_FALSE(drag({homePath()}));
    EXPECT_FALSE(drag({inHome(QStringLiteral("missing.png"))}));
    EXPECT_FALSE(dragUrls({QUrl(QStringLiteral("https://grisal.example/a.png"))}));
    EXPECT_FALSE(dragUrls({}));
}

} // namespace
