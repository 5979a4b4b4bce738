// SPDX-License-Identifier: MIT
// Looks are set by mouse and keyboard in the panels and compared in the preview and in saved files.
#include "tests/app/FilesTest.h"

#include "graphics/filters/IFilter.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferenceRenderer.h"
#include "tests/support/Screen.h"
#include "tests/support/SyntheticPhoto.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/VFrame.h"
#include "ui/frames/YUVFrame.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QSlider>

namespace
{

using namespace grisal::test;
using grisal::graphics::CurveFilter;
using grisal::graphics::GrainFilter;
using grisal::graphics::HalfToneFilter;
using grisal::graphics::MixerFilter;
using grisal::graphics::VignetteFilter;
using reference::Look;

class MainWindowLooks : public FilesTest
{
protected:
    static constexpr int width = 240;
    static constexpr int height = 160;

    /// Opens an 8-bit image of 240 x 160 pixels and shows it at scale 1 in the middle of the preview.
    void openSmall()
    {
        startEven();
        small = asBytes(syntheticPhoto(width, height));
        window.openImage(pictureFile(QStringLiteral("small.png"), small));
        trigger(window, "actionActualPixels");
    }

    template <typename T>
    QString pictureFile(const QString &name, const Pixels<T> &pixels)
    {
        constexpr bool bytes = sizeof(T) == 1;
        return makePicture(name, pixels.width, pixels.height, bytes ? 8 : 16, [&](int x, int y) {
            Samples samples;
            for (int c = 0; c < 3; ++c) {
                samples[static_cast<std::size_t>(c)] =
                    static_cast<std::uint16_t>(pixels.at(x, y, c) * (bytes ? 257 : 1));
            }
            return samples;
        });
    }

    template <typename Panel>
    Panel &panel()
    {
        return *window.findChild<Panel *>();
    }

    void press(Qt::Key key) { QTest::keyClick(&window, key, Qt::ControlModifier); }

    /// Drags from one position in a frame to another, both as fractions of its size.
    static void drag(QWidget &frame, QPointF from, QPointF to)
    {
        const auto place = [&](QPointF share) {
            return QPoint(qRound(share.x() * frame.width()), qRound(share.y() * frame.height()));
        };
        QTest::mousePress(&frame, Qt::LeftButton, {}, place(from));
        QTest::mouseMove(&frame, place((from + to) / 2));
        QTest::mouseMove(&frame, place(to));
        QTest::mouseRelease(&frame, Qt::LeftButton, {}, place(to));
    }

    /// The parameters that the panels emitted last, and the filters that are enabled.
    Look look()
    {
        Look now;
        grisal::graphics::FilterParameters &p = now.parameters;
        if (const QVariantList sent = lastOf(mixer); !sent.isEmpty()) {
            p.get<MixerFilter>().weights = {sent[0].toFloat(), sent[1].toFloat(), sent[2].toFloat()};
        }
        if (const QVariantList sent = lastOf(curves); !sent.isEmpty()) {
            p.get<CurveFilter>().curve = sent[0].value<QVector<float>>();
        }
        if (const QVariantList sent = lastOf(grain); !sent.isEmpty()) {
            p.get<GrainFilter>().weights = sent[0].value<QVector<float>>();
            p.get<GrainFilter>().radius = sent[1].toFloat();
        }
        if (const QVariantList sent = lastOf(vignette); !sent.isEmpty()) {
            p.get<VignetteFilter>().shape.center.x = sent[0].toFloat();
            p.get<VignetteFilter>().shape.center.y = sent[1].toFloat();
            p.get<VignetteFilter>().shape.radius = sent[2].toFloat();
            p.get<VignetteFilter>().shape.strength = sent[3].toFloat();
        }
        if (const QVariantList sent = lastOf(split); !sent.isEmpty()) {
            p.get<HalfToneFilter>().weight = sent[0].toFloat();
            p.get<HalfToneFilter>().highlights = {sent[1].toFloat(), sent[2].toFloat(), sent[3].toFloat()};
            p.get<HalfToneFilter>().shadows = {sent[4].toFloat(), sent[5].toFloat(), sent[6].toFloat()};
        }
        now.curve = action("actionCurves").isChecked();
        now.grain = action("actionGrain").isChecked();
        now.vignette = action("actionVignette").isChecked();
        now.splitTone = action("actionSplitTone").isChecked();
        return now;
    }

    /// Expects the small image with the look on the screen.
    void expectOnScreen(const Look &wanted)
    {
        const BytePixels noise =
            reference::blurredNoise(reference::noiseMap(), wanted.parameters.get<GrainFilter>().radius);
        const BytePixels expected = reference::previewOf(small, wanted, noise);
        BytePixels shown;
        const bool alike = QTest::qWaitFor([&] {
            shown = pictureOnScreen();
            if (wanted.grain) {
                reference::leaveOutNoiseBoundaries(shown, expected, false);
            }
            return difference(shown, expected).worst <= 2;
        });
        EXPECT_TRUE(alike);
        EXPECT_TRUE(picturesNear("screen", shown, expected, {2, 0.01}));
    }

