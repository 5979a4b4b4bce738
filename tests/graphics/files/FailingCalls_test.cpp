// SPDX-License-Identifier: MIT
// System calls that fail, or return less than requested, although the file was checked before: another program
// truncates it meanwhile, or its disk fails. This program replaces these calls.
#include "graphics/files/ImageFile.h"
#include "graphics/files/TiffDirectory.h"
#include "graphics/files/TiffOrientation.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace
{

constexpr off_t unlimited = off_t{1} << 40;

off_t readableSize = unlimited;
bool seekFails = false;
bool copiesNothing = false;

} // namespace

extern "C" ssize_t pread(int file, void *bytes, size_t count, off_t offset)
{
    const auto readable = static_cast<size_t>(std::max<off_t>(readableSize - offset, 0));
    return syscall(SYS_pread64, file, bytes, std::min(count, readable), offset);
}

extern "C" off_t lseek(int file, off_t offset, int whence) noexcept
{
    if (seekFails && whence == SEEK_SET) {
        errno = ENOSPC;
        return -1;
    }
    return syscall(SYS_lseek, file, offset, whence);
}

extern "C" ssize_t sendfile(int to, int from, off_t *offset, size_t count) noexcept
{
    if (copiesNothing) {
        errno = ENOENT; // left by an earlier call
        return 0;
    }
    return syscall(SYS_sendfile, to, from, offset, count);
}

namespace
{

using namespace grisal::test;
using namespace grisal::graphics;

class FailingCalls : public testing::Test
{
protected:
    ~FailingCalls() override
    {
        readableSize = unlimited;
        seekFails = false;
        copiesNothing = false;
    }

    OpenFile opened(const QByteArray &contents) const
    {
        const QString path = directory.filePath(QStringLiteral("a.tif"));
        writeFile(path, contents);
        return OpenFile(open(path.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
    }

    /// The error of normalising the orientation of a file; 0 without an error.
    int errorOfCopy() const
    {
        const TiffByteOrder order(true);
        const OpenFile file =
            opened(QByteArray("MM\0*\0\0\0\x08", 8) + encodeDirectory({{274, 3, 1, QByteArray("\0\6\0\0", 4)}}, order));
        try {
            return copyWithNormalOrientation(file).isOpen() ? 0 : -1;
        } catch (const std::system_error &error) {
            return error.code().value();
        }
    }

    QTemporaryDir directory;
};

// The offset of the directory is 9 in the file, and 9 in its first byte alone.
TEST_F(FailingCalls, ATiffWhoseDirectoryOffsetIsNotReadCompletelyIsIncomplete)
{
    const OpenFile file = opened(QByteArray("II*\0\x09\0\0\0 directory", 18));
    EXPECT_TRUE(hasCompleteEnd(file, ImageFormat::Tiff));
    readableSize = 5;
    EXPECT_FALSE(hasCompleteEnd(file, ImageFormat::Tiff));
}

TEST_F(FailingCalls, ACopyThatEndsEarlyReportsAnInputOutputError)
{
    EXPECT_EQ(errorOfCopy(), 0);
    copiesNothing = true;
    EXPECT_EQ(errorOfCopy(), EIO);
}

TEST_F(FailingCalls, ACopyThatCannotSeekReportsTheErrorOfSeeking)
{
    seekFails = true;
    EXPECT_EQ(errorOfCopy(), ENOSPC);
}

} // namespace
