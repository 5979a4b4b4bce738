// SPDX-License-Identifier: MIT
#include "tests/support/PictureCompare.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <iostream>
#include <limits>
#include <sstream>

namespace grisal::test
{

namespace
{

/// Failing comparisons save an image, so each test uses its own directory.
class PictureCompareTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir::setCurrent(m_directory.path())); }
    void TearDown() override { QDir::setCurrent(m_before); }

private:
    QString m_before = QDir::currentPath();
    QTemporaryDir m_directory;
};

/// Captures the output to std::cout during its lifetime.
class CapturedOutput
{
public:
    CapturedOutput() : m_before(std::cout.rdbuf(m_text.rdbuf())) {}
    CapturedOutput(const CapturedOutput &) = delete;
    CapturedOutput &operator=(const CapturedOutput &) = delete;
    ~CapturedOutput() { std::cout.rdbuf(m_before); }

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf *m_before;
};

bool mentions(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(PictureCompareTest, SucceedsForEqualImages)
{
    const BytePixels picture = rampPicture<std::uint8_t>(5, 3);

    EXPECT_TRUE(picturesNear("equal", picture, picture));
}

TEST_F(PictureCompareTest, RmsIsTheRootOfTheMeanSquare)
{
    const FloatPixels actual(2, 1, 1, {3, 4});
    const FloatPixels expected(2, 1, 1, {0, 0});

    const Difference d = difference(actual, expected);

    EXPECT_DOUBLE_EQ(d.mean, 3.5);
    EXPECT_DOUBLE_EQ(d.rms, std::sqrt(12.5));
}

TEST_F(PictureCompareTest, ContainsThePositionOfTheLargestDifference)
{
    const BytePixels expected = rampPicture<std::uint8_t>(3, 2);
    BytePixels actual = expected;
    actual.at(0, 0, 0) = static_cast<std::uint8_t>(expected.at(0, 0, 0) + 1);
    actual.at(2, 1, 1) = static_cast<std::uint8_t>(expected.at(2, 1, 1) - 7);
    actual.at(1, 1, 2) = static_cast<std::uint8_t>(expected.at(1, 1, 2) - 2);

    const Difference d = difference(actual, expected);

    EXPECT_EQ(d.x, 2);
    EXPECT_EQ(d.y, 1);
    EXPECT_EQ(d.component, 1);
    EXPECT_DOUBLE_EQ(d.worst, 7);
    EXPECT_DOUBLE_EQ(d.actual, d.expected - 7);
    EXPECT_EQ(d.unequal, 3U);
}

TEST_F(PictureCompareTest, SixteenBitDifferencesUseTheWholeRange)
{
    const Samples16Image actual(1, 1, 1, {0});
    const Samples16Image expected(1, 1, 1, {65535});

    EXPECT_DOUBLE_EQ(difference(actual, expected).worst, 65535);
}

TEST_F(PictureCompareTest, FailsForMissingReference)
{
    EXPECT_FALSE(picturesNear("missing", rampPicture<std::uint8_t>(3, 2), BytePixels{}));
}

TEST_F(PictureCompareTest, FailsForTwoEmptyImages)
{
    EXPECT_FALSE(picturesNear("empty", BytePixels{}, BytePixels{}));
}

TEST_F(PictureCompareTest, FailsForReferenceOfAnotherSize)
{
    const BytePixels wide(3, 2);
    const BytePixels high(2, 3);

    const testing::AssertionResult result = picturesNear("shape", wide, high, {255, 255});

    EXPECT_FALSE(result);
    EXPECT_TRUE(mentions(result.message(), "3x2x3 against 2x3x3")) << result.message();
}

TEST_F(PictureCompareTest, FailsForNaNWithAnyLimit)
{
    const FloatPixels nothing(1, 1, 1, {std::numeric_limits<float>::quiet_NaN()});
    const FloatPixels something(1, 1, 1, {1});

    EXPECT_FALSE(picturesNear("nan", nothing, something, {1e30, 0}));
    EXPECT_FALSE(picturesNear("nan", something, nothing, {1e30, 0}));
    EXPECT_FALSE(picturesNear("nan", nothing, nothing, {1e30, 0}));
}

TEST_F(PictureCompareTest, WorstDifferenceMayReachButNotExceedItsLimit)
{
    const BytePixels expected(1, 1, 1, {100});
    const BytePixels actual(1, 1, 1, {103});

    EXPECT_TRUE(picturesNear("limit", actual, expected, {3, 0}));
    EXPECT_FALSE(picturesNear("limit", actual, expected, {2, 0}));
}

TEST_F(PictureCompareTest, MeanHasASeparateLimit)
{
    const BytePixels expected(4, 1, 1, {10, 10, 10, 10});
    const BytePixels actual(4, 1, 1, {11, 11, 10, 10});

    EXPECT_TRUE(picturesNear("mean", actual, expected, {1, 0.5}));
    EXPECT_FALSE(picturesNear("mean", actual, expected, {1, 0.4}));
}

TEST_F(PictureCompareTest, FailureReportsThePositionAndBothValues)
{
    BytePixels expected(4, 3);
    BytePixels actual = expected;
    expected.at(3, 2, 1) = 20;
    actual.at(3, 2, 1) = 90;

    const testing::AssertionResult result = picturesNear("told", actual, expected);

    ASSERT_FALSE(result);
    EXPECT_TRUE(mentions(result.message(), "90 instead of 20 at x 3, y 2, component 1")) << result.message();
}

TEST_F(PictureCompareTest, FailureSavesTheActualImage)
{
    ASSERT_FALSE(picturesNear("kept", BytePixels(1, 1, 3, {1, 2, 3}), BytePixels(1, 1)));

    EXPECT_TRUE(QFile::exists(QStringLiteral(GRISAL_TEST_PICTURES "/kept.png")));
}

TEST_F(PictureCompareTest, SuccessPrintsTheLargestDifference)
{
    const CapturedOutput output;

    EXPECT_TRUE(picturesNear("printed", BytePixels(1, 1, 1, {103}), BytePixels(1, 1, 1, {100}), {5, 0}));

    EXPECT_TRUE(mentions(output.text(), "printed: largest difference 3")) << output.text();
}

} // namespace grisal::test
