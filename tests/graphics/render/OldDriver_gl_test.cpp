// SPDX-License-Identifier: MIT
//
// The final render with an OpenGL 2.1 driver that does not support half floats in transfers.
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/render/FinalRender.h"
#include "tests/support/GlTest.h"
#include "tests/support/HalfFloats.h"
#include "tests/support/Images.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"

#include <dlfcn.h>

#include <memory>
#include <utility>

namespace
{

bool refusesHalfFloats = false;

/// Such a driver reports GL_INVALID_ENUM for the unknown type.
GLenum typeForTheOldDriver(GLenum type)
{
    return refusesHalfFloats && type == GL_HALF_FLOAT ? GL_NONE : type;
}

template <typename Function>
Function *theDrivers(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

/// Replace the functions of the OpenGL driver.
extern "C" void GLAPIENTRY glTexImage2D(GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height,
                                        GLint border, GLenum format, GLenum type, const void *pixels)
{
    static auto *const real = theDrivers<decltype(glTexImage2D)>("glTexImage2D");
    real(target, level, internalFormat, width, height, border, format, typeForTheOldDriver(type), pixels);
}

extern "C" void GLAPIENTRY glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type,
                                        void *pixels)
{
    static auto *const real = theDrivers<decltype(glReadPixels)>("glReadPixels");
    real(x, y, width, height, format, typeForTheOldDriver(type), pixels);
}

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;

class OldDriver : public GlTest
{
protected:
    void SetUp() override
    {
        GlTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        view = std::make_unique<FlexibleDocumentView>(8, 8, 8, 8, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
        filters = std::make_unique<FilterSet>();
        filters->get<MixerFilter>().enabled = true;
        filters->get<CurveFilter>().enabled = true;
        filters->get<VignetteFilter>().enabled = true;
        parameters.get<MixerFilter>().weights = {0.3F, 0.5F, 0.2F};
    }

    void TearDown() override
    {
        view.reset();
        filters.reset();
        GlTest::TearDown();
    }

    /// The render result with these driver flags; without pixels if the render fails.
    Samples16Image render(bool version30, bool halfFloatPixel, int components)
    {
        const bool hasVersion = std::exchange(__GLEW_VERSION_3_0, version30 ? GL_TRUE : GL_FALSE) == GL_TRUE;
        const bool hasExtension =
            std::exchange(__GLEW_ARB_half_float_pixel, halfFloatPixel ? GL_TRUE : GL_FALSE) == GL_TRUE;
        auto picture = rampPicture<std::uint16_t>(2055, 5, components);
        const bool rendered =
            changeInPlace(picture, [&](Image &image) { return renderFinalImage(image, parameters, *filters, *view); });
        __GLEW_VERSION_3_0 = hasVersion ? GL_TRUE : GL_FALSE;
        __GLEW_ARB_half_float_pixel = hasExtension ? GL_TRUE : GL_FALSE;
        return rendered ? picture : Samples16Image();
    }

    Samples16Image renderOnTheOldDriver(bool version30, bool halfFloatPixel, int components)
    {
        refusesHalfFloats = true;
        const Samples16Image picture = render(version30, halfFloatPixel, components);
        refusesHalfFloats = false;
        return picture;
    }

    LogCapture log;
    std::unique_ptr<FlexibleDocumentView> view;
    std::unique_ptr<FilterSet> filters;
    FilterParameters parameters;
};

TEST_F(OldDriver, RendersSixteenBitImagesLikeOtherDrivers)
{
    // At the upload llvmpipe rounds to the nearest half float; another driver may be one half float away.
    const double limit = isLlvmpipe() ? 0 : halfFloatStep;
    for (const int components : {3, 4}) {
        const Samples16Image expected = render(true, true, components);

        const Samples16Image actual = renderOnTheOldDriver(false, false, components);

        EXPECT_TRUE(picturesNear("old driver", actual, expected, {limit, 0}));
    }
}

TEST_F(OldDriver, RenderFailsIfHalfFloatsAreWronglyAdvertised)
{
    EXPECT_TRUE(renderOnTheOldDriver(true, false, 3).values.empty());
    EXPECT_TRUE(renderOnTheOldDriver(false, true, 3).values.empty());
}

} // namespace
