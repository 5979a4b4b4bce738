// SPDX-License-Identifier: MIT
//
// After an OpenGL failure during a save, the next save has to be correct.
#include "graphics/gl/GL.h"
#include "tests/app/FilesTest.h"

#include <QFile>

#include <dlfcn.h>

namespace
{

int failingCall = 0;
int calls = 0;

} // namespace

/// Replaces the function of the OpenGL driver.
extern "C" GLenum GLAPIENTRY glGetError()
{
    static const auto real = reinterpret_cast<GLenum(GLAPIENTRY *)()>(dlsym(RTLD_NEXT, "glGetError"));
    const GLenum error = real();
    return ++calls == failingCall ? GL_OUT_OF_MEMORY : error;
}

namespace
{

using namespace grisal::test;

class FailedRender : public FilesTest
{
protected:
    /// Opens an image of four tiles, saves it, and saves it again with an OpenGL failure half way through.
    void failToSave(const QString &name, int depth)
    {
        start();
        window.openImage(makePicture(name, 2055, 6, depth, depth == 8 ? colourful : fine));
        calls = 0;
        window.saveImage(inHome(QStringLiteral("right.tif")));
        failingCall = calls / 2;
        calls = 0;
        expectWarning(QStringLiteral("Failed to create texture: Out of memory"));
        expectWarning(QStringLiteral("OpenGL could not render the picture"));
        expectWarning(QStringLiteral("The picture could not be rendered."));
        window.saveImage(inHome(QStringLiteral("failed.tif")));
        failingCall = 0;
        EXPECT_FALSE(QFile::exists(inHome(QStringLiteral("failed.tif"))));
    }

    void expectNextSaveIsRight()
    {
        window.saveImage(inHome(QStringLiteral("next.tif")));
        EXPECT_EQ(samplesOf(inHome(QStringLiteral("next.tif"))), samplesOf(inHome(QStringLiteral("right.tif"))));
    }
};

TEST_F(FailedRender, NextSaveOf8BitsIsCorrect)
{
    failToSave(QStringLiteral("a.png"), 8);
    expectNextSaveIsRight();
}

TEST_F(FailedRender, NextSaveOf16BitsIsCorrect)
{
    failToSave(QStringLiteral("a.tif"), 16);
    expectNextSaveIsRight();
}

// If a file is missing, the open image is opened again.
TEST_F(FailedRender, SaveAfterOpeningMissingFileIsCorrect)
{
    failToSave(QStringLiteral("a.png"), 8);
    expectWarning(QStringLiteral("missing.png"));
    window.openImage(inHome(QStringLiteral("missing.png")));
    expectNextSaveIsRight();
}

} // namespace
