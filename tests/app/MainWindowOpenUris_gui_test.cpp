// SPDX-License-Identifier: MIT
// Files that another program passes to the window.
#include "tests/app/FilesTest.h"

#include <QUrl>

namespace
{

using namespace grisal::test;

class MainWindowOpenUris : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        if (!IsSkipped()) {
            start();
        }
    }

    void open(const QStringList &paths)
    {
        QStringList uris;
        for (const QString &path : paths) {
            uris << QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
        }
        window.openUris(uris);
    }

    void expectBoxForNoLocalFile(const QString &uri, const QString &shown)
    {
        expectWarning(uri.left(200) + QStringLiteral(" is not a file on this computer"));
        MessageBoxAnswer box(QMessageBox::Ok);
        window.openUris({uri});
        EXPECT_EQ(box.title, QStringLiteral("Open Image"));
        EXPECT_EQ(box.text, QStringLiteral("Cannot load %1.").arg(shown));
        EXPECT_EQ(box.informativeText,
                  QStringLiteral("It is not a file on this computer, or its name is invalid. Please copy the picture "
                                 "to a folder on this computer and open the copy."));
    }
};

TEST_F(MainWindowOpenUris, OpensAPictureWithSpecialCharactersInItsName)
{
    open({makePicture(QString::fromUtf8("ä #1 100%.png"), 30, 20)});
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - ä #1 100%.png 30x20");
    EXPECT_EQ(status(), "");
}

// As a choice from the Recent menu does.
TEST_F(MainWindowOpenUris, KeepsThePathThatSaveWritesTo)
{
    const QString dialog = makePicture(QStringLiteral("a.png"), 30, 20);
    openWithDialog(dialog);
    open({makePicture(QStringLiteral("b.png"), 24, 16)});
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - b.png 24x16");
    EXPECT_EQ(storedRecent(), QStringList(dialog));
}

TEST_F(MainWindowOpenUris, OpensTheFirstOfSeveralPicturesAndShowsAMessage)
{
    const QString text = inHome(QStringLiteral("text.png"));
    writeFile(text, "no picture");
    open({text, makePicture(QStringLiteral("a.png"), 30, 20), makePicture(QStringLiteral("b.png"), 24, 16)});
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 30x20");
    EXPECT_EQ(status(), "Only the first of the 2 pictures was opened");
}

TEST_F(MainWindowOpenUris, OpensTheLocalPictureAmongOthers)
{
    const QString path = makePicture(QStringLiteral("a.png"), 30, 20);
    window.openUris({QStringLiteral("https://grisal.example/b.png"), QUrl::fromLocalFile(path).toString()});
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 30x20");
    EXPECT_EQ(status(), "");
}

TEST_F(MainWindowOpenUris, OpensTheFirstOfTenThousand)
{
    open(QStringList(10000, makePicture(QStringLiteral("a.png"), 30, 20)));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 30x20");
    EXPECT_EQ(status(), "Only the first of the 10000 pictures was opened");
}

TEST_F(MainWindowOpenUris, ShowsTheBoxOfAnOpenedFileForAnythingElse)
{
    const QString text = inHome(QStringLiteral("text.png"));
    writeFile(text, "no picture");
    for (const QString &path : {text, homePath()}) {
        allowWarning(path);
        MessageBoxAnswer box(QMessageBox::Ok);
        open({path});
        EXPECT_EQ(box.text, QStringLiteral("Cannot load %1.").arg(path));
    }
    EXPECT_EQ(title(), "Lumio Grisal (Alpha)");
}

TEST_F(MainWindowOpenUris, FilesThatAreNotLocalShowABox)
{
    for (const char *uri : {"https://grisal.example/a%20b.png", "file://otherhost/a.png", "sftp://otherhost/a.png",
                            "file:///tmp/%FF.png", "<b>bold</b>"}) {
        expectBoxForNoLocalFile(QString::fromLatin1(uri), QString::fromLatin1(uri));
    }
}

// The Recent menu shows the open picture under the name of a file that is gone.
TEST_F(MainWindowOpenUris, AMissingFileShowsABoxAndThePictureStays)
{
    open({makePicture(QStringLiteral("a.png"), 30, 20)});
    const QString missing = QUrl::fromLocalFile(inHome(QStringLiteral("missing.png"))).toString();
    expectBoxForNoLocalFile(missing, missing);
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 30x20");
}

TEST_F(MainWindowOpenUris, AVeryLongAddressIsShortened)
{
    const QString uri = QStringLiteral("file:///") + QString(1'000'000, u'a');
    const QString start = uri.left(200);
    expectBoxForNoLocalFile(uri, window.fontMetrics().elidedText(start, Qt::ElideMiddle, 600));
    EXPECT_FALSE(log.contains(uri.left(201)));
}

} // namespace
