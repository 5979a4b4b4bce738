// SPDX-License-Identifier: MIT
#include "app/FileDealer.h"
#include "tests/support/GuiTest.h"
#include "tests/support/Modal.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>

#include <string>

namespace
{

using namespace grisal::test;

QSettings settings()
{
    return QSettings(QStringLiteral("grisal.example"), QStringLiteral("Quillmark"));
}

QStringList storedRecent()
{
    return settings().value(QStringLiteral("recentImages")).toStringList();
}

QString storedDirectory()
{
    return settings().value(QStringLiteral("lastDirectory")).toString();
}

void storeRecent(const QStringList &paths)
{
    settings().setValue(QStringLiteral("recentImages"), paths);
}

class FileDealerTest : public GuiTest
{
protected:
    /// Creates an empty file in a folder of the home directory; returns its path.
    QString makeFile(const QString &name, const QString &folder = QStringLiteral("pictures")) const
    {
        QDir().mkpath(inHome(folder));
        QFile file(inHome(folder + QLatin1Char('/') + name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    /// Opens an image as the window does: with the open dialog and then addToRecent().
    void open(const QString &path)
    {
        const FileDialogAnswer answer(path);
        EXPECT_EQ(dealer.openDialog(), path);
        dealer.addToRecent();
    }

    /// The visible items of the Recent menu as "text shortcut".
    QStringList shown() const
    {
        QStringList items;
        for (const QAction *action : menu.actions()) {
            if (action->isVisible()) {
                items << action->text() + QLatin1Char(' ') + action->shortcut().toString();
            }
        }
        return items;
    }

    FileDealer dealer;
    QMenu menu;
};

TEST_F(FileDealerTest, MenuGetsFiveHiddenItems)
{
    dealer.setUpRecentMenu(&menu);
    ASSERT_EQ(menu.actions().size(), 5);
    EXPECT_TRUE(shown().isEmpty());
    for (const QAction *action : menu.actions()) {
        EXPECT_EQ(action->parent(), &dealer);
    }
}

TEST_F(FileDealerTest, MenuShowsImagesOfAnEarlierRun)
{
    const QString path = makeFile(QStringLiteral("a.png"));
    storeRecent({path});
    dealer.setUpRecentMenu(&menu);
    EXPECT_EQ(shown(), QStringList(QStringLiteral("a.png Alt+1")));
    EXPECT_EQ(menu.actions()[0]->data().toString(), path);
}

TEST_F(FileDealerTest, AmpersandInAFileNameIsShownLiterally)
{
    const QString path = makeFile(QStringLiteral("Black & White.jpg"));
    storeRecent({path});
    dealer.setUpRecentMenu(&menu);
    EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("Black && White.jpg"));
    EXPECT_EQ(menu.actions()[0]->data().toString(), path);
}

TEST_F(FileDealerTest, CancelledSaveDialogReturnsEmptyPath)
{
    const FileDialogAnswer cancel({});
    EXPECT_TRUE(dealer.saveDialog().isEmpty());
}

TEST_F(FileDealerTest, InvalidSettingsAreIgnoredAndReplaced)
{
    settings().setValue(QStringLiteral("recentImages"), QByteArray("\0\xff\xfe rubbish", 10));
    settings().setValue(QStringLiteral("lastDirectory"), QStringList{QStringLiteral("a"), QStringLiteral("b")});
    dealer.setUpRecentMenu(&menu);
    EXPECT_TRUE(shown().isEmpty());
    const QString a = makeFile(QStringLiteral("a.png"));
    open(a);
    EXPECT_EQ(shown(), QStringList(QStringLiteral("a.png Alt+1")));
    EXPECT_EQ(storedDirectory(), inHome(QStringLiteral("pictures")));
}

TEST_F(FileDealerTest, StoredListOfThousandsIsCutToFiveWhenAnImageIsAdded)
{
    QStringList paths;
    for (int i = 0; i < 10000; ++i) {
        paths << inHome(QStringLiteral("missing-%1.png").arg(i));
    }
    storeRecent(paths);
    dealer.setUpRecentMenu(&menu);
    EXPECT_TRUE(shown().isEmpty());
    open(makeFile(QStringLiteral("a.png")));
    EXPECT_EQ(storedRecent().size(), 5);
    EXPECT_EQ(shown(), QStringList(QStringLiteral("a.png Alt+1")));
}

TEST_F(FileDealerTest, LastFiveOfSixAreShownNewestFirst)
{
    dealer.setUpRecentMenu(&menu);
    for (const char name : std::string("abcdef")) {
        open(makeFile(QChar::fromLatin1(name) + QStringLiteral(".png")));
    }
    EXPECT_EQ(shown().join(QStringLiteral(", ")).toStdString(),
              "f.png Alt+1, e.png Alt+2, d.png Alt+3, c.png Alt+4, b.png Alt+5");
    EXPECT_EQ(storedRecent().size(), 5);
}

TEST_F(FileDealerTest, ReopenedImageMovesToTheFront)
{
    dealer.setUpRecentMenu(&menu);
    const QString a = makeFile(QStringLiteral("a.png"));
    const QString b = makeFile(QStringLiteral("b.png"));
    open(a);
    open(b);
    open(a);
    EXPECT_EQ(storedRecent(), (QStringList{a, b}));
}

TEST_F(FileDealerTest, PathsThatDifferInCaseAreDifferentImages)
{
    const QString lower = makeFile(QStringLiteral("a.png"));
    const QString upper = makeFile(QStringLiteral("A.PNG"));
    open(lower);
    open(upper);
    EXPECT_EQ(storedRecent(), (QStringList{upper, lower}));
}

// For example an image on an unplugged drive: only existing files get a digit, and the item stays in the list.
TEST_F(FileDealerTest, MissingImageIsStoredButItsItemStaysHidden)
{
    const QString a = makeFile(QStringLiteral("a.png"));
    const QString b = makeFile(QStringLiteral("b.png"));
    const QString c = makeFile(QStringLiteral("c.png"));
    storeRecent({c, b});
    dealer.setUpRecentMenu(&menu);
    QFile::remove(b);
    open(a);
    ASSERT_EQ(storedRecent(), (QStringList{a, c, b}));
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("a.png Alt+1"), QStringLiteral("c.png Alt+2")}));

