// SPDX-License-Identifier: MIT
// The effects of the window's actions other than those on files: panels and filters, view, help, quit.
#include "tests/app/WindowTest.h"

#include "graphics/filters/IFilter.h"
#include "tests/support/Modal.h"
#include "tests/support/UrlInterceptor.h"
#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabWidget>
#include <QUrl>

#include <array>
#include <functional>

namespace
{

using namespace grisal::test;
using grisal::graphics::ColorRGB;
using grisal::graphics::CurveFilter;
using grisal::graphics::FilterParameters;
using grisal::graphics::GrainFilter;
using grisal::graphics::HalfToneFilter;
using grisal::graphics::IFilter;
using grisal::graphics::MixerFilter;
using grisal::graphics::VignetteFilter;

/// A panel and its filter, which the action enables and disables.
struct FilterRow {
    const char *action;
    const char *panel;
    Qt::Key key;
    IFilter *(grisal::ui::GLWidget::*filter)() const;
    const char *problem;
};

constexpr std::array<FilterRow, 4> filterTable{{
    {"actionCurves", "Curves", Qt::Key_2, &grisal::ui::GLWidget::filter<CurveFilter>, "curve filter is invalid"},
    {"actionVignette", "Vignette", Qt::Key_4, &grisal::ui::GLWidget::filter<VignetteFilter>,
     "vignette filter is invalid"},
    {"actionGrain", "Grain", Qt::Key_5, &grisal::ui::GLWidget::filter<GrainFilter>, "grain filter is invalid"},
    {"actionSplitTone", "SplitTone", Qt::Key_6, &grisal::ui::GLWidget::filter<HalfToneFilter>,
     "split tone filter is invalid"},
}};

/// Calls a function with the dialog and closes it.
class AboutAnswer : public ModalAnswer
{
public:
    explicit AboutAnswer(std::function<void(QDialog &)> look) : m_look(std::move(look)) {}

protected:
    bool answer(QWidget &dialog) override
    {
        if (dialog.objectName() != QStringLiteral("About")) {
            return false;
        }
        auto &about = dynamic_cast<QDialog &>(dialog);
        m_look(about);
        about.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Ok)->click();
        return true;
    }

private:
    std::function<void(QDialog &)> m_look;
};

class MainWindowActions : public WindowTest
{
protected:
    void press(Qt::Key key) { QTest::keyClick(&window, key, Qt::ControlModifier); }

    bool isOn(const FilterRow &row) { return (preview().*row.filter)()->enabled; }

    template <typename Panel>
    Panel &panel()
    {
        return *window.findChild<Panel *>();
    }
};

TEST_F(MainWindowActions, KeysShowThePanels)
{
    start();
    QStringList shown;
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_1}) {
        press(key);
        shown << QString::fromStdString(shownPanel());
    }
    EXPECT_EQ(shown.join(QLatin1Char(' ')).toStdString(), "Curves Sharpen Vignette Grain SplitTone Mixer");
}

TEST_F(MainWindowActions, SecondKeyPressDisablesTheFilterAndShowsTheMixer)
{
    start();
    for (const FilterRow &row : filterTable) {
        press(row.key);
        EXPECT_EQ(shownPanel(), row.panel);
        EXPECT_TRUE(action(row.action).isChecked()) << row.action;
        EXPECT_TRUE(isOn(row)) << row.action;
        press(row.key);
        EXPECT_EQ(shownPanel(), "Mixer") << row.action;
        EXPECT_FALSE(action(row.action).isChecked()) << row.action;
        EXPECT_FALSE(isOn(row)) << row.action;
    }
}

TEST_F(MainWindowActions, ChangingThePanelKeepsTheFilterEnabled)
{
    start();
    for (const FilterRow &row : filterTable) {
        trigger(window, row.action);
    }
    trigger(window, "actionMixer");
    for (const FilterRow &row : filterTable) {
        EXPECT_TRUE(action(row.action).isChecked()) << row.action;
        EXPECT_TRUE(isOn(row)) << row.action;
    }
}

