// SPDX-License-Identifier: MIT
//
// The preview at scales below 1, compared with a box filter, which is what a reduced copy of the saved file shows.
#include "tests/ui/preview/GLWidgetTest.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

namespace
{

using namespace grisal::test;
using grisal::graphics::GrainFilter;

/// Part of a pixel row or column: the samples from `first` to `last`, both with fractions.
struct Span {
    double first = 0;
    double last = 0;
};

double overlap(Span span, int pixel)
{
    return std::min(span.last, pixel + 1.0) - std::max(span.first, static_cast<double>(pixel));
}

/// The mean of the green samples in a rectangle, with the edge pixels weighted by the covered area.
double boxMean(const BytePixels &image, Span columns, Span rows)
{
    double sum = 0;
    for (int y = static_cast<int>(rows.first); y < std::ceil(rows.last); ++y) {
        for (int x = static_cast<int>(columns.first); x < std::ceil(columns.last); ++x) {
            sum += overlap(columns, x) * overlap(rows, y) * image.at(x, y, 1);
        }
    }
    return sum / ((columns.last - columns.first) * (rows.last - rows.first));
}

/// The grey values of the pixels that are completely inside the shown image, and those of a box filter.
struct Shown {
    std::vector<double> screen;
    std::vector<double> boxFiltered;
};

double signalToNoise(const Shown &shown)
{
    double sum = 0;
    for (std::size_t i = 0; i < shown.screen.size(); ++i) {
        sum += std::pow(shown.screen[i] - shown.boxFiltered[i], 2);
    }
    return 10 * std::log10(255.0 * 255.0 * static_cast<double>(shown.screen.size()) / sum);
}

double standardDeviation(const std::vector<double> &values)
{
    double mean = 0;
    for (const double value : values) {
        mean += value / static_cast<double>(values.size());
    }
    double squares = 0;
    for (const double value : values) {
        squares += (value - mean) * (value - mean);
    }
    return std::sqrt(squares / static_cast<double>(values.size()));
}

/// Detail as in a photograph: noise at every size from one pixel to a quarter of the width, of equal strength, with
/// dark lines of one pixel.
BytePixels detailedPicture(int width, int height)
{
    BytePixels picture(width, height);
    std::minstd_rand random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same picture in every run
    std::vector<double> values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 128);
    for (int size = 1; size <= width / 4; size *= 2) {
        const int columns = width / size + 1;
        std::vector<double> cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(height / size + 1));
        for (double &cell : cells) {
            cell = static_cast<double>(random() % 21) - 10;
        }
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int x = static_cast<int>(i) % width;
            const int y = static_cast<int>(i) / width;
            values[i] += cells[static_cast<std::size_t>(y / size) * static_cast<std::size_t>(columns) +
                               static_cast<std::size_t>(x / size)];
        }
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int x = static_cast<int>(i) % width;
        const int y = static_cast<int>(i) / width;
        const bool line = (x + y) % 97 == 0;
        std::fill_n(picture.values.begin() + static_cast<std::ptrdiff_t>(3 * i), 3,
                    line ? 20 : static_cast<std::uint8_t>(std::clamp(values[i], 0.0, 255.0)));
    }
    return picture;
}

/// Counts the calls of glGenerateMipmap.
class MipmapCounter
{
public:
    MipmapCounter()
    {
        s_count = 0;
        s_real = std::exchange(glGenerateMipmap, &countCall);
    }
    MipmapCounter(const MipmapCounter &) = delete;
    MipmapCounter &operator=(const MipmapCounter &) = delete;
    ~MipmapCounter() { glGenerateMipmap = s_real; }

    int count() const { return s_count; }

private:
    static void GLAPIENTRY countCall(GLenum target)
    {
        ++s_count;
        s_real(target);
    }

    static inline int s_count = 0;
    static inline PFNGLGENERATEMIPMAPPROC s_real = nullptr;
};

/// A widget that shows an image reduced as a whole.
class GLWidgetReducedTest : public GLWidgetTest
{
protected:
    void showFitted(const BytePixels &image)
    {
        show(400, 300);
        load(image);
        timeOutNow(resizeTimer());
    }

