// SPDX-License-Identifier: MIT
#include "graphics/cpu/StoredValues.h"

#include "tests/support/HalfFloats.h"
#include "tests/support/ReferenceFilters.h"

#include <gtest/gtest.h>

#include <limits>

namespace grisal::graphics::cpu
{

namespace
{

using Bytes = StoredValues<std::uint8_t>;
using HalfFloats = StoredValues<std::uint16_t>;

constexpr std::size_t infinityIndex = 0x7C00;

/// The float that follows in the direction of infinity.
float next(float value)
{
    return std::nextafter(value, std::numeric_limits<float>::infinity());
}

} // namespace

TEST(StoredValuesTest, BytesAreRoundedLikeThoseOfTheReference)
{
    for (int i = -300; i <= 6000; ++i) {
        const float value = static_cast<float>(i) / 5100; // twenty steps per byte
        EXPECT_EQ(Bytes::sampleOf(value), test::reference::toByte(value)) << value;
        EXPECT_EQ(Bytes::indexOf(value), test::reference::toByte(value)) << value;
        EXPECT_EQ(Bytes::storedTimesWhite(value), Bytes::stored(value) * white) << value;
        EXPECT_EQ(Bytes::stored(value), test::reference::fromByte(test::reference::toByte(value))) << value;
    }
}

TEST(StoredValuesTest, EveryHalfFloatHasItsIndexAndIsStoredExactly)
{
    for (std::size_t i = 0; i < HalfFloats::count; ++i) {
        if ((i & infinityIndex) != infinityIndex) {
            const float value = HalfFloats::valueOf(i);
            ASSERT_EQ(HalfFloats::indexOf(value), i);
            ASSERT_EQ(HalfFloats::stored(value), value);
        }
    }
}

TEST(StoredValuesTest, ValuesBetweenTwoHalfFloatsAreTruncated)
{
    for (std::size_t i = 0; i + 1 < infinityIndex; ++i) {
        const float lower = HalfFloats::valueOf(i);
        const float upper = HalfFloats::valueOf(i + 1);
        for (const float value : {next(lower), (lower + upper) / 2, -next(-upper)}) {
            ASSERT_EQ(HalfFloats::stored(value), test::cutToHalfFloat(value)) << value;
            ASSERT_EQ(HalfFloats::stored(-value), test::cutToHalfFloat(-value)) << value;
            ASSERT_EQ(HalfFloats::indexOf(value), i) << value;
            ASSERT_EQ(HalfFloats::indexOf(-value), i | 0x8000U) << value;
        }
    }
}

TEST(StoredValuesTest, HalfFloatsAreConvertedToSamplesLikeThoseOfTheReference)
{
    for (std::size_t i = 0; i < infinityIndex; ++i) {
        const float value = HalfFloats::valueOf(i);
        ASSERT_EQ(HalfFloats::sampleOf(value), std::lround(std::min(value, 1.0F) * 65535.0F)) << value;
        ASSERT_EQ(HalfFloats::sampleOf(-value), 0) << value;
    }
}

TEST(StoredValuesTest, ValuesBeyondHalfFloatsHaveTheIndexOfInfinity)
{
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(HalfFloats::indexOf(65536), infinityIndex);
    EXPECT_EQ(HalfFloats::indexOf(infinity), infinityIndex);
    EXPECT_EQ(HalfFloats::indexOf(-infinity), infinityIndex | 0x8000U);
    EXPECT_EQ(HalfFloats::indexOf(std::numeric_limits<float>::quiet_NaN()), infinityIndex);
}

TEST(StoredValuesTest, NaNIsWrittenAsZero)
{
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(Bytes::sampleOf(notANumber), 0);
    EXPECT_EQ(HalfFloats::sampleOf(HalfFloats::stored(notANumber)), 0);
}

} // namespace grisal::graphics::cpu