TEST_F(MainWindowActions, ReturningToAPanelKeepsItsFilterEnabled)
{
    start();
    trigger(window, "actionVignette");
    trigger(window, "actionMixer");
    trigger(window, "actionVignette");
    EXPECT_EQ(shownPanel(), "Vignette");
    EXPECT_TRUE(action("actionVignette").isChecked());
    EXPECT_TRUE(preview().filter<VignetteFilter>()->enabled);
}

TEST_F(MainWindowActions, SharpenShowsAPanelWithoutAFilter)
{
    start();
    trigger(window, "actionSharpen");
    EXPECT_EQ(shownPanel(), "Sharpen");
    EXPECT_TRUE(action("actionSharpen").isChecked());
    trigger(window, "actionSharpen");
    EXPECT_EQ(shownPanel(), "Mixer");
    EXPECT_FALSE(action("actionSharpen").isChecked());
}

// There is no filter behind the panel. Weights that nobody announced show whether the picture was rendered again.
TEST_F(MainWindowActions, SharpenRendersThePreviewWhenItsPanelIsShown)
{
    start();
    const auto centreAfterTrigger = [this](float weight) {
        dynamic_cast<MixerFilter &>(*preview().filter<MixerFilter>()).weights = {weight, weight, weight};
        trigger(window, "actionSharpen");
        const QImage frame = preview().grabFramebuffer();
        return frame.pixelColor(frame.rect().center());
    };
    EXPECT_EQ(centreAfterTrigger(0), QColor(Qt::black));
    EXPECT_EQ(centreAfterTrigger(1), QColor(Qt::black));
    EXPECT_EQ(centreAfterTrigger(1), QColor(Qt::white));
}

TEST_F(MainWindowActions, WithoutAnImageThePanelIsShownAndAWarningLogged)
{
    for (const FilterRow &row : filterTable) {
        expectWarning(QString::fromLatin1(row.problem));
        trigger(window, row.action);
        EXPECT_EQ(shownPanel(), row.panel);
        EXPECT_TRUE(action(row.action).isChecked()) << row.action;
    }
}

TEST_F(MainWindowActions, ResettingTheActionsUnchecksAllAndShowsTheMixer)
{
    start();
    for (const FilterRow &row : filterTable) {
        trigger(window, row.action);
    }
    trigger(window, "actionSharpen");
    window.slotResetActions();
    EXPECT_EQ(shownPanel(), "Mixer");
    for (const char *name : {"actionCurves", "actionSharpen", "actionVignette", "actionGrain", "actionSplitTone"}) {
        EXPECT_FALSE(action(name).isChecked()) << name;
    }
}

TEST_F(MainWindowActions, MixerPanelSetsThePreviewParameters)
{
    start();
    child<QComboBox>(panel<Mixer>(), "comboPresets").setCurrentText(QStringLiteral("Rochester Tri-X"));
    EXPECT_EQ(preview().parameters().get<MixerFilter>().weights,
              (ColorRGB<float>{64 / 255.0F, 89 / 255.0F, 102 / 255.0F}));
}

TEST_F(MainWindowActions, VignettePanelSetsThePreviewParameters)
{
    start();
    emit panel<Vignette>().signalVignette(1, 2, 3, 4, true);
    const FilterParameters &now = preview().parameters();
    EXPECT_EQ(now.get<VignetteFilter>().shape.center.x, 1);
    EXPECT_EQ(now.get<VignetteFilter>().shape.center.y, 2);
    EXPECT_EQ(now.get<VignetteFilter>().shape.radius, 3);
    EXPECT_EQ(now.get<VignetteFilter>().shape.strength, 4);
    EXPECT_TRUE(now.get<VignetteFilter>().extraBlur);
}

TEST_F(MainWindowActions, SplitTonePanelSetsThePreviewParameters)
{
    start();
    emit panel<SplitTone>().signalSplit(0.5F, 0.1F, 0.2F, 0.3F, 0.4F, 0.6F, 0.7F);
    const FilterParameters &now = preview().parameters();
    EXPECT_EQ(now.get<HalfToneFilter>().weight, 0.5F);
    EXPECT_EQ(now.get<HalfToneFilter>().highlights, (ColorRGB<float>{0.1F, 0.2F, 0.3F}));
    EXPECT_EQ(now.get<HalfToneFilter>().shadows, (ColorRGB<float>{0.4F, 0.6F, 0.7F}));
}

