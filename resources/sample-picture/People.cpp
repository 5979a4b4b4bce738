// SPDX-License-Identifier: MIT
#include "resources/sample-picture/People.h"
#include "resources/sample-picture/Noise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace grisal::sample
{

namespace
{

struct Person {
    Point face;  ///< centre of the face; x as a fraction of the scene's width
    double size; ///< half the height of the face
    Colour skin;
    Colour hair;
    Colour shirt;
};

constexpr std::array people{
    Person{{0.330, 0.575}, 0.078, {0.94, 0.76, 0.66}, {0.62, 0.42, 0.20}, {0.20, 0.34, 0.62}},
    Person{{0.440, 0.545}, 0.082, {0.83, 0.62, 0.47}, {0.13, 0.09, 0.07}, {0.86, 0.83, 0.76}},
    Person{{0.550, 0.575}, 0.078, {0.64, 0.43, 0.30}, {0.09, 0.06, 0.05}, {0.72, 0.17, 0.16}},
    Person{{0.655, 0.555}, 0.080, {0.37, 0.23, 0.16}, {0.05, 0.04, 0.04}, {0.90, 0.68, 0.16}},
};

// The light comes from the sun at the upper right.
double roundLight(const Point &local)
{
    const double away = std::min(1.0, local.x * local.x + local.y * local.y);
    const double towards = std::sqrt(1 - away);
    return std::clamp(0.58 + 0.30 * towards + 0.26 * local.x - 0.22 * local.y, 0.0, 1.15);
}

Colour withBody(const Colour &background, const Point &at, const Person &person)
{
    const Ellipse shoulders{{0, 4.35}, 1.62, 3.0};
    const Point on = shoulders.local(at);
    const double outline = std::cbrt(std::pow(std::abs(on.x), 3) + std::pow(std::abs(on.y), 3));
    const double folds = cloudNoise(at.x * 2.6 + person.size * 100, at.y * 0.9, 4, 201) - 0.5;
    const Colour cloth = person.shirt * (0.95 * roundLight({on.x, on.y * 0.7}) + 0.35 * folds);
    const Colour dressed = mix(background, cloth, 1 - softStep(0.99, 1.01, outline));
    const Ellipse neck{{0, 1.02}, 0.40, 0.55};
    return mix(dressed, person.skin * (0.72 * roundLight(neck.local(at)) + 0.04), neck.cover(at));
}

Colour hairAt(const Person &person, const Point &at)
{
    const double strands = cloudNoise(at.x * 14, at.y * 2.5, 3, 211);
    return person.hair * (0.55 + 0.9 * strands * roundLight({at.x, at.y + 0.3}));
}

Colour skinAt(const Person &person, const Point &at)
{
    const double pores = cloudNoise(at.x * 16, at.y * 16, 3, 221) - 0.5;
    const Colour skin = person.skin * (1.04 * roundLight({at.x * 0.95, at.y * 0.8}) + 0.07 * pores);
    const double blush =
        Ellipse{{0.42, 0.30}, 0.28, 0.22}.cover(at, 0.8) + Ellipse{{-0.42, 0.30}, 0.28, 0.22}.cover(at, 0.8);
    return mix(skin, {skin.r * 1.06, skin.g * 0.86, skin.b * 0.84}, 0.6 * blush);
}

Colour withFeatures(Colour skin, const Point &at, const Person &person)
{
    for (const double side : {-1.0, 1.0}) {
        skin = mix(skin, person.hair * 0.9, 0.75 * Ellipse{{side * 0.34, -0.20}, 0.19, 0.035}.cover(at, 0.5));
        skin = mix(skin, {0.90, 0.89, 0.87}, 0.9 * Ellipse{{side * 0.34, -0.03}, 0.135, 0.065}.cover(at, 0.3));
        skin = mix(skin, {0.10, 0.07, 0.05}, Ellipse{{side * 0.34, -0.03}, 0.062, 0.066}.cover(at, 0.3));
    }
    skin = mix(skin, skin * 0.72, 0.8 * Ellipse{{-0.05, 0.25}, 0.13, 0.06}.cover(at, 0.9));
    skin = mix(skin, skin * 1.12, 0.8 * Ellipse{{0.03, 0.08}, 0.06, 0.20}.cover(at, 0.9));
    const Colour lips{std::min(1.0, person.skin.r * 0.92), person.skin.g * 0.52, person.skin.b * 0.55};
    return mix(skin, lips, 0.9 * Ellipse{{0, 0.52 - 0.10 * at.x * at.x * 4}, 0.26, 0.062}.cover(at, 0.4));
}

Colour withPerson(const Colour &background, const Point &point, const Person &person, double width)
{
    const Point at{(point.x - person.face.x * width) / person.size, (point.y - person.face.y) / person.size};
    if (std::abs(at.x) > 2.5 || at.y < -1.6) {
        return background;
    }
    Colour colour = withBody(background, at, person);
    const Ellipse hair{{0, -0.16}, 0.93, 1.08};
    colour = mix(colour, hairAt(person, at), hair.cover(at, 0.02));
    const Ellipse face{{0, 0.06}, 0.76, 0.98};
    const double fringe = softStep(-0.52, -0.40, at.y + 0.10 * cloudNoise(at.x * 5, 0.5, 2, 231) - 0.05 * at.x);
    return mix(colour, withFeatures(skinAt(person, at), at, person), face.cover(at, 0.03) * fringe);
}

constexpr std::array patches{
    Colour{0.86, 0.08, 0.10}, Colour{0.95, 0.48, 0.06}, Colour{0.97, 0.88, 0.08}, Colour{0.10, 0.62, 0.18},
    Colour{0.08, 0.70, 0.76}, Colour{0.08, 0.20, 0.78}, Colour{0.46, 0.12, 0.66}, Colour{0.88, 0.12, 0.56},
};
constexpr int patchColumns = 2;
constexpr int patchRows = 4;

} // namespace

Colour withPeople(const Colour &background, const Point &point, double width)
{
    Colour colour = background;
    for (const Person &person : people) {
        colour = withPerson(colour, point, person, width);
    }
    return colour;
}

Colour withColourBoard(const Colour &background, const Point &point, double width)
{
    // The board is slightly tilted; u and v are 0 to 1 on it.
    const double u = (point.x - width * 0.800 + (point.y - 0.7) * 0.06) / 0.215;
    const double v = (point.y - 0.520 - (point.x - width * 0.86) * 0.05) / 0.395;
    const double inside = std::min({u, 1 - u, v, 1 - v});
    if (inside <= 0) {
        return background;
    }
    const double wood = cloudNoise(u * 3, v * 40, 3, 241);
    const double column = u * patchColumns;
    const double row = v * patchRows;
    const double inColumn = column - std::floor(column);
    const double inRow = row - std::floor(row);
    const auto index = static_cast<std::size_t>(row) * patchColumns + static_cast<std::size_t>(column);
    const double onPatch = softStep(0.075, 0.090, std::min({inColumn, 1 - inColumn, inRow, 1 - inRow}));
    const Colour frame = mix({0.32, 0.21, 0.12}, {0.56, 0.40, 0.25}, wood);
    const Colour board = mix(frame, patches.at(index) * (0.94 + 0.10 * wood), onPatch);
    return mix(background, board, softStep(0, 0.008, inside));
}

} // namespace grisal::sample
