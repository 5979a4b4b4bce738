// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace grisal::sample
{

/// A colour of the scene: red, green and blue as a camera stores them, 0 to 1.
struct Colour {
    double r = 0;
    double g = 0;
    double b = 0;
};

/// A position in the scene. y is 0 at the top and 1 at the bottom; x has the same unit, so that circles are round.
struct Point {
    double x = 0;
    double y = 0;
};

inline Colour operator*(const Colour &colour, double factor)
{
    return {colour.r * factor, colour.g * factor, colour.b * factor};
}

inline Colour operator+(const Colour &one, const Colour &other)
{
    return {one.r + other.r, one.g + other.g, one.b + other.b};
}

/// Linear interpolation: `from` for amount 0, `to` for 1.
inline Colour mix(const Colour &from, const Colour &to, double amount)
{
    return from * (1 - amount) + to * amount;
}

/// Smooth step: 0 below `low`, 1 above `high`.
inline double softStep(double low, double high, double value)
{
    const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

struct Ellipse {
    Point centre;
    double radiusX;
    double radiusY;

    /// The point relative to the centre, in radii: length 1 on the outline.
    Point local(const Point &point) const { return {(point.x - centre.x) / radiusX, (point.y - centre.y) / radiusY}; }

    double distance(const Point &point) const
    {
        const Point at = local(point);
        return std::hypot(at.x, at.y);
    }

    /// Coverage: 1 inside, 0 outside, with an edge of `softness` radii.
    double cover(const Point &point, double softness = 0.04) const
    {
        return 1 - softStep(1 - softness, 1 + softness, distance(point));
    }
};

} // namespace grisal::sample
