// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/panels/Curves.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace
{

using namespace grisal::test;

class CurvesTest : public GuiTest
{
protected:
    QVector<float> lastCurve() { return curves.last()[0].value<QVector<float>>(); }
    QVector<float> lastHistogram() { return histograms.last()[0].value<QVector<float>>(); }

    QPushButton &reset() { return child<QPushButton>(panel, "buttonReset"); }

    void show()
    {
        panel.resize(300, 500);
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    Curves panel;
    CurveFrame &frame = child<CurveFrame>(panel, "frameCurve");
    QSignalSpy curves{&panel, &Curves::signalCurves};
    QSignalSpy histograms{&panel, &Curves::signalOutHistogram};
};

TEST_F(CurvesTest, FormHasItsTexts)
{
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
    EXPECT_EQ(child<QLabel>(panel, "label").text(), QStringLiteral("Presets:"));
    EXPECT_EQ(child<QGroupBox>(panel, "groupBox").title(), QStringLiteral("Type"));
    EXPECT_EQ(child<QRadioButton>(panel, "radioLinear").text(), QStringLiteral("Linear"));
    EXPECT_EQ(child<QRadioButton>(panel, "radioBSpline").text(), QStringLiteral("BSpline"));
    EXPECT_EQ(reset().text(), QStringLiteral("\t↻"));
}

TEST_F(CurvesTest, PresetsAreEmptyAndDisabled)
{
    EXPECT_EQ(child<QComboBox>(panel, "comboPresets").count(), 0);
    EXPECT_FALSE(child<QComboBox>(panel, "comboPresets").isEnabled());
}

TEST_F(CurvesTest, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    const QMetaObject &meta = Curves::staticMetaObject;
    EXPECT_EQ(methodsOf(Curves::staticMetaObject),
              "signalCurves(QList<float>) signalOutHistogram(QList<float>) slotSetHistogram(QList<float>) emitAll() "
              "on_buttonReset_clicked() on_radioBSpline_clicked() on_radioLinear_clicked()");
    EXPECT_EQ(meta.method(meta.indexOfSlot("slotSetHistogram(QList<float>)")).parameterNames(),
              QList<QByteArray>{"histo"});
}

TEST_F(CurvesTest, SmoothCurveIsSelectedInitially)
{
    EXPECT_TRUE(child<QRadioButton>(panel, "radioBSpline").isChecked());
    EXPECT_FALSE(child<QRadioButton>(panel, "radioLinear").isChecked());
    EXPECT_EQ(frame.interpolation(), CurveFrame::BSpline);
    EXPECT_TRUE(curves.isEmpty());
}

TEST_F(CurvesTest, ResetGivesTheStraightCurve)
{
    QTest::mouseClick(&reset(), Qt::LeftButton);
    EXPECT_EQ(frame.points().xs, (QVector<float>{0, 0.5F, 1}));
    EXPECT_EQ(frame.points().ys, (QVector<float>{1, 0.5F, 0}));
    ASSERT_EQ(curves.count(), 1);
    ASSERT_EQ(histograms.count(), 1);
    const QVector<float> curve = lastCurve();
    ASSERT_EQ(curve.size(), 256);
    for (int i = 0; i < curve.size(); ++i) {
        EXPECT_NEAR(curve[i], i / 256.0, 1e-6) << i;
    }
}

TEST_F(CurvesTest, LinearStraightCurveIsExact)
{
    QTest::mouseClick(&child<QRadioButton>(panel, "radioLinear"), Qt::LeftButton);
    panel.on_buttonReset_clicked();
    const QVector<float> curve = lastCurve();
    for (int i = 0; i < curve.size(); ++i) {
        EXPECT_FLOAT_EQ(curve[i], static_cast<float>(i) / 256) << i;
    }
}

TEST_F(CurvesTest, SelectingAnInterpolationEmitsItsCurve)
{
    frame.setPoints({0, 0.25F, 1}, {1, 0.25F, 0});
    QTest::mouseClick(&child<QRadioButton>(panel, "radioLinear"), Qt::LeftButton);
    EXPECT_EQ(frame.interpolation(), CurveFrame::Linear);
    ASSERT_EQ(curves.count(), 1);
    EXPECT_EQ(lastCurve(), linearCurve(frame.points(), 256));
    QTest::mouseClick(&child<QRadioButton>(panel, "radioBSpline"), Qt::LeftButton);
    EXPECT_EQ(frame.interpolation(), CurveFrame::BSpline);
    ASSERT_EQ(curves.count(), 2);
    EXPECT_EQ(lastCurve(), smoothCurve(frame.points(), 256));
    EXPECT_EQ(histograms.count(), 2);
}

TEST_F(CurvesTest, DragEmitsTheCurveWhenTheButtonIsReleased)
{
    panel.on_buttonReset_clicked();
    show();
    curves.clear();
    const QPoint middle = frame.rect().center();
    QTest::mousePress(&frame, Qt::LeftButton, {}, middle);
    QTest::mouseMove(&frame, middle - QPoint(0, frame.height() / 4));
    EXPECT_TRUE(curves.isEmpty());
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, middle - QPoint(0, frame.height() / 4));
    ASSERT_EQ(curves.count(), 1);
    EXPECT_NEAR(lastCurve()[128], 0.75, 0.02);
}

TEST_F(CurvesTest, CurveIsEmittedBeforeTheHistogram)
{
    QStringList order;
    QObject::connect(&panel, &Curves::signalCurves, &panel, [&] { order << QStringLiteral("curve"); });
    QObject::connect(&panel, &Curves::signalOutHistogram, &panel, [&] { order << QStringLiteral("histogram"); });
    panel.emitAll();
    EXPECT_EQ(order.join(QLatin1Char(' ')).toStdString(), "curve histogram");
}

TEST_F(CurvesTest, EmittedHistogramIsTheOneAfterTheCurve)
{
    QVector<float> histogram(256, 0.0F);
    histogram[64] = 1.5F;
    panel.slotSetHistogram(histogram);
    EXPECT_TRUE(histograms.isEmpty());
    frame.slotSetInterpolation(CurveFrame::Linear);
    frame.setPoints({0, 0.5F, 1}, {1, 0, 0});
    panel.emitAll();
    QVector<float> expected(256, 0.0F);
    expected[128] = 1.5F;
    EXPECT_EQ(lastHistogram(), expected);
}

TEST_F(CurvesTest, HistogramOfWrongSizeIsLoggedTwiceAndRejected)
{
    const QVector<float> histogram(256, 0.5F);
    panel.slotSetHistogram(histogram);
    expectWarning(QStringLiteral("Histogramm has the wrong size"));
    expectWarning(QStringLiteral("curves: wrong histogram size"));
    panel.slotSetHistogram(QVector<float>(255, 0.1F));
    EXPECT_EQ(log.warnings().size(), 2);
    EXPECT_EQ(frame.histogram(), histogram);
}

TEST_F(CurvesTest, DeleteKeyWorksWhereverTheFocusIs)
{
    panel.on_buttonReset_clicked();
    show();
    QTest::mouseClick(&frame, Qt::LeftButton, {}, frame.rect().center());
    child<QRadioButton>(panel, "radioBSpline").setFocus();
    curves.clear();
    QTest::keyClick(panel.windowHandle(), Qt::Key_Delete);
    EXPECT_EQ(frame.points().count(), 2);
    EXPECT_EQ(curves.count(), 1);
}

TEST_F(CurvesTest, DeleteKeyIsNotInterceptedWhileADialogIsOpen)
{
    panel.on_buttonReset_clicked();
    show();
    QTest::mouseClick(&frame, Qt::LeftButton, {}, frame.rect().center());
    QDialog dialog(&panel);
    QLineEdit name(QStringLiteral("abc"), &dialog);
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    name.setCursorPosition(0);
    QTest::keyClick(&name, Qt::Key_Delete);
    EXPECT_EQ(name.text(), QStringLiteral("bc"));
    EXPECT_EQ(frame.points().count(), 3);
}

TEST_F(CurvesTest, DeleteKeyIsNotInterceptedAfterThePanelIsDestroyed)
{
    auto other = std::make_unique<Curves>();
    other->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(other.get()));
    auto &itsFrame = child<CurveFrame>(*other, "frameCurve");
    QTest::mouseClick(&itsFrame, Qt::LeftButton, {}, itsFrame.rect().center());
    other.reset();
    QLineEdit name(QStringLiteral("abc"));
    name.setCursorPosition(0);
    QTest::keyClick(&name, Qt::Key_Delete);
    EXPECT_EQ(name.text(), QStringLiteral("bc"));
}

