// SPDX-License-Identifier: MIT
#include "graphics/filters/CurveFilter.h"

#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/UniformRecorder.h"

#include <cmath>

namespace grisal::test
{

namespace
{

using graphics::CurveFilter;
using reference::Rgb;

class CurveFilterTest : public GlTest
{
};

/// 256 outputs of a curve over the greys i/256.
template <typename Curve>
QVector<float> sampled(Curve curve)
{
    QVector<float> values(256);
    for (int i = 0; i < 256; ++i) {
        values[i] = curve(static_cast<float>(i) / 256);
    }
    return values;
}

QVector<float> brightening()
{
    return sampled([](float grey) { return std::sqrt(grey); });
}

FloatPixels expectedOf(const BytePixels &picture, const QVector<float> &curve)
{
    return reference::eachPixel(picture, [&](int, int, Rgb colour) { return reference::curve(colour, curve); });
}

/// The four components of the result for one red value.
std::vector<float> looksUp(CurveFilter &filter, float red)
{
    return runFilter(filter, FloatPixels(1, 1, 3, {red, 0.5F, 0.25F})).values;
}

std::vector<float> fourTimes(float value)
{
    return {value, value, value, value};
}

} // namespace

TEST_F(CurveFilterTest, IsDisabledWithoutCurveAndSizeInitially)
{
    const CurveFilter filter;

    EXPECT_EQ(filter.getName(), "CurveFilter");
    EXPECT_TRUE(filter.curve().isEmpty());
    EXPECT_EQ(filter.curveTexture(), 0U);
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

TEST_F(CurveFilterTest, ProgramHasTheNameOfTheFilter)
{
    const CurveFilter filter;

    EXPECT_EQ(filter.program().name, "CurveFilter");
}

// The program does not read MaxPixel.
TEST_F(CurveFilterTest, SendsItsUniformsInOrder)
{
    CurveFilter filter;
    filter.setCurve({0.1F, 0.4F});
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(),
              (std::vector<SentUniform>{
                  {"Width", {5}}, {"Height", {3}}, {"MaxPixel", {1}}, {"Curve", {1}}, {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

TEST_F(CurveFilterTest, RedSelectsTheSampleForAllFourChannels)
{
    CurveFilter filter;
    filter.setCurve({0.1F, 0.4F, 0.7F, 0.9F});

    EXPECT_EQ(looksUp(filter, 0.0F), fourTimes(0.1F));
    EXPECT_EQ(looksUp(filter, 0.3F), fourTimes(0.4F));
    EXPECT_EQ(looksUp(filter, 0.5F), fourTimes(0.7F));
    EXPECT_EQ(looksUp(filter, 0.8F), fourTimes(0.9F));
}

TEST_F(CurveFilterTest, WhiteReadsTheLastSample)
{
    CurveFilter filter;
    filter.setCurve(sampled([](float grey) { return grey; }));

    EXPECT_EQ(looksUp(filter, 1.0F), fourTimes(255.0F / 256));
}

TEST_F(CurveFilterTest, GreysOutsideZeroToOneAreClamped)
{
    CurveFilter filter;
    filter.setCurve({0.1F, 0.4F, 0.7F, 0.9F});

    EXPECT_EQ(looksUp(filter, -0.1F), fourTimes(0.1F));
    EXPECT_EQ(looksUp(filter, 2.0F), fourTimes(0.9F));
}

// The curve i/256 is slightly darker than the identity: rounded to bytes, the lighter half is one level darker.
TEST_F(CurveFilterTest, NeutralCurveDarkensTheLighterHalfByOneLevel)
{
    CurveFilter filter;
    filter.setCurve(sampled([](float grey) { return grey; }));
    BytePixels greys(256, 1);
    BytePixels expected(256, 1);
    for (int x = 0; x < 256; ++x) {
        for (int c = 0; c < 3; ++c) {
            greys.at(x, 0, c) = static_cast<std::uint8_t>(x);
            expected.at(x, 0, c) = static_cast<std::uint8_t>(x <= 128 ? x : x - 1);
        }
    }

    EXPECT_TRUE(picturesNear("curve-neutral", runFilter(filter, greys), expected));
}

TEST_F(CurveFilterTest, FloatsFollowTheFormula)
{
    CurveFilter filter;
    filter.setCurve(brightening());
    const BytePixels ramp = rampPicture<std::uint8_t>(67, 41);

    const FloatPixels result = runFilter(filter, reference::asFloats(ramp));

    EXPECT_TRUE(picturesNear("curve-floats", reference::withoutAlpha(result), expectedOf(ramp, brightening())));
}

TEST_F(CurveFilterTest, BytesFollowTheFormula)
{
    CurveFilter filter;
    filter.setCurve(brightening());
    const BytePixels ramp = reference::greyRamp();

    const BytePixels expected = reference::asBytes(expectedOf(ramp, brightening()));

    EXPECT_TRUE(picturesNear("curve-bytes", runFilter(filter, ramp), expected));
}

TEST_F(CurveFilterTest, KeepsACopyOfItsCurve)
{
    CurveFilter filter;
    QVector<float> curve{0.1F, 0.4F};
    filter.setCurve(curve);

    curve[0] = 0.9F;

    EXPECT_EQ(filter.curve(), (QVector<float>{0.1F, 0.4F}));
}

TEST_F(CurveFilterTest, NewCurveDeletesTheFormerTexture)
{
    CurveFilter filter;
    filter.setCurve({0.1F, 0.4F});
    const GLuint former = filter.curveTexture();
    ASSERT_TRUE(glIsTexture(former));

    filter.setCurve({0.2F, 0.5F});

    EXPECT_FALSE(glIsTexture(former));
    EXPECT_TRUE(glIsTexture(filter.curveTexture()));
    EXPECT_EQ(looksUp(filter, 0.0F), fourTimes(0.2F));
}

TEST_F(CurveFilterTest, DestructorDeletesTheTexture)
{
    GLuint texture = 0;
    {
        CurveFilter filter;
        filter.setCurve({0.1F, 0.4F});
        texture = filter.curveTexture();
    }
    EXPECT_FALSE(glIsTexture(texture));
}

TEST_F(CurveFilterTest, ResultIsBlackWithoutACurve)
{
    CurveFilter filter;

    EXPECT_EQ(looksUp(filter, 0.7F), fourTimes(0.0F));
}

TEST_F(CurveFilterTest, LeavesUnitZeroActiveAndNo2DTextureBound)
{
    CurveFilter filter;
    filter.setCurve({0.1F, 0.4F});

    runFilter(filter, FloatPixels(1, 1));

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
