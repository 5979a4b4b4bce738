// SPDX-License-Identifier: MIT
#include "batch/SourceList.h"

#include "tests/batch/FolderTest.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/InaccessibleFolder.h"

#include <QBuffer>
#include <QDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace
{

using namespace grisal::batch;
using grisal::test::InaccessibleFolder;
using grisal::test::writeFile;

using Texts = std::vector<std::string>;

Texts texts(const QStringList &list)
{
    Texts result;
    for (const QString &text : list) {
        result.push_back(text.toStdString());
    }
    return result;
}

class SourceListTest : public FolderTest
{
protected:
    /// A file that starts like an image.
    static void makeImage(const QString &path) { makeFile(path, "\xff\xd8\xff\xe0"); }

    static void makeFile(const QString &path, const QByteArray &contents)
    {
        const QString absolute = QDir::currentPath() + '/' + path;
        QDir().mkpath(QFileInfo(absolute).path());
        writeFile(absolute, contents);
    }

    SourceList list(const QByteArray &standardInput = {}) const
    {
        QBuffer input;
        input.setData(standardInput);
        input.open(QIODevice::ReadOnly);
        return listSources(options, input);
    }

    /// The paths of the sources, which are listed without error or warning.
    Texts paths(const QByteArray &standardInput = {}) const
    {
        const SourceList found = list(standardInput);
        EXPECT_EQ(found.error.toStdString(), "");
        EXPECT_EQ(texts(found.warnings), Texts());
        Texts names;
        for (const Source &source : found.sources) {
            names.push_back(source.path.toStdString());
        }
        return names;
    }

    Texts subfolders(const QByteArray &standardInput = {}) const
    {
        Texts names;
        for (const Source &source : list(standardInput).sources) {
            names.push_back(source.subfolder.toStdString());
        }
        return names;
    }

    Options options;
};

TEST_F(SourceListTest, ContainsOperandsInTheirOrder)
{
    options.sources = QStringList{"b.jpg", "a.jpg", current + "/x/c.jpg"};
    EXPECT_EQ(paths(), texts(options.sources));
    EXPECT_EQ(subfolders(), (Texts{"", "", ""}));
    const SourceList found = list();
    EXPECT_EQ(found.sources.at(0).absolute.toStdString(), (current + "/b.jpg").toStdString());
    EXPECT_EQ(found.sources.at(2).absolute.toStdString(), (current + "/x/c.jpg").toStdString());
}

TEST_F(SourceListTest, ContainsEveryFileOnce)
{
    options.sources = QStringList{"a.jpg", "./a.jpg", "x/../a.jpg", "b.jpg", current + "/a.jpg"};
    EXPECT_EQ(paths(), (Texts{"a.jpg", "b.jpg"}));
}

TEST_F(SourceListTest, RejectsAFolderUnlessRecursive)
{
    QDir().mkpath("x");
    options.sources = QStringList{"a.jpg", "x"};
    EXPECT_EQ(list().error.toStdString(), "'x' is a folder; use -r to convert the pictures in it, or leave it out.");
    options.recursive = true;
    EXPECT_EQ(list().error.toStdString(), "");
}

TEST_F(SourceListTest, ContainsTheImagesOfAFolderSorted)
{
    makeImage("holiday/b.jpg");
    makeImage("holiday/a/z.dat");
    makeImage("holiday/a/b/c.png");
    makeImage("holiday/a.jpg");
    makeFile("holiday/notes.jpg", "text");
    makeFile("holiday/empty.jpg", "");
    options.recursive = true;
    options.sources = QStringList{"first.jpg", "holiday/", "last.jpg"};
    EXPECT_EQ(paths(), (Texts{"first.jpg", "holiday/a.jpg", "holiday/a/b/c.png", "holiday/a/z.dat", "holiday/b.jpg",
                              "last.jpg"}));
    EXPECT_EQ(subfolders(), (Texts{"", "", "a/b", "a", "", ""}));
}

TEST_F(SourceListTest, ContainsTheImagesOfTheCurrentFolder)
{
    makeImage("x/a.jpg");
    options.recursive = true;
    options.sources = QStringList{"."};
    EXPECT_EQ(paths(), Texts{"./x/a.jpg"});
    EXPECT_EQ(subfolders(), Texts{"x"});
    EXPECT_EQ(list().sources.at(0).absolute.toStdString(), (current + "/x/a.jpg").toStdString());
}

TEST_F(SourceListTest, ContainsAnImageOfAFolderOnceIfItIsNamedToo)
{
    makeImage("x/a.jpg");
    makeImage("x/b.jpg");
    options.recursive = true;
    options.sources = QStringList{"x/b.jpg", "x", current + "/x"};
    EXPECT_EQ(paths(), (Texts{"x/b.jpg", "x/a.jpg"}));
}

TEST_F(SourceListTest, LeavesOutHiddenFilesAndFolders)
{
    makeImage("x/.a.jpg");
    makeImage("x/.thumbnails/b.jpg");
    makeImage("x/c.jpg");
    options.recursive = true;
    options.sources = QStringList{"x"};
    EXPECT_EQ(paths(), Texts{"x/c.jpg"});
}

TEST_F(SourceListTest, FollowsLinksToFilesButNotToFolders)
{
    makeImage("x/a.jpg");
    makeImage("y/b.jpg");
    ASSERT_EQ(symlink("../y/b.jpg", "x/file.jpg"), 0);
    ASSERT_EQ(symlink("../y", "x/folder"), 0);
    ASSERT_EQ(symlink("..", "x/loop"), 0);
    ASSERT_EQ(symlink("missing", "x/broken.jpg"), 0);
    ASSERT_EQ(symlink("x", "operand"), 0);
    options.recursive = true;
    options.sources = QStringList{"operand"};
    EXPECT_EQ(paths(), (Texts{"operand/a.jpg", "operand/file.jpg"}));
}

TEST_F(SourceListTest, LeavesOutPipes)
{
    makeImage("x/a.jpg");
    ASSERT_EQ(mkfifo("x/pipe.jpg", S_IRWXU), 0);
    options.recursive = true;
    options.sources = QStringList{"x"};
    EXPECT_EQ(paths(), Texts{"x/a.jpg"});
}

TEST_F(SourceListTest, LeavesOutTheOutputFolderBelowASearchedOne)
{
    makeImage("a.jpg");
    makeImage("x/bw/b.jpg");
    makeImage("bw/a.jpg");
    ASSERT_EQ(symlink("bw", "link"), 0);
    options.recursive = true;
    options.sources = QStringList{"."};
    options.outputDir = "link/";
    EXPECT_EQ(paths(), (Texts{"./a.jpg", "./x/bw/b.jpg"}));
    options.outputDir = ".";
    EXPECT_EQ(paths(), (Texts{"./a.jpg", "./bw/a.jpg", "./x/bw/b.jpg"}));
    options.outputDir = "missing";
    EXPECT_EQ(paths().size(), 3);
}

TEST_F(SourceListTest, ReportsFoldersThatCannotBeRead)
{
    makeImage("x/a.jpg");
    makeImage("x/locked/b.jpg");
    QFile::setPermissions(folder.path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    options.recursive = true;
    options.sources = QStringList{"x"};
    const InaccessibleFolder locked("x/locked");
    const SourceList found = list();
    EXPECT_EQ(found.error.toStdString(), "");
    ASSERT_EQ(found.sources.size(), 1U);
    EXPECT_EQ(found.sources.at(0).path.toStdString(), "x/a.jpg");
    ASSERT_EQ(found.warnings.size(), 1);
    EXPECT_EQ(found.warnings.at(0).toStdString(),
              "Cannot read the folder 'x/locked' (Permission denied); pictures in it may be left out.");
}

TEST_F(SourceListTest, ReportsNamesThatAreNotUtf8)
{
    makeImage("x/a.jpg");
    const char *name = "x/\xe9.jpg";
    ASSERT_EQ(link("x/a.jpg", name), 0);
    options.recursive = true;
    options.sources = QStringList{"x"};
    const SourceList found = list();
    // Qt would not remove it with the temporary folder.
    EXPECT_EQ(unlink(name), 0);
    EXPECT_EQ(found.sources.size(), 1U);
    ASSERT_EQ(found.warnings.size(), 1);
    EXPECT_TRUE(found.warnings.at(0).endsWith(" is left out, because its name is not valid UTF-8; please rename it."));
}

TEST_F(SourceListTest, LeavesOutListedNamesThatAreNotUtf8)
{
    options.filesFrom = "-";
    const SourceList found = list("a.jpg\n\xe9.jpg\n\xe8.jpg\n\xef\xbf\xbd.jpg\n");
    EXPECT_EQ(found.error.toStdString(), "");
    ASSERT_EQ(found.sources.size(), 2U);
    EXPECT_EQ(found.sources.at(1).path.toStdString(), "\xef\xbf\xbd.jpg");
    const std::string warning =
        "'\xef\xbf\xbd.jpg' is left out, because its name is not valid UTF-8; please rename it.";
    EXPECT_EQ(texts(found.warnings), (Texts{warning, warning}));
}

TEST_F(SourceListTest, ReportsOperandsThatAreNotUtf8)
{
    options.sources = QStringList{"a.jpg"};
    options.invalidSources = QStringList{QStringLiteral("\ufffd.jpg")};
    EXPECT_EQ(list().sources.size(), 1U);
    EXPECT_EQ(list().warnings.size(), 1);
}

TEST_F(SourceListTest, ContainsTheLinesOfAListAfterTheOperands)
{
    writeFile("list", "b.jpg\r\n\nGr\xc3\xbc\xc3\x9f"
                      "e 1.jpg\n\r\na.jpg\n/x/c.jpg");
    options.sources = QStringList{"a.jpg"};
    options.filesFrom = "list";
    EXPECT_EQ(paths(), (Texts{"a.jpg", "b.jpg", "Grüße 1.jpg", "/x/c.jpg"}));
}

TEST_F(SourceListTest, ContainsTheLinesOfStandardInput)
{
    options.filesFrom = "-";
    EXPECT_EQ(paths("a.jpg\nx/b.jpg\n"), (Texts{"a.jpg", "x/b.jpg"}));
    EXPECT_EQ(subfolders("a.jpg\nx/b.jpg\n"), (Texts{"", ""}));
    EXPECT_EQ(paths("\na.jpg\nx/b.jpg\n"), (Texts{"a.jpg", "x/b.jpg"}));
    EXPECT_EQ(paths(""), Texts());
}

TEST_F(SourceListTest, ContainsNamesThatEndWithNul)
{
    options.filesFrom = "-";
    options.nulSeparated = true;
    EXPECT_EQ(paths(QByteArray("a\nb.jpg\0\0c.jpg\r\0d.jpg", 22)), (Texts{"a\nb.jpg", "c.jpg\r", "d.jpg"}));
}

TEST_F(SourceListTest, RejectsAListThatCannotBeRead)
{
    options.filesFrom = "missing";
    EXPECT_EQ(list().error.toStdString(), "Cannot read the list 'missing' of --files-from: No such file or directory.");
    QDir().mkpath("x");
    options.filesFrom = "x";
    EXPECT_NE(list().error, "");
}

TEST_F(SourceListTest, KeepsTheFoldersOfListedFilesIfRecursive)
{
    options.filesFrom = "-";
    options.recursive = true;
    options.outputDir = "bw";
    EXPECT_EQ(subfolders("a/b.jpg\nc.jpg\n./d/./e/f.jpg\ng/../h.jpg\n"), (Texts{"a", "", "d/e", ""}));
    EXPECT_EQ(subfolders("/x/y/a.jpg\n/x/y/z/b.jpg\n/x/yy/c.jpg\nq/d.jpg\n"), (Texts{"y", "y/z", "yy", "q"}));
    EXPECT_EQ(subfolders("/x/y/a.jpg\n/x/y/b.jpg\n"), (Texts{"", ""}));
    EXPECT_EQ(subfolders("/x/a.jpg\n/b.jpg\n/y/c.jpg\n"), (Texts{"x", "", "y"}));
    EXPECT_EQ(subfolders("/../x/a.jpg\n/x/../../b.jpg\n"), (Texts{"x", ""}));
}

TEST_F(SourceListTest, RejectsListedFilesOutsideOfTheCurrentFolderIfTheirFoldersAreKept)
{
    options.filesFrom = "-";
    options.recursive = true;
    EXPECT_EQ(paths("../a.jpg\n"), Texts{"../a.jpg"});
    options.outputDir = "bw";
    EXPECT_EQ(list("a.jpg\nx/../../b.jpg\n").error.toStdString(),
              "'x/../../b.jpg' in the list of --files-from leads out of the current folder, so that -r cannot keep its "
              "folders; leave out -r, or list its absolute path.");
    EXPECT_EQ(list("..a.jpg\n").error.toStdString(), "");
    options.recursive = false;
    EXPECT_EQ(list("../a.jpg\n").error.toStdString(), "");
}

TEST_F(SourceListTest, AcceptsNamesThatStartWithAColon)
{
    makeImage(":x/a.jpg");
    options.recursive = true;
    options.sources = QStringList{":b.jpg", ":x"};
    EXPECT_EQ(paths(), (Texts{":b.jpg", ":x/a.jpg"}));
    EXPECT_EQ(list().sources.at(0).absolute.toStdString(), (current + "/:b.jpg").toStdString());

    makeFile(":list", "c.jpg");
    options.sources.clear();
    options.filesFrom = ":list";
    EXPECT_EQ(paths(), Texts{"c.jpg"});
}

} // namespace
