// SPDX-License-Identifier: MIT
#pragma once

#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

namespace grisal::test
{

/// A test that reads files of a temporary folder into an image.
struct ImageTest : testing::Test {
    QTemporaryDir directory;
    graphics::LumioImage image;

    QString path(const QString &name) const { return directory.filePath(name); }

    /// Writes a file with GraphicsMagick alone. Returns its path.
    QString written(Magick::Image picture, const QString &name) const
    {
        picture.write(path(name).toStdString());
        return path(name);
    }
};

} // namespace grisal::test
