// SPDX-License-Identifier: MIT
#include "graphics/files/ImageFile.h"
#include "graphics/files/ImageMemory.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

using namespace grisal::test;
using namespace grisal::graphics;

class ImageFileTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return directory.filePath(name); }

    QString fileOf(const QString &name, const QByteArray &contents) const
    {
        writeFile(path(name), contents);
        return path(name);
    }

    static bool passes(const QString &file) { return ImageFile(file).problem().isEmpty(); }

    static QByteArray pngChunk(const char *kind, quint32 length, const QByteArray &contents)
    {
        QByteArray chunk(4, '\0');
        for (int i = 0; i < 4; ++i) {
            chunk[i] = static_cast<char>(length >> (24 - 8 * i));
        }
        return chunk + kind + contents + QByteArray(4, '\0');
    }

    static QByteArray pngHeaderChunk(quint32 width, quint32 height)
    {
        QByteArray contents(8, '\0');
        qToBigEndian(width, contents.data());
        qToBigEndian(height, contents.data() + 4);
        return pngChunk("IHDR", 13, contents + QByteArray("\x08\0\0\0\0", 5));
    }

    QTemporaryDir directory;
    const QByteArray png = "\x89PNG\r\n\x1a\n";
    const QByteArray jpeg = "\xff\xd8\xff\xe0 and so on";
};

TEST_F(ImageFileTest, AcceptsAFileByItsContentsWhateverItsName)
{
    EXPECT_TRUE(passes(fileOf("a.txt", jpeg)));
    EXPECT_TRUE(passes(fileOf("png:a", png)));
    EXPECT_TRUE(passes(fileOf(QString(251, QLatin1Char('x')) + ".jpg", jpeg)));
}

TEST_F(ImageFileTest, RejectsOtherContents)
{
    for (const char *contents : {"", "\xff", "%!PS-Adobe-3.0\n", "<svg xmlns=\"http://www.w3.org/2000/svg\"/>",
                                 "push graphic-context", "GIF89a", "#!/bin/sh\n"}) {
        EXPECT_FALSE(passes(fileOf("a.jpg", contents))) << contents;
    }
}

TEST_F(ImageFileTest, RejectsNonRegularFilesWithoutBlocking)
{
    ASSERT_EQ(mkfifo(path("pipe.jpg").toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link("/dev/zero", path("endless.png")));
    ASSERT_TRUE(QFile::link("loop-a.jpg", path("loop-b.jpg")));
    ASSERT_TRUE(QFile::link("loop-b.jpg", path("loop-a.jpg")));
    ASSERT_TRUE(QFile::link("nowhere.jpg", path("dangling.jpg")));
    for (const char *name : {"pipe.jpg", "endless.png", "loop-a.jpg", "dangling.jpg", "missing.jpg", "."}) {
        const ImageFile file(path(name));
        EXPECT_EQ(file.problem().english(), QStringLiteral("Cannot open %1").arg(path(name)));
    }
}

TEST_F(ImageFileTest, RejectsASocket)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = path("socket.jpg").toLocal8Bit();
    ASSERT_LT(name.size(), qsizetype{sizeof address.sun_path});
    std::copy(name.begin(), name.end(), address.sun_path);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    EXPECT_FALSE(passes(path("socket.jpg")));
    close(descriptor);
}

TEST_F(ImageFileTest, FollowsLinksToFiles)
{
    fileOf("a.jpg", jpeg);
    ASSERT_TRUE(QFile::link("a.jpg", path("b.jpg")));
    ASSERT_TRUE(QFile::link("b.jpg", path("c d.jpg")));
    EXPECT_TRUE(passes(path("c d.jpg")));
}

TEST_F(ImageFileTest, StaysTheCheckedFileWhenItsNameIsReplaced)
{
    const ImageFile file(fileOf("a.jpg", jpeg));
    fileOf("b.jpg", "%!PS-Adobe-3.0\n");
    ASSERT_EQ(rename(path("b.jpg").toLocal8Bit().constData(), path("a.jpg").toLocal8Bit().constData()), 0);
    EXPECT_EQ(contentsOf(QString::fromStdString(file.name().substr(5))), jpeg);
    EXPECT_EQ(file.name().substr(0, 5), "JPEG:");
}

TEST_F(ImageFileTest, RejectsAPngWithTooLongTexts)
{
    for (const char *kind : {"tEXt", "zTXt", "iTXt", "iCCP"}) {
        EXPECT_FALSE(passes(
            fileOf("a.png", png + pngChunk("IHDR", 13, QByteArray(13, '\0')) + pngChunk(kind, 0x40000000, "text"))))
            << kind;
        EXPECT_TRUE(passes(fileOf("b.png", png + pngChunk(kind, 4, "text")))) << kind;
        EXPECT_TRUE(passes(fileOf("c.png", png + pngChunk(kind, 7'000'000, QByteArray(7'000'000, 't'))))) << kind;
    }
    EXPECT_TRUE(passes(fileOf("c.png", png + pngChunk("IDAT", 0x40000000, "pixels"))));
}

