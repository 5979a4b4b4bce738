// SPDX-License-Identifier: MIT
//
// Final renders in which an OpenGL call fails.
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/filters/NoiseMap.h"
#include "graphics/gl/GlErrors.h"
#include "graphics/render/FinalRender.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/Images.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Pictures.h"

#include <dlfcn.h>

#include <memory>

namespace
{

/// Which call of an entry point fails, counted from 1; none at 0.
struct Fault {
    int place = 0;
    int calls = 0;

    bool isNow() { return ++calls == place; }
};

Fault errorFault;
Fault framebufferFault;
PFNGLCHECKFRAMEBUFFERSTATUSPROC realCheck = nullptr;

GLenum GLAPIENTRY checkWithFault(GLenum target)
{
    return framebufferFault.isNow() ? GL_FRAMEBUFFER_UNSUPPORTED : realCheck(target);
}

} // namespace

/// Replaces the function of the OpenGL driver.
extern "C" GLenum GLAPIENTRY glGetError()
{
    static const auto real = reinterpret_cast<GLenum(GLAPIENTRY *)()>(dlsym(RTLD_NEXT, "glGetError"));
    const GLenum error = real();
    return errorFault.isNow() ? GL_OUT_OF_MEMORY : error;
}

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;

class GlErrors : public GlTest
{
protected:
    static constexpr int width = 2055; // four tiles
    static constexpr int height = 6;

    void SetUp() override
    {
        GlTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        realCheck = std::exchange(__glewCheckFramebufferStatus, checkWithFault);
        view = std::make_unique<FlexibleDocumentView>(width, height, width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
        filters = std::make_unique<FilterSet>();
        filters->get<MixerFilter>().enabled = true;
        filters->get<CurveFilter>().enabled = true;
        filters->get<HalfToneFilter>().enabled = true;
        filters->get<GrainFilter>().enabled = true;
        filters->get<VignetteFilter>().enabled = true;
        parameters.get<GrainFilter>().weights = QVector<float>(256, 0.5F);
    }

    void TearDown() override
    {
        view.reset();
        filters.reset();
        if (realCheck != nullptr) {
            __glewCheckFramebufferStatus = std::exchange(realCheck, nullptr);
        }
        GlTest::TearDown();
    }

    /// Renders the same image while these calls fail; returns false if the render fails.
    bool render(int failingError, int failingCheck)
    {
        picture = source;
        errorFault = {failingError, 0};
        framebufferFault = {failingCheck, 0};
        const bool rendered =
            changeInPlace(picture, [&](Image &image) { return renderFinalImage(image, parameters, *filters, *view); });
        errorFault.place = framebufferFault.place = 0;
        return rendered;
    }

    /// Expects that the render fails with a log message or gives the right result in another way, and that the next
    /// render is right. Returns whether the render failed.
    bool expectNothingWrong(int failingError, int failingCheck)
    {
        log.clear();
        const bool rendered = render(failingError, failingCheck);
        EXPECT_EQ(picture.values, rendered ? right.values : source.values);
        EXPECT_EQ(log.contains(QStringLiteral("OpenGL could not render the picture")), !rendered);
        EXPECT_TRUE(render(0, 0));
        EXPECT_EQ(picture.values, right.values);
        return !rendered;
    }

    BytePixels noise() const
    {
        return readBytes(filters->get<GrainFilter>().blurredNoise()->record(), noiseMapSide, noiseMapSide);
    }

    void spoilNoise() const
    {
        const BytePixels black(noiseMapSide, noiseMapSide);
        glBindTexture(GL_TEXTURE_2D, filters->get<GrainFilter>().blurredNoise()->record().texture);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, black.width, black.height, GL_RGB, GL_UNSIGNED_BYTE,
                        black.values.data());
        glBindTexture(GL_TEXTURE_2D, 0);
    }

    LogCapture log;
    std::unique_ptr<FlexibleDocumentView> view;
    std::unique_ptr<FilterSet> filters;
    FilterParameters parameters;
    const BytePixels source = rampPicture<std::uint8_t>(width, height);
    BytePixels picture;
    BytePixels right;
};

TEST_F(GlErrors, OutOfMemoryInAnyCallGivesNoWrongImage)
{
    ASSERT_TRUE(render(0, 0));
    right = picture;
    const int calls = errorFault.calls;
    ASSERT_GT(calls, 5);
    int failed = 0;
    for (int call = 1; call <= calls; ++call) {
        failed += expectNothingWrong(call, 0) ? 1 : 0;
    }
    EXPECT_GT(failed, calls / 3);
}

TEST_F(GlErrors, IncompleteFramebuffersGiveNoWrongImage)
{
    ASSERT_TRUE(render(0, 0));
    right = picture;
    const int calls = framebufferFault.calls;
    ASSERT_GT(calls, 3);
    int failed = 0;
    for (int call = 1; call <= calls; ++call) {
        failed += expectNothingWrong(0, call) ? 1 : 0;
    }
    EXPECT_GT(failed, calls / 3);
}

// A failed render may have changed the noise: the next render blurs it again, even with the same radius.
TEST_F(GlErrors, RenderAfterAFailureBlursTheNoiseAgain)
{
    ASSERT_TRUE(render(0, 0));
    right = picture;
    spoilNoise();
    ASSERT_TRUE(render(0, 0));
    ASSERT_NE(picture.values, right.values) << "the noise makes no difference";

    ASSERT_FALSE(render(0, 1));

    EXPECT_TRUE(render(0, 0));
    EXPECT_EQ(picture.values, right.values);
}

TEST_F(GlErrors, NoiseIsBlurredAgainAfterAFailedBlur)
{
    filters->get<GrainFilter>().setSigma(1.5F);
    const BytePixels expected = noise();
    filters->get<GrainFilter>().discardNoise();
    errorFault = {};
    filters->get<GrainFilter>().setSigma(1.5F);
    const int calls = errorFault.calls;
    ASSERT_GT(calls, 3);
    constexpr int earlierError = 1;
    for (int call = earlierError + 1; call <= calls; ++call) {
        filters->get<GrainFilter>().discardNoise();
        errorFault = {call, 0};
        filters->get<GrainFilter>().setSigma(1.5F);
        EXPECT_EQ(filters->get<GrainFilter>().blurredNoise(), nullptr) << "call " << call;

        filters->get<GrainFilter>().setSigma(1.5F);
        EXPECT_EQ(noise().values, expected.values) << "call " << call;
    }
}

TEST_F(GlErrors, ErrorBeforeConstructionIsNotCounted)
{
    glEnable(GL_INVALID_VALUE);
    const GlErrorScope scope;
    EXPECT_TRUE(scope.isClean());
    glEnable(GL_INVALID_VALUE);
    EXPECT_FALSE(scope.isClean());
}

TEST_F(GlErrors, ClearedErrorIsNotCounted)
{
    const GlErrorScope outer;
    GlErrorScope inner;
    recordIncompleteFramebuffer();
    recordGlError(GL_OUT_OF_MEMORY);
    EXPECT_FALSE(outer.isClean());
    inner.clear();
    EXPECT_TRUE(outer.isClean());
    recordGlError(GL_NO_ERROR);
    EXPECT_TRUE(outer.isClean());
}

} // namespace
