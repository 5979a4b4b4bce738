// SPDX-License-Identifier: MIT
// The program in all its languages.
#include "app/About.h"
#include "app/Preferences.h"
#include "app/Translation.h"
#include "app/UserGuide.h"
#include "tests/app/FilesTest.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QToolBar>

#include <map>
#include <memory>

namespace
{

using namespace grisal::test;

std::string menusOf(const QMainWindow &window)
{
    QStringList titles;
    const QList<QAction *> menus = window.menuBar()->actions();
    for (const QAction *menu : menus) {
        titles << menu->text();
    }
    return titles.join(QLatin1Char(' ')).toStdString();
}

/// The shortcuts of the window's actions, by object name.
std::map<QString, QString> shortcutsOf(const QWidget &window)
{
    std::map<QString, QString> shortcuts;
    for (const QAction *action : window.findChildren<QAction *>()) {
        if (!action->objectName().isEmpty()) {
            shortcuts[action->objectName()] = action->shortcut().toString(QKeySequence::PortableText);
        }
    }
    return shortcuts;
}

/// The names and weights of the films, in order, without the two looks that are not films.
QStringList filmsOf(const QWidget &window)
{
    QStringList films;
    const auto &presets = child<QComboBox>(child<QWidget>(window, "Mixer"), "comboPresets");
    for (int i = 2; i < presets.count(); ++i) {
        films << presets.itemText(i) + QLatin1Char(' ') + presets.itemData(i).toStringList().join(QLatin1Char('/'));
    }
    return films;
}

std::string qtButtonOf(const QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    QString text = child<QDialogButtonBox>(dialog, "buttonBox").button(which)->text();
    return text.remove(QLatin1Char('&')).toStdString();
}

QString catalogueFor(const char *locale)
{
    return fileInLanguageOf(QLocale(QString::fromLatin1(locale)), QStringLiteral(":/Translations/grisal_%1.qm"));
}

class TranslationTest : public GuiTest
{
};

TEST_F(TranslationTest, LocaleSelectsTheCatalogue)
{
    EXPECT_EQ(catalogueFor("de_DE"), QStringLiteral(":/Translations/grisal_de.qm"));
    EXPECT_EQ(catalogueFor("de_CH"), QStringLiteral(":/Translations/grisal_de.qm"));
    EXPECT_EQ(catalogueFor("fr_BE"), QStringLiteral(":/Translations/grisal_fr.qm"));
    for (const char *locale : {"en_GB", "nl_NL", "C"}) {
        EXPECT_TRUE(catalogueFor(locale).isEmpty()) << locale;
    }
}

TEST_F(TranslationTest, MenusAreGermanDuringTheLifetimeOfTheTranslation)
{
    {
        const Translation translation{QLocale(QLocale::German)};
        EXPECT_EQ(menusOf(grisal::ui::MainWindow()), "Datei Bearbeiten Ansicht Filter Hilfe");
    }
    EXPECT_EQ(menusOf(grisal::ui::MainWindow()), "File Edit View Filter Help");
}

TEST_F(TranslationTest, MenusAreFrenchForFrench)
{
    const Translation translation{QLocale(QLocale::French, QLocale::Canada)};
    EXPECT_EQ(menusOf(grisal::ui::MainWindow()), "Fichier Édition Affichage Filtres Aide");
}

TEST_F(TranslationTest, MenusAreEnglishInALanguageWithoutACatalogue)
{
    const Translation translation{QLocale(QLocale::Dutch)};
    EXPECT_EQ(menusOf(grisal::ui::MainWindow()), "File Edit View Filter Help");
    FileDealer dealer;
    EXPECT_EQ(qtButtonOf(Preferences(dealer), QDialogButtonBox::Close), "Close");
}

TEST_F(TranslationTest, TextsOfQtAreInTheSameLanguage)
{
    const Translation translation{QLocale(QLocale::German)};
    FileDealer dealer;
    const Preferences preferences(dealer);
    EXPECT_EQ(preferences.windowTitle(), QStringLiteral("Einstellungen"));
    EXPECT_EQ(qtButtonOf(preferences, QDialogButtonBox::Close), "Schließen");
}

TEST_F(TranslationTest, TextsInSourcesAndFormsAreTranslated)
{
    const Translation translation{QLocale(QLocale::German)};
    const grisal::ui::MainWindow window;
    EXPECT_EQ(window.findChild<QToolBar *>()->accessibleName(), QStringLiteral("Filter"));
    EXPECT_EQ(child<grisal::ui::GLWidget>(window, "glWidgetPreview").accessibleValue(), QStringLiteral("Kein Bild"));
    EXPECT_EQ(grisal::graphics::Message("The graphics driver does not start OpenGL.").translated(),
              QStringLiteral("Der Grafiktreiber startet OpenGL nicht."));
    const About about;
    EXPECT_TRUE(child<QLabel>(about, "labelVersion").text().startsWith(QStringLiteral("Version: ")));
}

/// Installs a language before the window is created and until it is destroyed.
struct InOneLanguage : testing::WithParamInterface<const char *> {
    std::unique_ptr<const Translation> translation =
        std::make_unique<const Translation>(QLocale(QString::fromLatin1(GetParam())));
};

class TranslatedWindow : public InOneLanguage, public FilesTest
{
protected:
    static bool isGerman() { return qstrcmp(GetParam(), "de") == 0; }

