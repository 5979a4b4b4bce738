// SPDX-License-Identifier: MIT
#include "app/Preferences.h"

#include "app/Settings.h"
#include "app/Translation.h"
#include "tests/app/FilesTest.h"
#include "tests/support/Modal.h"
#include "tests/support/UrlInterceptor.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QPushButton>

#include <sys/stat.h>

#include <algorithm>
#include <functional>
#include <initializer_list>

namespace
{

using namespace grisal::test;

QSettings settings()
{
    return QSettings(QStringLiteral("grisal.example"), QStringLiteral("Quillmark"));
}

class PreferencesTest : public GuiTest
{
protected:
    void remember(const QString &directory, const QStringList &recent)
    {
        settings().setValue(QStringLiteral("lastDirectory"), directory);
        settings().setValue(QStringLiteral("recentImages"), recent);
    }

    static QString directoryIn(const Preferences &preferences)
    {
        return child<QLineEdit>(preferences, "lineDirectory").text();
    }

    static QStringList recentIn(const Preferences &preferences)
    {
        const auto &list = child<QListWidget>(preferences, "listRecent");
        QStringList paths;
        for (int i = 0; i < list.count(); ++i) {
            paths << list.item(i)->text();
        }
        return paths;
    }

    static QPushButton &button(const Preferences &preferences, const char *name)
    {
        return child<QPushButton>(preferences, name);
    }

