// SPDX-License-Identifier: MIT
#include "resources/sample-picture/Landscape.h"
#include "resources/sample-picture/Noise.h"

#include <array>
#include <cstdint>

namespace grisal::sample
{

namespace
{

constexpr double horizon = 0.56;
constexpr double softEdge = 0.0012;

Point sunAt(double width)
{
    return {width * 0.72, 0.36};
}

Colour withClouds(const Colour &sky, const Point &point, double glow)
{
    // Clouds appear flatter and closer together towards the horizon.
    const double nearness = 1 / (horizon + 0.12 - point.y);
    const double density = cloudNoise(point.x * nearness * 0.55 + 3.1, nearness * 1.7, 6, 11);
    const double body = softStep(0.45, 0.66, density) * softStep(0.03, 0.16, horizon - point.y);
    const double light = cloudNoise(point.x * nearness * 0.55 + 3.16, nearness * 1.7 + 0.10, 6, 11);
    const Colour shadow = mix({0.60, 0.65, 0.74}, {0.86, 0.72, 0.62}, glow);
    const Colour bright = mix({0.97, 0.97, 0.97}, {1.00, 0.93, 0.80}, glow);
    return mix(sky, mix(bright, shadow, softStep(0.45, 0.75, light)), body * 0.92);
}

Colour skyAt(const Point &point, double width)
{
    const Point sun = sunAt(width);
    const double away = std::hypot(point.x - sun.x, (point.y - sun.y) * 1.25);
    const double glow = std::exp(-away * 3.2);
    const double height = softStep(0, horizon, point.y);
    const Colour clear = mix({0.17, 0.36, 0.66}, {0.78, 0.85, 0.88}, height);
    const Colour warm = mix(clear, {1.00, 0.87, 0.62}, glow * 0.85);
    const double disc = 1 - softStep(0.030, 0.055, away);
    return mix(withClouds(warm, point, glow), {1.00, 0.98, 0.90}, disc);
}

/// One row of hills: position of the ridge, size of the waves, light and dark colour.
struct Hills {
    double ridge;
    double height;
    double waves;
    std::uint32_t seed;
    Colour light;
    Colour dark;
};

constexpr std::array ranges{
    Hills{0.50, 0.12, 2.1, 21, {0.55, 0.63, 0.72}, {0.46, 0.55, 0.66}},
    Hills{0.54, 0.12, 2.9, 31, {0.42, 0.53, 0.52}, {0.31, 0.42, 0.44}},
    Hills{0.60, 0.10, 3.7, 41, {0.40, 0.49, 0.28}, {0.22, 0.31, 0.20}},
};

double ridgeOf(const Hills &hills, double x)
{
    return hills.ridge - hills.height * (cloudNoise(x * hills.waves, 0.5, 5, hills.seed) - 0.5);
}

Colour hillsAt(const Hills &hills, const Point &point, double depth)
{
    const double trees = cloudNoise(point.x * 46, point.y * 70, 4, hills.seed + 7);
    const double fields = cloudNoise(point.x * 5, point.y * 14, 3, hills.seed + 9);
    const Colour slope = mix(hills.dark, hills.light, softStep(0.25, 0.75, 0.5 * trees + 0.5 * fields));
    return mix(slope, {0.80, 0.80, 0.74}, 0.25 * softStep(0, 0.12, depth)); // haze in the valley
}

Colour withHills(Colour background, const Point &point)
{
    for (const Hills &hills : ranges) {
        const double depth = point.y - ridgeOf(hills, point.x);
        if (depth < -softEdge) {
            continue;
        }
        background = mix(background, hillsAt(hills, point, depth), softStep(-softEdge, softEdge, depth));
    }
    return background;
}

Colour withFlowers(const Colour &grass, const Point &at, double size)
{
    const Leaf flower = leafAt(at.x, at.y, 71);
    const Colour petals = flower.shade > 0.955 ? Colour{0.86, 0.16, 0.13} : Colour{0.95, 0.86, 0.30};
    const double there = flower.shade > 0.92 ? 1 - softStep(0.16, 0.26, flower.distance) : 0;
    return mix(grass, petals, there * size);
}

Colour meadowAt(const Point &point, double depth)
{
    const double scale = 1 / (0.10 + depth); // blades are larger near the viewer
    const Point blades{point.x * 26 * scale, scale * 30};
    const double grain = cloudNoise(blades.x, blades.y * 0.55, 4, 51);
    const double bands = cloudNoise(point.x * 2.2, scale * 1.2, 4, 61);
    const Colour shadow{0.15, 0.25, 0.09};
    const Colour light = mix({0.44, 0.53, 0.17}, {0.63, 0.60, 0.26}, bands);
    const Colour grass = mix(shadow, light, softStep(0.18, 0.78, 0.65 * grain + 0.35 * bands));
    return withFlowers(grass, {point.x * 5.2 * scale, scale * 4}, softStep(0.03, 0.12, depth));
}

Colour withMeadow(const Colour &background, const Point &point)
{
    const double edge = 0.635 + 0.012 * cloudNoise(point.x * 3, 0.3, 3, 81);
    const double depth = point.y - edge;
    if (depth < -softEdge) {
        return background;
    }
    return mix(background, meadowAt(point, std::max(depth, 0.0)), softStep(-softEdge, softEdge, depth));
}

Colour leavesAt(const Point &point, double inside)
{
    const Leaf leaf = leafAt(point.x * 34, point.y * 34, 91);
    const Leaf deeper = leafAt(point.x * 27 + 5, point.y * 27, 95);
    const double light = 0.30 + 0.45 * leaf.shade + 0.35 * leaf.lift;
    const Colour top = mix({0.10, 0.20, 0.05}, {0.55, 0.70, 0.22}, std::clamp(light, 0.0, 1.0));
    const Colour below = mix({0.02, 0.05, 0.02}, {0.10, 0.20, 0.06}, deeper.shade);
    const double cover = 1 - softStep(0.42, 0.52, leaf.distance);
    return mix(below, top, cover) * (0.65 + 0.35 * inside);
}

Colour withBush(const Colour &background, const Point &point)
{
    const double edge = cloudNoise(point.x * 9, point.y * 9, 4, 101) - 0.5;
    const Ellipse crown{{-0.02, 0.40}, 0.30, 0.40};
    const Ellipse foot{{0.02, 0.92}, 0.36, 0.30};
    const double inside = 1.15 - std::min(crown.distance(point), foot.distance(point)) + edge * 0.55;
    const double cover = softStep(0.14, 0.155, inside);
    if (cover == 0) {
        return background;
    }
    return mix(background, leavesAt(point, softStep(0.1, 0.6, inside)), cover);
}

} // namespace

Colour landscapeAt(const Point &point, double width)
{
    Colour colour = point.y < horizon ? skyAt(point, width) : Colour{0.78, 0.85, 0.88};
    colour = withHills(colour, point);
    colour = withMeadow(colour, point);
    return withBush(colour, point);
}

} // namespace grisal::sample