TEST_F(CurvesTest, StripsAreAlignedWithTheFrame)
{
    show();
    const QRect across = child<QLabel>(panel, "labelHorizontal").geometry();
    const QRect upwards = child<QLabel>(panel, "labelVertical").geometry();
    EXPECT_EQ(across.left(), frame.geometry().left());
    EXPECT_EQ(across.right(), frame.geometry().right());
    EXPECT_EQ(upwards.top(), frame.geometry().top());
    EXPECT_EQ(upwards.bottom(), frame.geometry().bottom());
}

// The strips are black at the dark end of the curve: at the left and at the bottom.
TEST_F(CurvesTest, StripsRunFromBlackToWhite)
{
    show();
    const QImage across = child<QLabel>(panel, "labelHorizontal").grab().toImage();
    EXPECT_LT(QColor(across.pixel(1, 5)).red(), 10);
    EXPECT_GT(QColor(across.pixel(across.width() - 2, 5)).red(), 245);
    const QImage upwards = child<QLabel>(panel, "labelVertical").grab().toImage();
    EXPECT_LT(QColor(upwards.pixel(5, upwards.height() - 2)).red(), 10);
    EXPECT_GT(QColor(upwards.pixel(5, 1)).red(), 245);
}

TEST_F(CurvesTest, ControlsHaveNamesAndTips)
{
    for (const char *name : {"comboPresets", "buttonReset", "frameCurve"}) {
        EXPECT_FALSE(child<QWidget>(panel, name).accessibleName().isEmpty()) << name;
    }
    for (const char *name : {"comboPresets", "buttonReset", "frameCurve", "radioLinear", "radioBSpline"}) {
        EXPECT_FALSE(child<QWidget>(panel, name).toolTip().isEmpty()) << name;
    }
}

} // namespace