    QFile::remove(c);
    open(a);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("a.png Alt+1"), QStringLiteral("c.png Alt+2")}));
    EXPECT_EQ(menu.actions()[1]->data().toString(), c);
}

TEST_F(FileDealerTest, MissingImageInTheMiddleGetsNoDigit)
{
    storeRecent(
        {makeFile(QStringLiteral("a.png")), inHome(QStringLiteral("b.png")), makeFile(QStringLiteral("c.png"))});
    dealer.setUpRecentMenu(&menu);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("a.png Alt+1"), QStringLiteral("c.png Alt+2")}));
    EXPECT_FALSE(menu.actions()[1]->isVisible());
    EXPECT_EQ(storedRecent().size(), 3);
}

TEST_F(FileDealerTest, ItemsBeyondTheListAreHidden)
{
    const QString a = makeFile(QStringLiteral("a.png"));
    storeRecent({a, makeFile(QStringLiteral("b.png"))});
    dealer.setUpRecentMenu(&menu);
    ASSERT_EQ(shown().size(), 2);
    storeRecent({});
    open(a);
    EXPECT_EQ(shown(), QStringList(QStringLiteral("a.png Alt+1")));
}

TEST_F(FileDealerTest, TooLongListShowsItsFirstFive)
{
    QStringList paths;
    for (const char name : std::string("abcdefg")) {
        paths << makeFile(QChar::fromLatin1(name) + QStringLiteral(".png"));
    }
    storeRecent(paths);
    dealer.setUpRecentMenu(&menu);
    EXPECT_EQ(shown().size(), 5);
    EXPECT_EQ(shown().last(), QStringLiteral("e.png Alt+5"));
}

TEST_F(FileDealerTest, TriggeredItemEmitsThePathOfItsImage)
{
    const QString path = makeFile(QStringLiteral("a.png"));
    storeRecent({path});
    dealer.setUpRecentMenu(&menu);
    const QSignalSpy asked(&dealer, &FileDealer::signalOpenImage);
    menu.actions()[0]->trigger();
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][0].toString(), path);
}

TEST_F(FileDealerTest, OpenRecentWithoutSenderEmitsNothing)
{
    const QSignalSpy asked(&dealer, &FileDealer::signalOpenImage);
    dealer.openRecent();
    EXPECT_TRUE(asked.isEmpty());
}

// Save writes to the path of the last dialog, so the list contains this path instead of that of the recent image.
TEST_F(FileDealerTest, ImageFromTheMenuStoresThePathOfTheLastDialog)
{
    dealer.setUpRecentMenu(&menu);
    const QString a = makeFile(QStringLiteral("a.png"));
    const QString b = makeFile(QStringLiteral("b.png"));
    open(a);
    open(b);
    menu.actions()[1]->trigger();
    dealer.addToRecent();
    EXPECT_EQ(storedRecent(), (QStringList{b, a}));
    EXPECT_EQ(dealer.currentPath(), b);
}

// Before any dialog this path is empty: it is the first in the list, but not shown.
TEST_F(FileDealerTest, ImageFromTheMenuBeforeAnyDialogStoresAnEmptyPath)
{
    const QString a = makeFile(QStringLiteral("a.png"));
    storeRecent({a});
    settings().setValue(QStringLiteral("lastDirectory"), QStringLiteral("/somewhere"));
    dealer.setUpRecentMenu(&menu);
    dealer.addToRecent();
    EXPECT_EQ(storedRecent(), (QStringList{QString(), a}));
    EXPECT_EQ(storedDirectory(), QStringLiteral("/somewhere"));
    ASSERT_EQ(shown().size(), 2);
    EXPECT_EQ(shown()[1], QStringLiteral("a.png Alt+1"));
}

