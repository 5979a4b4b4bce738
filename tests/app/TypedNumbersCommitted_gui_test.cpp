// SPDX-License-Identifier: MIT
// A number is being typed when a command is triggered: the spin box has the focus and contains text that it has not
// emitted yet.
#include "tests/app/FilesTest.h"

#include "ui/panels/Mixer.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QToolBar>

#include <array>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace
{

using namespace grisal::test;
using grisal::graphics::FilterParameters;
using grisal::graphics::HalfToneFilter;
using grisal::graphics::MixerFilter;
using grisal::graphics::VignetteFilter;

constexpr auto control = Qt::ControlModifier;

/// A spin box of a panel with the value of the preview that it sets.
struct Box {
    const char *action;
    const char *name;
    float (*value)(const FilterParameters &);
    float forSixty; ///< the value if the box contains 60
};

constexpr std::array<Box, 3> boxes{{
    {"actionVignette", "spinBoxX", [](const FilterParameters &now) { return now.get<VignetteFilter>().shape.center.x; },
     60},
    {"actionSplitTone", "spinBoxWeight", [](const FilterParameters &now) { return now.get<HalfToneFilter>().weight; },
     1.05F},
    {"actionMixer", "spinBoxLuma",
     [](const FilterParameters &now) {
         return 255 * (now.get<MixerFilter>().weights.r + now.get<MixerFilter>().weights.g +
                       now.get<MixerFilter>().weights.b);
     },
     60},
}};

/// Reads a value when a dialog opens, before the spin box loses the focus to it.
class AtTheDialog : public QObject
{
public:
    explicit AtTheDialog(std::function<float()> read) : m_read(std::move(read)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QDialog *>(watched) != nullptr) {
            values.push_back(m_read());
        }
        return false;
    }

    std::vector<float> values;

private:
    std::function<float()> m_read;
};

class TypedNumbersCommitted : public FilesTest
{
protected:
    static constexpr int sourceGrey = 100;
    static constexpr double darkenedGrey = sourceGrey * 60 / 255.0;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers) { QTest::keyClick(window.windowHandle(), key, modifiers); }

    /// Replaces the text of the spin box by typing 60, without committing it.
    void typeSixty(const char *name)
    {
        auto &box = child<QSpinBox>(window, name);
        // A dialog may just have returned the keyboard focus.
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
        box.selectAll();
        QTest::keyClick(window.windowHandle(), '6');
        QTest::keyClick(window.windowHandle(), '0');
        ASSERT_TRUE(box.hasFocus());
        ASSERT_EQ(box.text(), QStringLiteral("60"));
        ASSERT_NE(box.value(), 60);
    }

    float sumOfWeights() { return boxes.back().value(preview().parameters()); }

    void expectCommitted() { EXPECT_FLOAT_EQ(sumOfWeights(), 60); }

    /// Runs `command`, which opens a dialog, and expects that the typed sum of the weights is committed before.
    void expectCommittedBeforeTheDialog(const std::function<void()> &command)
    {
        const AtTheDialog dialogs([this] { return sumOfWeights(); });
        command();
        ASSERT_EQ(dialogs.values.size(), 1U);
        EXPECT_FLOAT_EQ(dialogs.values[0], 60);
    }

    QString openGrey()
    {
        const QString path = makePicture(QStringLiteral("grey.png"), 8, 6, 8, [](int, int) {
            const std::uint16_t sample = sourceGrey * 257;
            return Samples{sample, sample, sample};
        });
        openWithDialog(path);
        return path;
    }

    static double greyOf(const QString &path) { return samplesOf(path).at(0) / 257.0; }

    static void click(QWidget &bar, const QRect &place)
    {
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, place.center());
    }
};

TEST_F(TypedNumbersCommitted, BySave)
{
    start();
    const QString path = openGrey();
    typeSixty("spinBoxLuma");
    const MessageBoxAnswer box(QMessageBox::Ok);
    expectCommittedBeforeTheDialog([this] { press(Qt::Key_S, control); });
    EXPECT_NEAR(greyOf(path), darkenedGrey, 1);
}

TEST_F(TypedNumbersCommitted, BySaveAs)
{
    start();
    openGrey();
    typeSixty("spinBoxLuma");
    const QString path = inHome(QStringLiteral("saved.png"));
    const FileDialogAnswer answer(path);
    expectCommittedBeforeTheDialog([this] { press(Qt::Key_S, control | Qt::ShiftModifier); });
    EXPECT_NEAR(greyOf(path), darkenedGrey, 1);
}