    /// Grabs the screen; `image` is what it would show at 1:1.
    Shown grab(const BytePixels &image)
    {
        repaintAndWait(widget);
        const BytePixels screen = grabScreen(widget);
        Shown shown;
        for (int y = 0; y < screen.height; ++y) {
            for (int x = 0; x < screen.width; ++x) {
                const Span columns = spanOf(x, screen.width, image.width);
                const Span rows = spanOf(y, screen.height, image.height);
                const bool inside =
                    columns.first >= 0 && columns.last <= image.width && rows.first >= 0 && rows.last <= image.height;
                if (inside) {
                    shown.screen.push_back(screen.at(x, y, 1));
                    shown.boxFiltered.push_back(boxMean(image, columns, rows));
                }
            }
        }
        return shown;
    }

    /// The image pixels under a pixel of the screen, of a centred image.
    Span spanOf(int screenPixel, int screenSize, int imageSize) const
    {
        const double first = (screenPixel - screenSize / 2.0) / widget.scale() + imageSize / 2.0;
        return {first, first + 1 / widget.scale()};
    }
};

// Mipmaps give 41 dB here, sampling single pixels 28.
constexpr double requiredDecibels = 34;

TEST_F(GLWidgetReducedTest, ShowsNearlyTheBoxFilteredImage)
{
    const BytePixels detailed = detailedPicture(1600, 1064);
    showFitted(detailed);
    ASSERT_LT(widget.scale(), 0.5F);
    EXPECT_GT(signalToNoise(grab(detailed)), requiredDecibels);
}

TEST_F(GLWidgetReducedTest, ShowsNearlyTheBoxFilteredSourceWhileTheButtonIsHeld)
{
    BytePixels detailed = detailedPicture(1600, 1064);
    for (std::size_t red = 0; red < detailed.values.size(); red += 3) {
        detailed.values[red] = 0;
    }
    showFitted(detailed);
    QTest::mousePress(&widget, Qt::LeftButton, {}, {20, 20});
    timeOutNow(clickTimer());
    EXPECT_GT(signalToNoise(grab(detailed)), requiredDecibels);
}

// Sampling single pixels shows grain that is 65 percent stronger.
TEST_F(GLWidgetReducedTest, GrainIsAsStrongAsInAReducedFile)
{
    BytePixels grey(1600, 1064);
    std::fill(grey.values.begin(), grey.values.end(), 128);
    showFitted(grey);
    widget.slotChangeGrain(QVector<float>(256, 0.5F), 1.5F);
    widget.filter<GrainFilter>()->enabled = true;
    widget.renderImage();
    BytePixels file = grey;
    ASSERT_TRUE(renderFinal(file));
    const Shown shown = grab(file);
    const double inFile = standardDeviation(shown.boxFiltered);
    ASSERT_GT(inFile, 0.5);
    EXPECT_NEAR(standardDeviation(shown.screen) / inFile, 1, 0.15);
}

TEST_F(GLWidgetReducedTest, MipmapsAreMadeOnceForEachRender)
{
    showFitted(detailedPicture(800, 532));
    ASSERT_TRUE(repaintAndWait(widget));
    const MipmapCounter made;
    widget.slotZoomIn();
    widget.grabFramebuffer();
    widget.slotFitTo(GLWidget::FitLarger);
    widget.grabFramebuffer();
    EXPECT_EQ(made.count(), 0);
    widget.slotChangeMixer(0, 1, 0);
    widget.grabFramebuffer();
    widget.grabFramebuffer();
    EXPECT_EQ(made.count(), 1);
}

TEST_F(GLWidgetReducedTest, NoMipmapsAreMadeForActualPixels)
{
    showFitted(detailedPicture(800, 532));
    widget.slotActualPixels();
    ASSERT_TRUE(repaintAndWait(widget));
    const MipmapCounter made;
    widget.slotChangeMixer(0, 1, 0);
    widget.grabFramebuffer();
    EXPECT_EQ(made.count(), 0);
    widget.slotFitTo(GLWidget::FitSmaller);
    widget.grabFramebuffer();
    EXPECT_EQ(made.count(), 1);
}

} // namespace
