// SPDX-License-Identifier: MIT
//
// Creates the tiles of the grain strip from the noise map: make_grain_tiles NOISE-MAP FOLDER
#include "resources/grain-tiles/GrainTiles.h"

#include <QImage>
#include <QString>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

namespace
{

using namespace grisal::grain;

Bytes contentsOf(const char *path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool written(const Bytes &tile, const QString &path)
{
    QImage image(tileWidth, tileHeight, QImage::Format_Grayscale8);
    for (int y = 0; y < tileHeight; ++y) {
        std::memcpy(image.scanLine(y), tile.data() + static_cast<std::size_t>(y) * tileWidth, tileWidth);
    }
    constexpr int smallest = 0; // the strongest compression of QImageWriter
    return image.save(path, "PNG", smallest);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_grain_tiles NOISE-MAP FOLDER\n");
        return 2;
    }
    const Bytes noiseMap = contentsOf(argv[1]);
    if (noiseMap.size() != std::size_t{3} * noiseSide * noiseSide) {
        std::fprintf(stderr, "make_grain_tiles: %s is no noise map\n", argv[1]);
        return 1;
    }
    for (const double radius : tileRadii) {
        const int tenths = static_cast<int>(std::lround(radius * 10));
        const QString path =
            QStringLiteral("%1/blur_%2_%3.png").arg(QString::fromLocal8Bit(argv[2])).arg(tenths / 10).arg(tenths % 10);
        if (!written(grainTile(noiseMap, radius), path)) {
            std::fprintf(stderr, "make_grain_tiles: cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
