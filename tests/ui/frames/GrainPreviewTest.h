// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/GuiTest.h"
#include "ui/frames/GrainPreview.h"

namespace grisal::test
{

/// The warning for a strip that is not narrower than the tiles.
inline QString tooSmallTile()
{
    return QStringLiteral("Prerendered map is too small.");
}

/// Weights that differ for every grey and increase with its lightness.
inline QVector<float> risingWeights(int count = 256)
{
    QVector<float> weights(count);
    for (int i = 0; i < count; ++i) {
        weights[i] = static_cast<float>(i) / 255.0F;
    }
    return weights;
}

inline QImage tileOf(const char *name)
{
    const QImage tile(QStringLiteral(":/Prerender/Icons/Blur/blur_%1.png").arg(QLatin1String(name)));
    EXPECT_FALSE(tile.isNull()) << name;
    return tile;
}

/// A test of a strip of 390 x 60 pixels.
class GrainPreviewTest : public GuiTest
{
protected:
    GrainPreviewTest() { preview.resize(390, 60); }

    /// Paints the strip and returns its contents.
    QImage painted() { return preview.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    GrainPreview preview;
};

} // namespace grisal::test