TEST_F(MainWindowActions, GrainPanelSetsThePreviewParameters)
{
    start();
    emit panel<Grain>().signalGrain(QVector<float>(256, 0.25F), 2.5F);
    EXPECT_EQ(preview().parameters().get<GrainFilter>().weights, QVector<float>(256, 0.25F));
    EXPECT_EQ(preview().parameters().get<GrainFilter>().radius, 2.5F);
}

TEST_F(MainWindowActions, CurvesPanelSetsThePreviewParameters)
{
    start();
    emit panel<Curves>().signalCurves(QVector<float>(256, 0.75F));
    EXPECT_EQ(preview().parameters().get<CurveFilter>().curve, QVector<float>(256, 0.75F));
}

TEST_F(MainWindowActions, LoadingPixelsSetsTheHistogramOfTheCurvesPanel)
{
    start();
    const QSignalSpy tones(&panel<Curves>(), &Curves::signalOutHistogram);
    panel<Curves>().on_buttonReset_clicked();
    ASSERT_EQ(tones.count(), 1);
    QVector<float> expected(256, 0.0F);
    expected[128] = 30; // all pixels of the placeholder, times 30
    EXPECT_EQ(tones[0][0].value<QVector<float>>(), expected);
}

TEST_F(MainWindowActions, LoadingPixelsResetsAllParameters)
{
    start();
    emit panel<Mixer>().signalMixer(1, 0, 0);
    emit panel<Vignette>().signalVignette(1, 2, 3, 4, true);
    emit panel<SplitTone>().signalSplit(0.5F, 0, 0, 0, 0, 0, 0);
    emit panel<Grain>().signalGrain(QVector<float>(256, 0.25F), 2.5F);
    emit panel<Curves>().signalCurves(QVector<float>(256, 0.75F));
    window.loadBuffer(greyImage(1, 1, 255));
    const FilterParameters initial;
    const FilterParameters &now = preview().parameters();
    EXPECT_EQ(now.get<MixerFilter>().weights, initial.get<MixerFilter>().weights);
    EXPECT_EQ(now.get<VignetteFilter>().shape.center.x, initial.get<VignetteFilter>().shape.center.x);
    EXPECT_EQ(now.get<VignetteFilter>().shape.strength, initial.get<VignetteFilter>().shape.strength);
    EXPECT_FALSE(now.get<VignetteFilter>().extraBlur);
    EXPECT_EQ(now.get<HalfToneFilter>().weight, initial.get<HalfToneFilter>().weight);
    EXPECT_EQ(now.get<HalfToneFilter>().highlights, initial.get<HalfToneFilter>().highlights);
    EXPECT_EQ(now.get<HalfToneFilter>().shadows, initial.get<HalfToneFilter>().shadows);
    // The panel starts with grain in the middle greys; its filter is off.
    EXPECT_FLOAT_EQ(now.get<GrainFilter>().weights[0], 0);
    EXPECT_FLOAT_EQ(now.get<GrainFilter>().weights[128], 0.5F);
    EXPECT_FLOAT_EQ(now.get<GrainFilter>().weights[192], 0.25F);
    EXPECT_EQ(now.get<GrainFilter>().radius, initial.get<GrainFilter>().radius);
    EXPECT_EQ(now.get<CurveFilter>().curve, initial.get<CurveFilter>().curve);
}

TEST_F(MainWindowActions, PanelsAreResetInFixedOrder)
{
    start();
    QStringList senders;
    const QObject listener;
    const auto record = [&](auto &sender, auto signal) {
        const QString name = QString::fromLatin1(sender.metaObject()->className());
        QObject::connect(&sender, signal, &listener, [&senders, name] { senders << name; });
    };
    record(panel<Mixer>(), &Mixer::signalMixer);
    record(panel<Vignette>(), &Vignette::signalVignette);
    record(panel<SplitTone>(), &SplitTone::signalSplit);
    record(panel<Grain>(), &Grain::signalGrain);
    record(panel<Curves>(), &Curves::signalCurves);
    const QStringList order{QStringLiteral("Mixer"), QStringLiteral("Vignette"), QStringLiteral("SplitTone"),
                            QStringLiteral("Grain"), QStringLiteral("Curves")};
    window.slotResetFilters();
    EXPECT_EQ(senders, order);
    senders.clear();
    window.loadBuffer(greyImage(1, 1, 255));
    EXPECT_EQ(senders, order);
}