TEST_F(TypedNumbersCommitted, ByClickingTheFileMenu)
{
    start();
    const QString path = openGrey();
    typeSixty("spinBoxLuma");
    const MessageBoxAnswer box(QMessageBox::Ok);
    auto &menu = child<QMenu>(window, "menuFile");
    click(*window.menuBar(), window.menuBar()->actionGeometry(menu.menuAction()));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    click(menu, menu.actionGeometry(&action("actionSave")));
    EXPECT_NEAR(greyOf(path), darkenedGrey, 1);
}

TEST_F(TypedNumbersCommitted, BySavingWithoutADialog)
{
    start();
    openGrey();
    typeSixty("spinBoxLuma");
    window.saveImage(inHome(QStringLiteral("saved.png")));
    EXPECT_NEAR(greyOf(inHome(QStringLiteral("saved.png"))), darkenedGrey, 1);
}

TEST_F(TypedNumbersCommitted, ByFinalRendering)
{
    start();
    openGrey();
    typeSixty("spinBoxLuma");
    window.slotFinalRendering();
    expectCommitted();
}

TEST_F(TypedNumbersCommitted, ByOpenEvenIfCancelled)
{
    start();
    typeSixty("spinBoxLuma");
    const FileDialogAnswer answer{QString()};
    expectCommittedBeforeTheDialog([this] { press(Qt::Key_O, control); });
}

TEST_F(TypedNumbersCommitted, ByOpeningAMissingFile)
{
    start();
    typeSixty("spinBoxLuma");
    const MessageBoxAnswer box(QMessageBox::Ok);
    expectWarning(QStringLiteral("no picture.png"));
    expectCommittedBeforeTheDialog([this] { window.openImage(inHome(QStringLiteral("no picture.png"))); });
}

TEST_F(TypedNumbersCommitted, ByOpeningAnInvalidRecentImage)
{
    start();
    writeFile(openGrey(), "no picture at all");
    typeSixty("spinBoxLuma");
    const MessageBoxAnswer box(QMessageBox::Ok);
    expectWarning(QStringLiteral("grey.png"));
    expectCommittedBeforeTheDialog([this] { press(Qt::Key_1, Qt::AltModifier); });
}

TEST_F(TypedNumbersCommitted, BeforeOpeningARecentImageResetsThem)
{
    start();
    openGrey();
    typeSixty("spinBoxLuma");
    QList<long> sums;
    QObject::connect(window.findChild<Mixer *>(), &Mixer::signalMixer, &window,
                     [&] { sums << std::lround(sumOfWeights()); });
    press(Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(sums, (QList<long>{60, 255}));
    EXPECT_EQ(child<QSpinBox>(window, "spinBoxLuma").text(), QStringLiteral("255"));
}

TEST_F(TypedNumbersCommitted, ByQuit)
{
    start();
    typeSixty("spinBoxLuma");
    expectWarning(QStringLiteral("Bye bye"));
    float sum = 0;
    QObject::connect(&window, &grisal::ui::MainWindow::signalFinished, &window, [&] { sum = sumOfWeights(); });
    press(Qt::Key_Q, control);
    EXPECT_FLOAT_EQ(sum, 60);
}

TEST_F(TypedNumbersCommitted, ByEveryChangeOfThePanel)
{
    start();
    for (const Box &box : boxes) {
        for (const Qt::Key other : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6}) {
            window.slotResetFilters();
            window.slotResetActions();
            trigger(window, box.action);
            typeSixty(box.name);
            press(other, control);
            EXPECT_FLOAT_EQ(box.value(preview().parameters()), box.forSixty)
                << box.name << " before Ctrl+" << char(other);
        }
    }
}

TEST_F(TypedNumbersCommitted, ByTheToolBar)
{
    start();
    typeSixty("spinBoxLuma");
    QWidget &button = *window.findChild<QToolBar *>()->widgetForAction(&action("actionMixer"));
    click(button, button.rect());
    EXPECT_TRUE(child<QSpinBox>(window, "spinBoxLuma").hasFocus());
    expectCommitted();
}

TEST_F(TypedNumbersCommitted, NotByZoom)
{
    start();
    typeSixty("spinBoxLuma");
    press(Qt::Key_0, control);
    EXPECT_EQ(child<QSpinBox>(window, "spinBoxLuma").value(), 255);
}

} // namespace