    /// Fails if a text of the widget is truncated.
    static void expectRoom(const QWidget &widget)
    {
        for (const QWidget *part : widget.findChildren<QWidget *>()) {
            if (!part->isVisible()) {
                continue;
            }
            if (const auto *label = qobject_cast<const QLabel *>(part)) {
                EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
            } else if (const auto *button = qobject_cast<const QAbstractButton *>(part)) {
                EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
            } else if (const auto *group = qobject_cast<const QGroupBox *>(part)) {
                EXPECT_GE(group->width(), group->minimumSizeHint().width()) << group->title().toStdString();
            }
        }
    }
};

TEST_P(TranslatedWindow, HasTheShortcutsAndFilmsOfTheEnglishWindow)
{
    translation.reset();
    const grisal::ui::MainWindow english;
    ASSERT_EQ(menusOf(english), "File Edit View Filter Help");
    ASSERT_NE(menusOf(window), menusOf(english));
    EXPECT_GT(shortcutsOf(english).size(), 15U);
    EXPECT_EQ(shortcutsOf(window), shortcutsOf(english));
    EXPECT_EQ(filmsOf(english).size(), 15);
    EXPECT_EQ(filmsOf(window), filmsOf(english));
}

TEST_P(TranslatedWindow, TextsInEachMenuAreUnique)
{
    for (const QMenu *menu : window.menuBar()->findChildren<QMenu *>()) {
        QStringList texts;
        for (const QAction *item : menu->actions()) {
            if (item->isVisible() && !item->isSeparator()) {
                texts << item->text();
            }
        }
        EXPECT_FALSE(texts.isEmpty() && menu->objectName() != QStringLiteral("menuRecent"));
        EXPECT_EQ(texts.removeDuplicates(), 0) << menu->title().toStdString();
    }
}

TEST_P(TranslatedWindow, OpensAnImageAndOpensItAgainFromTheRecentMenu)
{
    start();
    const QString path = makePicture(QStringLiteral("a.png"), 8, 6);
    openWithDialog(path);
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 8x6");
    EXPECT_EQ(storedRecent(), QStringList{path});
    openWithDialog(makePicture(QStringLiteral("b.png"), 5, 5));
    QAction *recent = child<QMenu>(window, "menuRecent").actions().at(1);
    EXPECT_EQ(recent->text(), QStringLiteral("a.png"));
    recent->trigger();
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - a.png 8x6");
}

TEST_P(TranslatedWindow, DialogsHaveTheFilePatternsOfTheEnglishOnes)
{
    start();
    FileDialogAnswer answer{QString()};
    trigger(window, "actionOpen");
    EXPECT_EQ(answer.title, isGerman() ? QStringLiteral("Bild öffnen") : QStringLiteral("Ouvrir une image"));
    const QString patterns = QStringLiteral(" (*.jpg *.jpeg *.JPG *.JPEG *.png *.PNG *.tif *.TIF)");
    EXPECT_EQ(answer.nameFilters.join(QLatin1Char(' ')),
              (isGerman() ? QStringLiteral("Bilder") : QStringLiteral("Images")) + patterns);
}

TEST_P(TranslatedWindow, PresetsSetTheirWeights)
{
    start();
    const auto &mixer = child<QWidget>(window, "Mixer");
    auto &presets = child<QComboBox>(mixer, "comboPresets");
    EXPECT_EQ(presets.itemText(0), isGerman() ? QStringLiteral("Mittelwert") : QStringLiteral("Moyenne"));
    presets.setCurrentIndex(presets.count() - 1);
    EXPECT_EQ(child<QSpinBox>(mixer, "spinBoxR").value(), 64);
    EXPECT_EQ(child<QSpinBox>(mixer, "spinBoxG").value(), 89);
    EXPECT_EQ(child<QSpinBox>(mixer, "spinBoxB").value(), 102);
}

TEST_P(TranslatedWindow, TextsOfEveryPanelFit)
{
    start();
    const std::map<const char *, const char *> panels{{"actionCurves", "Curves"},       {"actionSharpen", "Sharpen"},
                                                      {"actionVignette", "Vignette"},   {"actionGrain", "Grain"},
                                                      {"actionSplitTone", "SplitTone"}, {"actionMixer", "Mixer"}};
    for (const auto &[name, panel] : panels) {
        trigger(window, name);
        EXPECT_EQ(shownPanel(), panel);
        QCoreApplication::processEvents();
        expectRoom(window);
    }
}

TEST_P(TranslatedWindow, TextsOfTheDialogsFit)
{
    FileDealer dealer;
    Preferences preferences(dealer);
    About about;
    UserGuide guide;
    for (QWidget *dialog : std::initializer_list<QWidget *>{&preferences, &about, &guide}) {
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
        expectRoom(*dialog);
    }
}

TEST_P(TranslatedWindow, LogIsInEnglish)
{
    start();
    expectWarning(QStringLiteral("MainWindow::saveImage(): Invalid filename"));
    window.saveImage(QString());
    EXPECT_EQ(status(), isGerman() ? "Kein Dateiname" : "Aucun nom de fichier");
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedWindow, testing::Values("de", "fr"));

} // namespace