TEST_F(MainWindowActions, LoadingNullPixelsLogsAWarningAndChangesNothing)
{
    start();
    emit panel<Mixer>().signalMixer(1, 0, 0);
    expectWarning(QStringLiteral("Buffer is invalid!"));
    window.loadBuffer(grisal::graphics::Image8());
    EXPECT_EQ(preview().previewWidth(), 300);
    EXPECT_EQ(preview().parameters().get<MixerFilter>().weights, (ColorRGB<float>{1, 0, 0}));
}

TEST_F(MainWindowActions, LoadingPixelsInitialisesOpenGlAgain)
{
    start();
    log.clear();
    window.loadBuffer(greyImage(1, 1, 255));
    EXPECT_TRUE(log.contains(QStringLiteral("INITIALIZE GL")));
}

TEST_F(MainWindowActions, ZoomActionsChangeTheScaleByOneTwentyFifth)
{
    start();
    const float before = preview().scale();
    trigger(window, "actionZoomIn");
    EXPECT_FLOAT_EQ(preview().scale(), before + 0.04F);
    trigger(window, "actionZoomOut");
    EXPECT_FLOAT_EQ(preview().scale(), before);
}

TEST_F(MainWindowActions, FitAndActualPixelsSetTheScale)
{
    start();
    const auto width = static_cast<float>(preview().width() * preview().devicePixelRatioF());
    const auto height = static_cast<float>(preview().height() * preview().devicePixelRatioF());
    trigger(window, "actionFitOnHeight");
    EXPECT_FLOAT_EQ(preview().scale(), 0.99F * height / 200);
    trigger(window, "actionFitOnWidth");
    EXPECT_FLOAT_EQ(preview().scale(), 0.99F * width / 300);
    trigger(window, "actionActualPixels");
    EXPECT_FLOAT_EQ(preview().scale(), 1);
}

TEST_F(MainWindowActions, QuitLogsAMessageAndClosesTheWindow)
{
    start();
    const QSignalSpy finished(&window, &grisal::ui::MainWindow::signalFinished);
    expectWarning(QStringLiteral("Bye bye...\n\n\n"));
    trigger(window, "actionQuit");
    EXPECT_EQ(finished.count(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowActions, WebsiteOpensInTheBrowser)
{
    const UrlInterceptor browser(QStringLiteral("https"));
    trigger(window, "actionWebsite");
    EXPECT_EQ(browser.urls, QList<QUrl>{QUrl(QStringLiteral("https://grisal.example/"))});
}

TEST_F(MainWindowActions, AboutShowsDescriptionAndVersion)
{
    start();
    QString title;
    QString description;
    QString version;
    QString tab;
    const AboutAnswer answer([&](QDialog &about) {
        title = about.windowTitle();
        description = child<QLabel>(about, "labelAbout").text();
        version = child<QLabel>(about, "labelVersion").text();
        tab = child<QTabWidget>(about, "tabWidget").currentWidget()->objectName();
    });
    trigger(window, "actionAbout");
    EXPECT_EQ(title, QStringLiteral("About"));
    EXPECT_EQ(description, QStringLiteral("Lumio Grisal is a\nblack and white\nimaging toolkit\nwith focus on speed\n"
                                          "and comfort."));
    const QRegularExpression pattern(QStringLiteral("\\AVersion: \\w{3} [ \\d]\\d \\d{4} \\d\\d:\\d\\d:\\d\\d\\z"));
    EXPECT_TRUE(pattern.match(version).hasMatch()) << version.toStdString();
    EXPECT_EQ(tab, QStringLiteral("tabAbout"));
}

TEST_F(MainWindowActions, AboutOpensTheWebsite)
{
    start();
    const UrlInterceptor browser(QStringLiteral("https"));
    const AboutAnswer answer([](QDialog &about) { child<QPushButton>(about, "buttonWebsite").click(); });
    trigger(window, "actionAbout");
    EXPECT_EQ(browser.urls, QList<QUrl>{QUrl(QStringLiteral("https://grisal.example/"))});
}

} // namespace