TEST_F(FileDealerTest, FirstDialogsStartInTheHomeDirectory)
{
    FileDialogAnswer open({});
    dealer.openDialog();
    EXPECT_EQ(open.directory, homePath());
    FileDialogAnswer save({});
    dealer.saveDialog();
    EXPECT_EQ(save.directory, open.directory);
}

TEST_F(FileDealerTest, DialogsStartInTheDirectoryOfTheLastOpenedImage)
{
    open(makeFile(QStringLiteral("a.png"), QStringLiteral("travels")));
    EXPECT_EQ(storedDirectory(), inHome(QStringLiteral("travels")));
    FileDialogAnswer openAgain({});
    dealer.openDialog();
    EXPECT_EQ(openAgain.directory, inHome(QStringLiteral("travels")));
    FileDialogAnswer save({});
    dealer.saveDialog();
    EXPECT_EQ(save.directory, inHome(QStringLiteral("travels")));
}

TEST_F(FileDealerTest, SaveDialogProposesTheNameInTheLastDirectory)
{
    open(makeFile(QStringLiteral("a.png"), QStringLiteral("travels")));
    FileDialogAnswer save({});
    dealer.saveDialog(QStringLiteral("a-bw.png"));
    EXPECT_EQ(save.directory, inHome(QStringLiteral("travels")));
    EXPECT_EQ(save.proposedName, QStringLiteral("a-bw.png"));
}

TEST_F(FileDealerTest, DialogsHaveCaptionsAndImageFilters)
{
    const QStringList filters(QStringLiteral("Images (*.jpg *.jpeg *.JPG *.JPEG *.png *.PNG *.tif *.TIF)"));
    FileDialogAnswer open({});
    dealer.openDialog();
    EXPECT_EQ(open.title, QStringLiteral("Open Image"));
    EXPECT_EQ(open.nameFilters, filters);
    EXPECT_FALSE(open.hasParent);
    FileDialogAnswer save({});
    dealer.saveDialog();
    EXPECT_EQ(save.title, QStringLiteral("Save image"));
    EXPECT_EQ(save.nameFilters, filters);
    EXPECT_FALSE(save.hasParent);
}

TEST_F(FileDealerTest, CurrentPathIsEmptyBeforeADialog)
{
    EXPECT_TRUE(dealer.currentPath().isEmpty());
}

TEST_F(FileDealerTest, CancelledOpenDialogClearsTheCurrentPath)
{
    open(makeFile(QStringLiteral("a.png")));
    const FileDialogAnswer cancel({});
    EXPECT_TRUE(dealer.openDialog().isEmpty());
    EXPECT_TRUE(dealer.currentPath().isEmpty());
}

TEST_F(FileDealerTest, SaveDialogChangesNeitherCurrentPathNorSettings)
{
    const QString a = makeFile(QStringLiteral("a.png"));
    open(a);
    const QString target = inHome(QStringLiteral("b.png"));
    const FileDialogAnswer answer(target);
    EXPECT_EQ(dealer.saveDialog(), target);
    EXPECT_EQ(dealer.currentPath(), a);
    EXPECT_EQ(storedRecent(), QStringList(a));
    EXPECT_EQ(storedDirectory(), inHome(QStringLiteral("pictures")));
}

TEST_F(FileDealerTest, DirectoryOfARemovedImageIsNotStored)
{
    const QString a = makeFile(QStringLiteral("a.png"));
    const FileDialogAnswer answer(a);
    dealer.openDialog();
    QFile::remove(a);
    dealer.addToRecent();
    EXPECT_TRUE(storedDirectory().isEmpty());
    EXPECT_EQ(storedRecent(), QStringList(a));
}

TEST_F(FileDealerTest, ForgettingTheDirectoryKeepsTheRecentImages)
{
    const QString a = makeFile(QStringLiteral("a.png"));
    open(a);
    EXPECT_EQ(dealer.lastDirectory(), inHome(QStringLiteral("pictures")));
    dealer.forgetDirectory();
    EXPECT_TRUE(dealer.lastDirectory().isEmpty());
    EXPECT_EQ(settings().allKeys(), QStringList(QStringLiteral("recentImages")));
    EXPECT_EQ(dealer.recentImages(), QStringList(a));
    FileDialogAnswer save({});
    dealer.saveDialog();
    EXPECT_EQ(save.directory, homePath());
}

TEST_F(FileDealerTest, ForgettingTheRecentImagesClearsTheMenuAndKeepsTheDirectory)
{
    dealer.setUpRecentMenu(&menu);
    open(makeFile(QStringLiteral("a.png")));
    const QString b = makeFile(QStringLiteral("b.png"));
    open(b);
    ASSERT_EQ(shown().size(), 2);
    dealer.forgetRecent();
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_TRUE(dealer.recentImages().isEmpty());
    EXPECT_EQ(settings().allKeys(), QStringList(QStringLiteral("lastDirectory")));
    EXPECT_EQ(dealer.currentPath(), b);
    open(b);
    EXPECT_EQ(shown(), QStringList(QStringLiteral("b.png Alt+1")));
}

} // namespace
