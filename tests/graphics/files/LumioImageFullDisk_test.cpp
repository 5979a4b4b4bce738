// SPDX-License-Identifier: MIT
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif
#include <sys/resource.h>

#include <cerrno>
#include <cstring>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

#ifdef __SANITIZE_ADDRESS__
/// GraphicsMagick leaks memory when it cannot write a file.
using LeakyLibrary = __lsan::ScopedDisabler;
#else
struct LeakyLibrary {
    LeakyLibrary() {}
};
#endif

// A limit of the file size simulates a full disk.
TEST(LumioImageFullDisk, KeepsTheOldFile)
{
    Bytes noise(std::size_t{100} * 100 * 3);
    std::uint32_t state = 1;
    for (std::uint8_t &byte : noise) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<std::uint8_t>(state >> 24);
    }
    LumioImage image = pictureOf(noise, 100, 100);
    const QTemporaryDir directory;
    const auto path = [&](const char *name) { return directory.filePath(QString::fromLatin1(name)); };
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    for (const char *name : {"a.png", "a.jpg", "a.tif"}) {
        writeFile(path(name), "old");
        for (const rlim_t space : {0, 1, 100, 4096, 9000}) {
            const rlimit limit{space, before.rlim_max};
            ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
            const LeakyLibrary leaky;
            const bool saved = image.save(path(name), 90);
            ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
            EXPECT_FALSE(saved) << name << " in " << space << " bytes";
            EXPECT_EQ(image.problem().english(), QString::fromLocal8Bit(std::strerror(EFBIG)));
            EXPECT_EQ(contentsOf(path(name)), "old") << name << " in " << space << " bytes";
        }
        EXPECT_TRUE(image.save(path(name), 90)) << name;
    }
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

} // namespace
