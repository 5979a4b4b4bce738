// SPDX-License-Identifier: MIT
#include "app/LocalFiles.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace
{

using grisal::imagesAmong;
using grisal::localFiles;

QStringList localFile(const char *uri)
{
    return localFiles({QUrl(QString::fromUtf8(uri))});
}

TEST(LocalFiles, ReturnsThePathsOfFilesOnThisComputer)
{
    EXPECT_EQ(localFile("file:///tmp/a.jpg"), QStringList(QStringLiteral("/tmp/a.jpg")));
    EXPECT_EQ(localFile("file:/tmp/a.jpg"), QStringList(QStringLiteral("/tmp/a.jpg")));
    EXPECT_EQ(localFile("file://localhost/tmp/a.jpg"), QStringList(QStringLiteral("/tmp/a.jpg")));
}

TEST(LocalFiles, DecodesSpecialCharacters)
{
    EXPECT_EQ(localFile("file:///tmp/B%C3%BCro%20%231%25.jpg"), QStringList(QString::fromUtf8("/tmp/Büro #1%.jpg")));
    EXPECT_EQ(localFile("file:///tmp/Büro.jpg"), QStringList(QString::fromUtf8("/tmp/Büro.jpg")));
    EXPECT_EQ(localFile("file:///tmp/100%.jpg"), QStringList(QStringLiteral("/tmp/100%.jpg")));
    EXPECT_EQ(localFile("file:///tmp/a%0Ab.jpg"), QStringList(QStringLiteral("/tmp/a\nb.jpg")));
}

TEST(LocalFiles, LeavesOutFilesOnOtherComputers)
{
    for (const char *uri : {"https://grisal.example/a.jpg", "file://otherhost/tmp/a.jpg", "sftp://otherhost/tmp/a.jpg",
                            "trash:///a.jpg", "javascript:alert(1)"}) {
        EXPECT_EQ(localFile(uri), QStringList()) << uri;
    }
}

TEST(LocalFiles, LeavesOutWhatIsNoPath)
{
    for (const char *uri : {"", "/tmp/a.jpg", "a.jpg", "file:a.jpg", "file:", "file://", "%"}) {
        EXPECT_EQ(localFile(uri), QStringList()) << uri;
    }
}

// With such characters replaced, or with the path cut off, another file would be opened.
TEST(LocalFiles, LeavesOutNamesThatAreNotUtf8AndNullCharacters)
{
    for (const char *uri : {"file:///tmp/%FF.jpg", "file:///tmp/%C3.jpg", "file:///tmp/%ED%A0%80.jpg",
                            "file:///tmp/a.jpg%00.png", "file:///tmp/a%00"}) {
        EXPECT_EQ(localFile(uri), QStringList()) << uri;
    }
}

TEST(LocalFiles, LeavesOutPathsThatAreTooLong)
{
    const QString longest = u'/' + QString(4094, u'a');
    EXPECT_EQ(localFiles({QUrl::fromLocalFile(longest)}), QStringList(longest));
    EXPECT_EQ(localFiles({QUrl::fromLocalFile(longest + u'a')}), QStringList());
}

TEST(LocalFiles, KeepsTheOrder)
{
    const QStringList uris{QStringLiteral("file:///b"), QStringLiteral("https://x/y"), QStringLiteral("file:///a")};
    EXPECT_EQ(localFiles(QUrl::fromStringList(uris)), QStringList({QStringLiteral("/b"), QStringLiteral("/a")}));
}

TEST(IsMissing, IsTrueOnlyIfThereIsNoSuchFile)
{
    const QTemporaryDir folder;
    EXPECT_FALSE(grisal::isMissing(folder.path()));
    EXPECT_TRUE(grisal::isMissing(folder.filePath(QStringLiteral("a.png"))));
    EXPECT_FALSE(grisal::isMissing(folder.filePath(QString(300, u'a')))) << "the system refuses the name";
}

TEST(ImagesAmong, ReturnsTheFilesThatStartLikeImages)
{
    const QTemporaryDir folder;
    const QString text = folder.filePath(QStringLiteral("text.jpg"));
    const QString image = folder.filePath(QStringLiteral("image"));
    for (const auto &[path, contents] : {std::pair{text, "no image"}, std::pair{image, "\xff\xd8\xff\xe0more"}}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    EXPECT_EQ(imagesAmong({text, folder.path(), image, folder.filePath(QStringLiteral("missing"))}),
              QStringList(image));
}

} // namespace