// GraphicsMagick needs twice the memory of the expanded texts.
TEST_F(ImageFileTest, RejectsAPngWhoseTextsExpandTooMuch)
{
    const QByteArray compressed = qCompress(QByteArray(7'900'000, 't')).mid(4);
    for (const QByteArray &start : {QByteArray("zTXtC\0\0", 7), QByteArray("iTXtC\0\1\0\0\0", 10)}) {
        const QByteArray contents = start.mid(4) + compressed;
        const QByteArray text = pngChunk(start.first(4), static_cast<quint32>(contents.size()), contents);
        EXPECT_TRUE(passes(fileOf("a.png", png + text.repeated(4))));
        EXPECT_FALSE(passes(fileOf("b.png", png + text.repeated(5))));
        EXPECT_TRUE(passes(fileOf("c.png", png + pngChunk("IEND", 0, {}) + text.repeated(5))));
    }
}

TEST_F(ImageFileTest, AcceptsAPngWithManySmallTexts)
{
    for (const char *kind : {"tEXt", "zTXt", "iTXt", "iCCP"}) {
        EXPECT_TRUE(passes(fileOf("a.png", png + pngChunk(kind, 4, "text").repeated(1000)))) << kind;
    }
}

// An incomplete download may consist of gigabytes of zeros behind its start.
TEST_F(ImageFileTest, AcceptsZerosBehindTheSignatureQuickly)
{
    QFile file(fileOf("a.png", png));
    ASSERT_TRUE(file.resize(qint64{1} << 40));
    EXPECT_TRUE(passes(path("a.png")));
}

TEST_F(ImageFileTest, RejectsAPngOfTooManyChunks)
{
    EXPECT_TRUE(passes(fileOf("a.png", png + pngChunk("IDAT", 0, {}).repeated(10'000))));
    EXPECT_FALSE(passes(fileOf("b.png", png + pngChunk("IDAT", 0, {}).repeated(500'001))));
}

TEST_F(ImageFileTest, RejectsAFileThatIsTooSmallForItsPixels)
{
    const QByteArray header = png + pngHeaderChunk(12'000, 10'000);
    const ImageFile small(fileOf("a.png", header));
    EXPECT_EQ(small.problem().english(), path("a.png") + " is too small a file for its number of pixels");
    EXPECT_TRUE(passes(fileOf("b.png", header + QByteArray(120'000'000 / 40, '.'))));
    QFile sparse(fileOf("c.png", header));
    ASSERT_TRUE(sparse.resize(120'000'000));
    EXPECT_FALSE(passes(path("c.png")));
}

TEST_F(ImageFileTest, ReadsTheHeader)
{
    const ImageFile file(fileOf("a.png", png + pngHeaderChunk(300, 200)));
    EXPECT_EQ(file.header().width, 300U);
    EXPECT_EQ(file.header().height, 200U);
    EXPECT_EQ(file.memoryToRead(), 300U * 200 * 20);
    EXPECT_EQ(file.path(), path("a.png"));
}

// GraphicsMagick rejects it with a reason.
TEST_F(ImageFileTest, AcceptsAFileWithoutAHeader)
{
    const ImageFile file(fileOf("a.png", png));
    EXPECT_TRUE(file.problem().isEmpty()) << file.problem().english().toStdString();
    EXPECT_EQ(file.memoryToRead(), maxUncheckedMemory);
}

TEST_F(ImageFileTest, HasCompleteEndOnlyIfNotTruncated)
{
    const auto ends = [this](ImageFormat format, const QByteArray &contents) {
        const ImageFile file(fileOf("a", contents));
        const QByteArray name = QFile::encodeName(path("a"));
        return hasCompleteEnd(OpenFile(open(name.constData(), O_RDONLY)), format);
    };
    EXPECT_TRUE(ends(ImageFormat::Jpeg, jpeg + "\xff\xd9"));
    EXPECT_FALSE(ends(ImageFormat::Jpeg, jpeg));
    EXPECT_TRUE(ends(ImageFormat::Png, png + pngChunk("IEND", 0, {})));
    EXPECT_FALSE(ends(ImageFormat::Png, png + pngChunk("IDAT", 0, {})));
    EXPECT_TRUE(ends(ImageFormat::Tiff, QByteArray("II*\0\x09\0\0\0 directory", 18)));
    EXPECT_FALSE(ends(ImageFormat::Tiff, QByteArray("II*\0\x20\0\0\0 pixels", 15)));
    EXPECT_FALSE(ends(ImageFormat::Tiff, QByteArray("II*\0\0\0\0\0 pixels", 15)));
    EXPECT_FALSE(ends(ImageFormat::Tiff, {}));
}

} // namespace