    FileDealer dealer;
};

TEST_F(PreferencesTest, ShowsStoredDirectoryAndRecentImages)
{
    const QStringList recent{QStringLiteral("/pictures/a.png"), QStringLiteral("/else<i>where/b.tif")};
    remember(QStringLiteral("/pictures"), recent);
    const Preferences preferences(dealer);
    EXPECT_EQ(preferences.windowTitle(), QStringLiteral("Preferences"));
    EXPECT_EQ(directoryIn(preferences), QStringLiteral("/pictures"));
    EXPECT_EQ(recentIn(preferences), recent);
    EXPECT_TRUE(button(preferences, "buttonForgetDirectory").isEnabled());
    EXPECT_TRUE(button(preferences, "buttonForgetRecent").isEnabled());
}

TEST_F(PreferencesTest, ForgetButtonsAreDisabledWithoutStoredValues)
{
    const Preferences preferences(dealer);
    EXPECT_TRUE(directoryIn(preferences).isEmpty());
    EXPECT_TRUE(recentIn(preferences).isEmpty());
    EXPECT_FALSE(button(preferences, "buttonForgetDirectory").isEnabled());
    EXPECT_FALSE(button(preferences, "buttonForgetRecent").isEnabled());
}

TEST_F(PreferencesTest, RecentImageWithoutPathIsNotShownButForgotten)
{
    remember(QString(), {QString()});
    const Preferences preferences(dealer);
    EXPECT_TRUE(recentIn(preferences).isEmpty());
    button(preferences, "buttonForgetRecent").click();
    EXPECT_FALSE(settings().contains(QStringLiteral("recentImages")));
}

TEST_F(PreferencesTest, ForgetsOnlyTheDirectory)
{
    const QStringList recent(QStringLiteral("/pictures/a.png"));
    remember(QStringLiteral("/pictures"), recent);
    const Preferences preferences(dealer);
    button(preferences, "buttonForgetDirectory").click();
    EXPECT_TRUE(directoryIn(preferences).isEmpty());
    EXPECT_FALSE(button(preferences, "buttonForgetDirectory").isEnabled());
    EXPECT_EQ(recentIn(preferences), recent);
    EXPECT_EQ(settings().allKeys(), QStringList(QStringLiteral("recentImages")));
}

TEST_F(PreferencesTest, ForgetsOnlyTheRecentImages)
{
    remember(QStringLiteral("/pictures"), {QStringLiteral("/pictures/a.png")});
    const Preferences preferences(dealer);
    button(preferences, "buttonForgetRecent").click();
    EXPECT_TRUE(recentIn(preferences).isEmpty());
    EXPECT_FALSE(button(preferences, "buttonForgetRecent").isEnabled());
    EXPECT_EQ(directoryIn(preferences), QStringLiteral("/pictures"));
    EXPECT_EQ(settings().allKeys(), QStringList(QStringLiteral("lastDirectory")));
}

TEST_F(PreferencesTest, ForgettingIsWrittenToTheSettingsFile)
{
    remember(inHome(QStringLiteral("secret")), {inHome(QStringLiteral("secret/a.png"))});
    const auto stored = [] {
        QFile file(FileDealer::settingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    ASSERT_TRUE(stored().contains("secret"));
    const Preferences preferences(dealer);
    button(preferences, "buttonForgetDirectory").click();
    button(preferences, "buttonForgetRecent").click();
    EXPECT_FALSE(stored().contains("secret")) << stored().toStdString();
}

TEST_F(PreferencesTest, ShowsWhereLogAndSettingsAre)
{
    const Preferences preferences(dealer);
    EXPECT_EQ(child<QLineEdit>(preferences, "lineLog").text(), inHome(QStringLiteral("GrisalLog.txt")));
    EXPECT_EQ(child<QLineEdit>(preferences, "lineSettings").text(),
              inHome(QStringLiteral(".config/grisal.example/Quillmark.conf")));
}

TEST_F(PreferencesTest, OpensTheFolders)
{
    remember(QStringLiteral("/pictures"), {});
    const UrlInterceptor fileManager(QStringLiteral("file"));
    const Preferences preferences(dealer);
    button(preferences, "buttonOpenLog").click();
    button(preferences, "buttonOpenSettings").click();
    EXPECT_EQ(fileManager.urls, (QList<QUrl>{QUrl::fromLocalFile(homePath()),
                                             QUrl::fromLocalFile(inHome(QStringLiteral(".config/grisal.example")))}));
}

TEST_F(PreferencesTest, OpensTheNearestExistingFolderWithoutSettings)
{
    const UrlInterceptor fileManager(QStringLiteral("file"));
    const Preferences preferences(dealer);
    button(preferences, "buttonOpenSettings").click();
    EXPECT_EQ(fileManager.urls, QList<QUrl>{QUrl::fromLocalFile(homePath())});
}

TEST_F(PreferencesTest, ShowsABoxIfNoProgramOpensTheFolder)
{
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", homePath().toLocal8Bit());
    expectWarning(QStringLiteral("Unable to detect a launcher"));
    expectWarning(QStringLiteral("No program opens the folder"));
    MessageBoxAnswer box(QMessageBox::Ok);
    const Preferences preferences(dealer);
    button(preferences, "buttonOpenLog").click();
    qputenv("PATH", programs);
    EXPECT_TRUE(box.text.contains(homePath())) << box.text.toStdString();
}

TEST_F(PreferencesTest, CloseAndEscapeCloseTheDialog)
{
    Preferences preferences(dealer);
    preferences.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&preferences));
    child<QDialogButtonBox>(preferences, "buttonBox").button(QDialogButtonBox::Close)->click();
    EXPECT_FALSE(preferences.isVisible());
    preferences.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&preferences));
    QTest::keyClick(&preferences, Qt::Key_Escape);
    EXPECT_FALSE(preferences.isVisible());
}

TEST_F(PreferencesTest, EveryControlHasANameAndATip)
{
    const Preferences preferences(dealer);
    for (const char *name : {"lineDirectory", "buttonForgetDirectory", "listRecent", "buttonForgetRecent", "lineLog",
                             "buttonOpenLog", "lineSettings", "buttonOpenSettings"}) {
        const auto &control = child<QWidget>(preferences, name);
        EXPECT_FALSE(control.accessibleName().isEmpty()) << name;
        EXPECT_FALSE(control.accessibleDescription().isEmpty()) << name;
        EXPECT_FALSE(control.toolTip().isEmpty()) << name;
    }
}

