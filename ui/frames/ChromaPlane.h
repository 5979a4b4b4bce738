// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>

#include <optional>

/// The square of colours that the colour wheel shows: U = B - Y increases to the right, V = R - Y upwards, in the
/// colour space of math/OpponentColour.h. Colours are in the range 0..255.
struct ChromaPlane {
    int uMin = -341;
    int uMax = 341;
    int vMin = -341;
    int vMax = 341;

    int width() const { return uMax - uMin; }
    int height() const { return vMax - vMin; }

    bool operator==(const ChromaPlane &) const = default;
};

/// The chroma of a colour.
struct Chroma {
    float u = 0;
    float v = 0;
};

/// The range of a mode: 0 contains the colours of small weights, 1 those of twice the saturation, 2 all colours that
/// weights of -512..512 produce. nullopt for any other mode.
std::optional<ChromaPlane> chromaPlaneOf(int mode);

/// The position of a chroma as a fraction of the plane, from the top left corner. Outside of 0..1 for a chroma outside
/// of the plane's range.
QPointF markerAt(const ChromaPlane &plane, const Chroma &chroma);

/// The chroma at a fraction of the plane, which may be outside of 0..1.
Chroma chromaAt(const ChromaPlane &plane, QPointF marker);

/// One coordinate of the marker after a keyboard step. The step ends at the edge of the plane. From a position outside
/// of the plane, only steps towards the plane have an effect.
double markerAfterStep(double place, double step);

/// The nearest of the six fully saturated hues, by angle on the colour circle; grey for almost no chroma.
enum class Hue { Grey, Red, Yellow, Green, Cyan, Blue, Magenta };
Hue hueOf(const Chroma &chroma);

/// Whether two values differ by at most 0.00001 of the smaller magnitude. Only 0 is equal to 0.
bool nearlyEqualWeights(float a, float b);

/// The level after the mouse wheel is turned by `delta` eighths of a degree: 0.05 for every 5 complete eighths, clamped
/// to -512..512.
float lumaAfterWheel(float luma, int delta);

/// The colours of the plane at a level: one pixel per integer U and V, red at the top, opaque 32-bit ARGB. Red and blue
/// are clamped to 0..255 and truncated to integers; green is computed from them and the level, and rounded.
QImage wheelImageOf(const ChromaPlane &plane, float luma);
