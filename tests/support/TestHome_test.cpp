// SPDX-License-Identifier: MIT
#include "tests/support/TestHome.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <array>
#include <stdexcept>

namespace
{

using grisal::test::TestHome;

/// Restores the environment of the test program, which is that of its own TestHome.
class TestHomeTest : public testing::Test
{
protected:
    TestHomeTest()
    {
        for (std::size_t i = 0; i < names.size(); ++i) {
            m_before.at(i) = qgetenv(names.at(i));
        }
    }

    ~TestHomeTest() override
    {
        for (std::size_t i = 0; i < names.size(); ++i) {
            qputenv(names.at(i), m_before.at(i));
        }
    }

private:
    static constexpr std::array names{"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "TMPDIR"};
    std::array<QByteArray, names.size()> m_before;
};

void write(const QString &path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

TEST_F(TestHomeTest, RemovesTheHomeDirectory)
{
    TestHome home;
    const QString path = QDir::homePath();
    write(path + QStringLiteral("/GrisalLog.txt"));
    EXPECT_TRUE(home.isCleanAtEnd());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(TestHomeTest, IsNotCleanIfATemporaryFileIsLeft)
{
    TestHome home;
    write(QDir::tempPath() + QStringLiteral("/left"));
    EXPECT_FALSE(home.isCleanAtEnd());
}

TEST_F(TestHomeTest, IsNotCleanIfTmpdirHasChanged)
{
    TestHome home;
    qputenv("TMPDIR", QDir::homePath().toLocal8Bit());
    EXPECT_FALSE(home.isCleanAtEnd());
}

TEST_F(TestHomeTest, IsNotCleanIfTheTemporaryFolderIsRemoved)
{
    TestHome home;
    QDir(QDir::tempPath()).removeRecursively();
    EXPECT_FALSE(home.isCleanAtEnd());
}

TEST_F(TestHomeTest, ThrowsWithoutATemporaryFolder)
{
    qputenv("TMPDIR", QDir::tempPath().toLocal8Bit() + "/missing");
    EXPECT_THROW(TestHome(), std::runtime_error);
}

} // namespace