TEST_F(PreferencesTest, FieldsAndButtonsOfBothGroupsAreAlignedInEachLanguage)
{
    for (const QLocale::Language language : {QLocale::English, QLocale::German, QLocale::French}) {
        const Translation translation{QLocale(language)};
        Preferences preferences(dealer);
        preferences.show();
        const auto expectSameColumn = [&](std::initializer_list<const char *> names) {
            const auto &first = child<QWidget>(preferences, *names.begin());
            for (const char *name : names) {
                const auto &widget = child<QWidget>(preferences, name);
                EXPECT_EQ(widget.mapTo(&preferences, QPoint()).x(), first.mapTo(&preferences, QPoint()).x()) << name;
                EXPECT_EQ(widget.width(), first.width()) << name;
            }
        };
        expectSameColumn({"lineDirectory", "listRecent", "lineLog", "lineSettings"});
        expectSameColumn({"buttonForgetDirectory", "buttonForgetRecent", "buttonOpenLog", "buttonOpenSettings"});
    }
}

TEST_F(PreferencesTest, ReadOnlyFieldsHaveTheColourOfTheWindow)
{
    Preferences preferences(dealer);
    preferences.show();
    for (const QColor &window : {QColor(239, 239, 239), QColor(45, 45, 45)}) {
        preferences.setPalette(QPalette(window));
        for (const char *name : {"lineDirectory", "lineLog", "lineSettings"}) {
            const QImage shown = child<QLineEdit>(preferences, name).grab().toImage();
            EXPECT_EQ(shown.pixelColor(shown.width() / 2, 3), window) << name;
        }
    }
}

/// Calls a function with the preferences dialog and closes it.
class PreferencesAnswer : public ModalAnswer
{
public:
    explicit PreferencesAnswer(std::function<void(Preferences &)> use) : m_use(std::move(use)) {}

protected:
    bool answer(QWidget &dialog) override
    {
        auto *preferences = qobject_cast<Preferences *>(&dialog);
        if (preferences == nullptr) {
            return false;
        }
        m_use(*preferences);
        preferences->reject();
        return true;
    }

private:
    std::function<void(Preferences &)> m_use;
};

class PreferencesOfTheWindow : public FilesTest
{
protected:
    int recentItems()
    {
        const QList<QAction *> items = child<QMenu>(window, "menuRecent").actions();
        return static_cast<int>(
            std::count_if(items.begin(), items.end(), [](const QAction *item) { return item->isVisible(); }));
    }
};

TEST_F(PreferencesOfTheWindow, ForgettingUpdatesTheRecentMenu)
{
    start();
    openWithDialog(makePicture(QStringLiteral("a.png"), 8, 8));
    ASSERT_EQ(recentItems(), 1);
    QString shown;
    const PreferencesAnswer answer([&](Preferences &preferences) {
        shown = child<QListWidget>(preferences, "listRecent").item(0)->text();
        child<QPushButton>(preferences, "buttonForgetRecent").click();
    });
    trigger(window, "actionPreferences");
    EXPECT_EQ(shown, inHome(QStringLiteral("a.png")));
    EXPECT_EQ(recentItems(), 0);
    EXPECT_TRUE(storedRecent().isEmpty());
}

TEST_F(PreferencesOfTheWindow, SaveStillUsesThePathOfTheOpenImageAfterForgetting)
{
    start();
    openWithDialog(makePicture(QStringLiteral("a.png"), 8, 8));
    const PreferencesAnswer answer([](Preferences &preferences) {
        child<QPushButton>(preferences, "buttonForgetRecent").click();
        child<QPushButton>(preferences, "buttonForgetDirectory").click();
    });
    trigger(window, "actionPreferences");
    MessageBoxAnswer question(QMessageBox::Cancel);
    trigger(window, "actionSave");
    EXPECT_EQ(question.title, QStringLiteral("Overwrite?"));
}

TEST_F(PreferencesTest, ReportsThatNothingCouldBeForgotten)
{
    remember(QStringLiteral("/pictures"), {});
    const QString lock = Settings::fileName() + QStringLiteral(".lock");
    ASSERT_EQ(mkfifo(QFile::encodeName(lock).constData(), 0600), 0);
    expectWarning(QStringLiteral("The settings cannot be stored: "));
    Preferences preferences(dealer);
    MessageBoxAnswer box(QMessageBox::Ok);
    button(preferences, "buttonForgetDirectory").click();
    EXPECT_EQ(box.text, QStringLiteral("The settings could not be changed. The log contains the reason."));
    EXPECT_EQ(directoryIn(preferences), QStringLiteral("/pictures"));
}

} // namespace
