// SPDX-License-Identifier: MIT
//
// make_seeds FOLDER: writes the inputs that fuzzers start with: to FOLDER/read small images, one of each kind, and to
// FOLDER/look the texts of looks.
#include "graphics/look/FilmPresets.h"
#include "graphics/look/LookText.h"
#include "tests/graphics/files/PictureFiles.h"

#include <QFile>

#include <cstdlib>
#include <iostream>
#include <string>

namespace
{

using namespace grisal::graphics;
using namespace grisal::test;

Samples colours(int x, int y)
{
    return {static_cast<std::uint16_t>(x * 4099), static_cast<std::uint16_t>(y * 8191),
            static_cast<std::uint16_t>((x * y) * 257)};
}

void writePictures(const std::string &folder)
{
    for (const int depth : {8, 16}) {
        const std::string bits = std::to_string(depth);
        Magick::Image picture = painted(16, 8, depth, colours);
        for (const char *extension : {"jpg", "png", "tif"}) {
            picture.write(folder + "/colour" + bits + "." + extension);
        }
        Magick::Image grey = picture;
        grey.type(Magick::GrayscaleType);
        Magick::Image palette = picture;
        palette.type(Magick::PaletteType);
        for (const char *extension : {"png", "tif"}) {
            grey.write(folder + "/grey" + bits + "." + extension);
            palette.write(folder + "/palette" + bits + "." + extension);
        }
    }
}

bool writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool writeLooks(const QString &folder)
{
    Look film;
    film.mixer.weights = filmPresets.back().weights();
    Look all;
    all.enabled.get<CurveFilter>() = true;
    all.enabled.get<GrainFilter>() = true;
    all.enabled.get<HalfToneFilter>() = true;
    all.enabled.get<VignetteFilter>() = true;
    all.toneCurve.kind = CurveKind::Straight;
    return writeText(folder + QStringLiteral("/film.json"), lookText(film)) &&
           writeText(folder + QStringLiteral("/all.json"), lookText(all, LookFormat::Indented)) &&
           writeText(folder + QStringLiteral("/least.json"), R"({"version":1})");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "make_seeds FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::string folder = argv[1];
    writePictures(folder + "/read");
    return writeLooks(QString::fromStdString(folder + "/look")) ? EXIT_SUCCESS : EXIT_FAILURE;
}