    /// Expects the opened image with the look in a saved file.
    template <typename T>
    void expectInFile(const QString &path, const Pixels<T> &opened, const Look &wanted, const Limits &limits)
    {
        const BytePixels noise =
            reference::blurredNoise(reference::noiseMap(), wanted.parameters.get<GrainFilter>().radius);
        const Pixels<T> expected = reference::fileOf(opened, wanted, noise);
        const Samples16 samples16 = samplesOf(path);
        ASSERT_EQ(samples16.size(), expected.values.size());
        Pixels<T> saved = expected;
        std::transform(samples16.begin(), samples16.end(), saved.values.begin(),
                       [](std::uint16_t sample) { return static_cast<T>(sizeof(T) == 1 ? sample / 257 : sample); });
        if (wanted.grain) {
            reference::leaveOutNoiseBoundaries(saved, expected, true);
        }
        EXPECT_TRUE(picturesNear(path.section(QLatin1Char('/'), -1).toStdString(), saved, expected, limits));
    }

    /// Expects the small image with the look of the panels on the screen and in a file that is saved now.
    void expectEverywhere()
    {
        expectOnScreen(look());
        const QString path = inHome(QStringLiteral("saved.png"));
        saveWithDialog(path);
        expectInFile(path, small, look(), {2, 0.01});
    }

    /// Enables all five filters and sets their parameters by mouse and keyboard.
    void chooseEverything()
    {
        child<QComboBox>(panel<Mixer>(), "comboPresets").setCurrentText(QStringLiteral("Redbridge FP4"));
        press(Qt::Key_2);
        bendCurve();
        press(Qt::Key_4);
        drag(child<VFrame>(panel<Vignette>(), "frame"), {0.5, 0.5}, {0.375, 0.625});
        press(Qt::Key_5);
        drag(child<CurveFrame>(panel<Grain>(), "frameCurve"), {0.5, 0.5}, {0.375, 0.6});
        press(Qt::Key_6);
        drag(child<YUVFrame>(panel<SplitTone>(), "frameHighlights"), {0.5, 0.5}, {0.4, 0.4});
    }

    void bendCurve()
    {
        auto &frame = child<CurveFrame>(panel<Curves>(), "frameCurve");
        drag(frame, {0.25, 0.75}, {0.25, 0.85});
        drag(frame, {0.75, 0.25}, {0.75, 0.15});
    }

    BytePixels small;
    QSignalSpy mixer{&panel<Mixer>(), &Mixer::signalMixer};
    QSignalSpy curves{&panel<Curves>(), &Curves::signalCurves};
    QSignalSpy grain{&panel<Grain>(), &Grain::signalGrain};
    QSignalSpy vignette{&panel<Vignette>(), &Vignette::signalVignette};
    QSignalSpy split{&panel<SplitTone>(), &SplitTone::signalSplit};

private:
    static QVariantList lastOf(const QSignalSpy &sent) { return sent.isEmpty() ? QVariantList() : sent.last(); }

    BytePixels pictureOnScreen()
    {
        const BytePixels area = grabScreen(preview());
        BytePixels picture(width, height);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                for (int c = 0; c < 3; ++c) {
                    picture.at(x, y, c) = area.at((area.width - width) / 2 + x, (area.height - height) / 2 + y, c);
                }
            }
        }
        return picture;
    }
};

TEST_F(MainWindowLooks, FilmSelectedByKeyIsShownAndSaved)
{
    openSmall();
    auto &presets = child<QComboBox>(panel<Mixer>(), "comboPresets");
    presets.setFocus();
    QTest::keyClick(&presets, Qt::Key_End);
    EXPECT_EQ(presets.currentText(), QStringLiteral("Rochester Tri-X"));
    expectEverywhere();

    const Samples16 saved = samplesOf(inHome(QStringLiteral("saved.png")));
    double worst = 0;
    for (std::size_t i = 0; i < saved.size(); ++i) {
        const std::uint8_t *pixel = &small.values[i - i % 3];
        const double grey = (pixel[0] * 64.0 + pixel[1] * 89.0 + pixel[2] * 102.0) / 255;
        worst = std::max(worst, std::abs(saved[i] / 257.0 - grey));
    }
    EXPECT_LE(worst, 1);
}

TEST_F(MainWindowLooks, WeightsPickedOnTheWheelAreShownAndSaved)
{
    openSmall();
    drag(child<YUVFrame>(panel<Mixer>(), "frameYUV"), {0.5, 0.5}, {0.5625, 0.4375});
    EXPECT_GT(look().parameters.get<MixerFilter>().weights.r, 0.35F);
    expectEverywhere();
}

