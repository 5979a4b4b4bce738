// SPDX-License-Identifier: MIT
// Numbers typed key by key into the spin boxes of all panels.
#include "tests/support/GuiTest.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/Sharpen.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"

#include <QDoubleSpinBox>
#include <QLocale>
#include <QMetaProperty>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <memory>
#include <ostream>
#include <vector>

namespace
{

using namespace grisal::test;

class TypedNumbers : public GuiTest
{
protected:
    ~TypedNumbers() override { QLocale::setDefault(QLocale::system()); }

    static void show(QWidget &panel)
    {
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    static void reset(QWidget &panel) { child<QPushButton>(panel, "buttonReset").click(); }

    /// Replaces the text of the spin box by typing. The keys are sent to the window, as by the desktop.
    static void type(QAbstractSpinBox &box, const QString &text)
    {
        box.setFocus();
        box.selectAll();
        for (const QChar character : text) {
            QTest::keyClick(box.window()->windowHandle(), character.toLatin1());
        }
    }

    static void press(const QWidget &widget, Qt::Key key) { QTest::keyClick(widget.window()->windowHandle(), key); }

    static void typeAndEnter(QAbstractSpinBox &box, const QString &text)
    {
        type(box, text);
        press(box, Qt::Key_Return);
    }

    /// Turns the mouse wheel by one notch over the widget.
    static void turnWheelOn(QWidget &widget)
    {
        const QPointF place = widget.rect().center();
        QWheelEvent event(place, widget.mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        QCoreApplication::instance()->notify(&widget, &event);
    }
};

/// Records the values of a spin box, of integers or decimals, during its lifetime.
class Changes
{
public:
    explicit Changes(const QAbstractSpinBox &box) : m_changes(&box, box.metaObject()->userProperty().notifySignal()) {}

    int count() const { return static_cast<int>(m_changes.count()); }

    bool contain(double value) const
    {
        return std::any_of(m_changes.begin(), m_changes.end(),
                           [value](const QVariantList &change) { return qFuzzyCompare(change[0].toDouble(), value); });
    }

private:
    QSignalSpy m_changes;
};

double stepOf(const QAbstractSpinBox &box)
{
    return box.property("singleStep").toDouble();
}

std::vector<std::unique_ptr<QWidget>> allPanels()
{
    std::vector<std::unique_ptr<QWidget>> panels;
    panels.push_back(std::make_unique<Mixer>());
    panels.push_back(std::make_unique<Vignette>());
    panels.push_back(std::make_unique<SplitTone>());
    panels.push_back(std::make_unique<Grain>());
    panels.push_back(std::make_unique<Sharpen>());
    panels.push_back(std::make_unique<Curves>());
    return panels;
}

/// About twenty numbers in the range of a spin box, including its minimum and maximum.
std::vector<int> numbersOf(const QSpinBox &box)
{
    std::vector<int> numbers{box.maximum()};
    for (int number = box.minimum(); number < box.maximum(); number += 1 + (box.maximum() - box.minimum()) / 20) {
        numbers.push_back(number);
    }
    return numbers;
}

TEST_F(TypedNumbers, SetEverySpinBox)
{
    int spinBoxes = 0;
    for (const auto &panel : allPanels()) {
        show(*panel);
        for (QSpinBox *box : panel->findChildren<QSpinBox *>()) {
            ++spinBoxes;
            // This spin box shows the resulting sum; it is tested below.
            if (box->objectName() == QStringLiteral("spinBoxLuma")) {
                continue;
            }
            for (const int number : numbersOf(*box)) {
                typeAndEnter(*box, QString::number(number));
                ASSERT_EQ(box->value(), number) << box->objectName().toStdString();
                ASSERT_EQ(box->text(), QString::number(number)) << box->objectName().toStdString();
            }
        }
        spinBoxes += static_cast<int>(panel->findChildren<QDoubleSpinBox *>().size());
    }
    EXPECT_EQ(spinBoxes, 16);
}

TEST_F(TypedNumbers, SetTheSumOfTheMixersWeights)
{
    Mixer panel;
    show(panel);
    QSignalSpy emitted(&panel, &Mixer::signalMixer);
    auto &luma = child<QSpinBox>(panel, "spinBoxLuma");
    for (const int number : numbersOf(luma)) {
        panel.on_buttonReset_clicked();
        typeAndEnter(luma, QString::number(number));
        const QVariantList weights = emitted.last();
        EXPECT_NEAR(255 * (weights[0].toFloat() + weights[1].toFloat() + weights[2].toFloat()), number, 1e-3);
    }
}

TEST_F(TypedNumbers, ChangeNothingUntilComplete)
{
    for (const auto &panel : allPanels()) {
        show(*panel);
        for (QAbstractSpinBox *box : panel->findChildren<QAbstractSpinBox *>()) {
            reset(*panel);
            const Changes changes(*box);
            type(*box, QStringLiteral("2"));
            EXPECT_EQ(changes.count(), 0) << box->objectName().toStdString();
            press(*panel, Qt::Key_Tab);
            EXPECT_TRUE(changes.contain(2)) << box->objectName().toStdString();
        }
    }
}

TEST_F(TypedNumbers, AreCommittedBeforeAStep)
{
    for (const auto &panel : allPanels()) {
        show(*panel);
        for (QAbstractSpinBox *box : panel->findChildren<QAbstractSpinBox *>()) {
            reset(*panel);
            const Changes changes(*box);
            type(*box, QStringLiteral("2"));
            press(*panel, Qt::Key_Up);
            EXPECT_TRUE(changes.contain(2 + stepOf(*box))) << box->objectName().toStdString();
        }
    }
}

// The change of the slider would replace the text in the spin box beside it.
TEST_F(TypedNumbers, AreCommittedBeforeTheMouseWheelMovesASlider)
{
    for (const auto &panel : allPanels()) {
        show(*panel);
        for (QSlider *slider : panel->findChildren<QSlider *>()) {
            for (QAbstractSpinBox *box : panel->findChildren<QAbstractSpinBox *>()) {
                reset(*panel);
                const Changes changes(*box);
                type(*box, QStringLiteral("2"));
                const int before = slider->value();
                turnWheelOn(*slider);
                EXPECT_TRUE(changes.contain(2))
                    << box->objectName().toStdString() << " beside " << slider->objectName().toStdString();
                EXPECT_NE(slider->value(), before) << slider->objectName().toStdString();
            }
        }
    }
}

/// A locale and its decimal separator.
struct Separator {
    const char *locale;
    char sign;

    friend std::ostream &operator<<(std::ostream &out, const Separator &separator) { return out << separator.locale; }
};

class TypedTenths : public TypedNumbers, public testing::WithParamInterface<Separator>
{
protected:
    TypedTenths() { QLocale::setDefault(QLocale(QString::fromLatin1(GetParam().locale))); }

    /// A number with one decimal and the given separator.
    static QString typed(int tenths, char sign)
    {
        return QStringLiteral("%1%2%3").arg(tenths / 10).arg(QLatin1Char(sign)).arg(tenths % 10);
    }
};

TEST_P(TypedTenths, SetTheBlurWithPointAndComma)
{
    Grain panel;
    show(panel);
    auto &box = child<QDoubleSpinBox>(panel, "doubleSpinBoxBlur");
    const auto &slider = child<QSlider>(panel, "sliderBlur");
    QSignalSpy emitted(&panel, &Grain::signalGrain);
    for (const char sign : {'.', ','}) {
        for (int tenths = 0; tenths <= 30; ++tenths) {
            box.setValue(tenths == 15 ? 1 : 1.5);
            emitted.clear();
            typeAndEnter(box, typed(tenths, sign));
            EXPECT_EQ(box.text(), typed(tenths, GetParam().sign));
            EXPECT_DOUBLE_EQ(box.value(), tenths / 10.0);
            EXPECT_EQ(slider.value(), tenths);
            ASSERT_EQ(emitted.count(), 1) << tenths;
            EXPECT_FLOAT_EQ(emitted[0][1].toFloat(), static_cast<float>(tenths / 10.0));
        }
    }
}

TEST_P(TypedTenths, SetTheBlurWhenTheFocusLeaves)
{
    Grain panel;
    show(panel);
    auto &box = child<QDoubleSpinBox>(panel, "doubleSpinBoxBlur");
    const QSignalSpy emitted(&panel, &Grain::signalGrain);
    type(box, typed(17, GetParam().sign));
    EXPECT_TRUE(emitted.isEmpty());
    press(panel, Qt::Key_Backtab);
    EXPECT_DOUBLE_EQ(box.value(), 1.7);
    EXPECT_EQ(emitted.count(), 1);
}

TEST_P(TypedTenths, NeedNoLeadingZero)
{
    Grain panel;
    show(panel);
    auto &box = child<QDoubleSpinBox>(panel, "doubleSpinBoxBlur");
    typeAndEnter(box, QStringLiteral(".7"));
    EXPECT_DOUBLE_EQ(box.value(), 0.7);
    typeAndEnter(box, QStringLiteral(",4"));
    EXPECT_DOUBLE_EQ(box.value(), 0.4);
}

INSTANTIATE_TEST_SUITE_P(Locales, TypedTenths,
                         testing::Values(Separator{"en_GB", '.'}, Separator{"de_DE", ','}, Separator{"fr_FR", ','},
                                         Separator{"C", '.'}),
                         [](const auto &tested) { return std::string(tested.param.locale); });

} // namespace
