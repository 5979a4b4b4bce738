// SPDX-License-Identifier: MIT
#include "tests/support/PictureCompare.h"

#include <QDir>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>

namespace grisal::test
{

namespace
{

template <typename T>
bool sameShape(const Pixels<T> &a, const Pixels<T> &b)
{
    return a.width == b.width && a.height == b.height && a.components == b.components &&
           a.values.size() == b.values.size();
}

template <typename T>
int toByte(T value)
{
    const double white = std::is_floating_point_v<T> ? 1.0 : static_cast<double>(std::numeric_limits<T>::max());
    const double level = static_cast<double>(value) / white;
    // NaN becomes black.
    return level > 0 ? static_cast<int>(std::min(level, 1.0) * 255.0 + 0.5) : 0;
}

template <typename T>
std::string savedPicture(const std::string &name, const Pixels<T> &picture)
{
    QImage image(picture.width, picture.height, QImage::Format_RGB32);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const int last = picture.components - 1;
            image.setPixel(x, y,
                           qRgb(toByte(picture.at(x, y, 0)), toByte(picture.at(x, y, std::min(1, last))),
                                toByte(picture.at(x, y, std::min(2, last)))));
        }
    }
    const std::string file = std::string(GRISAL_TEST_PICTURES) + "/" + name + ".png";
    QDir().mkpath(QStringLiteral(GRISAL_TEST_PICTURES));
    return image.save(QString::fromStdString(file)) ? "actual picture: " + file : "the actual picture was not saved";
}

} // namespace

template <typename T>
Difference difference(const Pixels<T> &actual, const Pixels<T> &expected)
{
    Difference result;
    double sum = 0;
    double squares = 0;
    for (int y = 0; y < actual.height; ++y) {
        for (int x = 0; x < actual.width; ++x) {
            for (int c = 0; c < actual.components; ++c) {
                const auto a = static_cast<double>(actual.at(x, y, c));
                const auto e = static_cast<double>(expected.at(x, y, c));
                const double apart =
                    std::isnan(a) || std::isnan(e) ? std::numeric_limits<double>::infinity() : std::abs(a - e);
                sum += apart;
                squares += apart * apart;
                result.unequal += apart > 0 ? 1 : 0;
                if (apart > result.worst) {
                    result = {apart, 0, 0, result.unequal, x, y, c, a, e};
                }
            }
        }
    }
    const auto count = static_cast<double>(actual.values.size());
    result.mean = sum / count;
    result.rms = std::sqrt(squares / count);
    return result;
}

template <typename T>
testing::AssertionResult picturesNear(const std::string &name, const Pixels<T> &actual, const Pixels<T> &expected,
                                      const Limits &limits)
{
    if (expected.values.empty() || !sameShape(actual, expected)) {
        return testing::AssertionFailure()
               << name << ": " << actual.width << "x" << actual.height << "x" << actual.components << " against "
               << expected.width << "x" << expected.height << "x" << expected.components;
    }
    const Difference d = difference(actual, expected);
    if (d.worst <= limits.worst && (d.mean <= limits.mean || limits.mean == 0)) {
        std::cout << name << ": largest difference " << d.worst << ", mean " << d.mean << ", " << d.unequal << " of "
                  << actual.values.size() << " differ\n";
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << name << ": " << d.actual << " instead of " << d.expected << " at x " << d.x
                                       << ", y " << d.y << ", component " << d.component << "; worst " << d.worst
                                       << " (limit " << limits.worst << "), mean " << d.mean << " (limit "
                                       << limits.mean << "), " << d.unequal << " of " << actual.values.size()
                                       << " differ; " << savedPicture(name, actual);
}

template Difference difference(const FloatPixels &, const FloatPixels &);
template Difference difference(const BytePixels &, const BytePixels &);
template Difference difference(const Samples16Image &, const Samples16Image &);
template testing::AssertionResult picturesNear(const std::string &, const FloatPixels &, const FloatPixels &,
                                               const Limits &);
template testing::AssertionResult picturesNear(const std::string &, const BytePixels &, const BytePixels &,
                                               const Limits &);
template testing::AssertionResult picturesNear(const std::string &, const Samples16Image &, const Samples16Image &,
                                               const Limits &);

} // namespace grisal::test