TEST_F(MainWindowLooks, DrawnCurveIsShownAndSaved)
{
    openSmall();
    press(Qt::Key_2);
    bendCurve();
    const QVector<float> curve = look().parameters.get<CurveFilter>().curve;
    EXPECT_LT(curve[64], 0.2F);
    EXPECT_GT(curve[192], 0.8F);
    expectEverywhere();
}

// The grain depends on the tones after the curve.
TEST_F(MainWindowLooks, GrainPanelShowsTheHistogramAfterTheCurve)
{
    openSmall();
    const auto &behind = child<CurveFrame>(panel<Grain>(), "frameCurve");
    const QVector<float> before = behind.histogram();
    press(Qt::Key_2);
    bendCurve();
    const auto &editor = child<CurveFrame>(panel<Curves>(), "frameCurve");
    EXPECT_NE(behind.histogram(), before);
    EXPECT_EQ(behind.histogram(),
              grisal::graphics::histogramBehind(look().parameters.get<CurveFilter>().curve, editor.histogram()));
}

TEST_F(MainWindowLooks, VignetteSetByMouseIsShownAndSaved)
{
    openSmall();
    press(Qt::Key_4);
    drag(child<VFrame>(panel<Vignette>(), "frame"), {0.5, 0.5}, {0.25, 0.625});
    EXPECT_NEAR(look().parameters.get<VignetteFilter>().shape.center.x, 25, 1);
    EXPECT_NEAR(look().parameters.get<VignetteFilter>().shape.center.y, 62, 1);
    expectEverywhere();
}

TEST_F(MainWindowLooks, VignetteSetByKeyIsShownAndSaved)
{
    openSmall();
    press(Qt::Key_4);
    auto &strength = child<QSlider>(panel<Vignette>(), "sliderStrength");
    strength.setFocus();
    QTest::keyClick(&strength, Qt::Key_End);
    EXPECT_EQ(look().parameters.get<VignetteFilter>().shape.strength, 99);
    expectEverywhere();
}

TEST_F(MainWindowLooks, GrainCurveAndBlurAreShownAndSaved)
{
    openSmall();
    press(Qt::Key_5);
    drag(child<CurveFrame>(panel<Grain>(), "frameCurve"), {0.5, 0.5}, {0.625, 0.6});
    auto &blur = child<QSlider>(panel<Grain>(), "sliderBlur");
    blur.setFocus();
    QTest::keyClick(&blur, Qt::Key_Left);
    EXPECT_FLOAT_EQ(look().parameters.get<GrainFilter>().radius, 1.4F);
    expectEverywhere();
}

TEST_F(MainWindowLooks, TintsPickedOnTheWheelAreShownAndSaved)
{
    openSmall();
    press(Qt::Key_6);
    drag(child<YUVFrame>(panel<SplitTone>(), "frameShadows"), {0.5, 0.5}, {0.6, 0.6});
    drag(child<YUVFrame>(panel<SplitTone>(), "frameHighlights"), {0.5, 0.5}, {0.4, 0.4});
    expectEverywhere();
}

TEST_F(MainWindowLooks, DisabledFiltersAreNeitherShownNorSaved)
{
    openSmall();
    chooseEverything();
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_4, Qt::Key_5}) {
        press(key);
        press(key);
        EXPECT_EQ(shownPanel(), "Mixer");
    }
    EXPECT_TRUE(look().splitTone);
    expectOnScreen(look());
    press(Qt::Key_6);
    press(Qt::Key_6);
    EXPECT_FALSE(look().splitTone);
    expectOnScreen(look());
}

TEST_F(MainWindowLooks, AllFiltersTogetherAreShownAndSaved)
{
    openSmall();
    chooseEverything();
    expectEverywhere();
}

TEST_F(MainWindowLooks, AllFiltersTogetherAreSavedInALarge8BitImage)
{
    start();
    const BytePixels large = asBytes(syntheticPhoto(1500, 1000));
    window.openImage(pictureFile(QStringLiteral("large.png"), large));
    chooseEverything();
    const QString path = inHome(QStringLiteral("saved.png"));
    saveWithDialog(path);
    EXPECT_EQ(bitsPerChannel(path), 8);
    expectInFile(path, large, look(), {2, 0.001});
}

TEST_F(MainWindowLooks, AllFiltersTogetherAreSavedInSixteenTilesOf16Bits)
{
    start();
    const Samples16Image large = syntheticPhoto(2055, 2049);
    window.openImage(pictureFile(QStringLiteral("large.tif"), large));
    chooseEverything();
    const QString path = inHome(QStringLiteral("saved.tif"));
    saveWithDialog(path);
    EXPECT_EQ(bitsPerChannel(path), 16);
    // The rounding of half floats, and half a level of grain.
    expectInFile(path, large, look(), {100, 0});
}

} // namespace
