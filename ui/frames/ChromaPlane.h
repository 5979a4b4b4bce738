// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>

#include <optional>

/// The square of colours that the colour wheel shows: U = B - Y runs to the right, V = R - Y upwards, in the colour
/// space of math/OpponentColour.h. Colours count 0..255.
struct ChromaPlane {
    int uMin = -341;
    int uMax = 341;
    int vMin = -341;
    int vMax = 341;

    int width() const { return uMax - uMin; }
    int height() const { return vMax - vMin; }

    bool operator==(const ChromaPlane &) const = default;
};

/// Chroma of a colour.
struct Chroma {
    float u = 0;
    float v = 0;
};

/// The range of a mode: 0 holds the colours of small weights, 1 those of twice the saturation, 2 all that the weights
/// -512..512 can make. Nothing for another mode.
std::optional<ChromaPlane> chromaPlaneOf(int mode);

/// Where a chroma lies, as a fraction of the plane, from the left and from the top. Beyond 0..1 for a chroma beyond the
/// plane's range.
QPointF markerAt(const ChromaPlane &plane, const Chroma &chroma);

/// The chroma at a fraction of the plane, which may lie outside of 0..1.
Chroma chromaAt(const ChromaPlane &plane, QPointF marker);

/// One coordinate of the marker after a step of the keyboard, which leads to an edge of the plane but not beyond it.
/// From beyond, it leads back only.
double markerAfterStep(double place, double step);

/// The nearest of the six full colours by its place on the circle of hues.
enum class Hue { Grey, Red, Yellow, Green, Cyan, Blue, Magenta };
Hue hueOf(const Chroma &chroma);

/// Whether two values differ by no more than 0.00001 of the smaller one's size: 0 is equal to nothing but 0.
bool nearlyEqualWeights(float a, float b);

/// The level after a turn of the mouse wheel by `delta` eighths of a degree: 0.05 for each whole 5 of them, kept within
/// -512..512.
float lumaAfterWheel(float luma, int delta);

/// The colours of the plane at a level, one pixel for each whole U and V, red upwards, 32 bits ARGB and opaque. Red and
/// blue are cut to 0..255 and to whole numbers; green is what the cut red and blue leave of the level, rounded.
QImage wheelImageOf(const ChromaPlane &plane, float luma);
