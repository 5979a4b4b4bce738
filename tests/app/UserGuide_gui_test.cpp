// SPDX-License-Identifier: MIT
#include "app/UserGuide.h"
#include "tests/app/WindowTest.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>

#include <cstdlib>

namespace
{

using namespace grisal::test;

const QString folder = QStringLiteral(":/Guide/Guide");

QStringList guides()
{
    return QDir(folder).entryList({QStringLiteral("guide*.html")});
}

QString sourceOf(const QString &guide)
{
    QFile file(folder + QLatin1Char('/') + guide);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The names of files and the commands in a guide.
QStringList typewriterTexts(const QString &guide)
{
    QStringList texts;
    const QRegularExpression element(QStringLiteral("<tt>(.+?)</tt>"));
    for (auto i = element.globalMatch(sourceOf(guide).simplified()); i.hasNext();) {
        texts << i.next().captured(1);
    }
    return texts;
}

/// The parts of a guide as parsed by Qt.
struct Parts {
    QStringList places; ///< the targets of links
    QStringList links;
    QStringList pictures;
    QList<QColor> linkColours;
};

Parts partsOf(const QTextDocument &document)
{
    Parts parts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto i = block.begin(); !i.atEnd(); ++i) {
            const QTextCharFormat format = i.fragment().charFormat();
            parts.places << format.anchorNames();
            if (!format.anchorHref().isEmpty()) {
                parts.links << format.anchorHref();
                parts.linkColours << format.foreground().color();
            }
            if (format.isImageFormat()) {
                parts.pictures << format.toImageFormat().name();
            }
        }
    }
    return parts;
}

class UserGuideTest : public GuiTest
{
protected:
    UserGuideTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~UserGuideTest() override { QLocale::setDefault(QLocale::system()); }

    Parts partsOfGuide(const QString &guide)
    {
        QTextBrowser browser;
        browser.setSource(QUrl(QStringLiteral("qrc:/Guide/Guide/") + guide));
        return partsOf(*browser.document());
    }
};

class ShownUserGuide : public UserGuideTest
{
protected:
    ShownUserGuide()
    {
        guide.present();
        if (!QTest::qWaitForWindowActive(&guide)) {
            throw std::runtime_error("the guide does not come to the front");
        }
    }

    int place() const { return browser.verticalScrollBar()->value(); }

    UserGuide guide;
    QTextBrowser &browser = child<QTextBrowser>(guide, "browserGuide");
    QPushButton &contents = child<QPushButton>(guide, "buttonContents");
    QPushButton &back = child<QPushButton>(guide, "buttonBack");
    QPushButton &forward = child<QPushButton>(guide, "buttonForward");
};

TEST_F(UserGuideTest, IsShownInTheLanguageOfTheLocale)
{
    const auto nameFor = [](const char *locale) {
        return guideFor(QLocale(QString::fromLatin1(locale))).fileName().toStdString();
    };
    EXPECT_EQ(nameFor("de_DE"), "guide_de.html");
    EXPECT_EQ(nameFor("de_AT"), "guide_de.html");
    EXPECT_EQ(nameFor("fr_CA"), "guide_fr.html");
    EXPECT_EQ(nameFor("en_GB"), "guide.html");
    EXPECT_EQ(nameFor("nl_NL"), "guide.html");
    EXPECT_EQ(nameFor("C"), "guide.html");
}

TEST_F(UserGuideTest, IsWrittenInThreeLanguages)
{
    EXPECT_EQ(guides().join(QLatin1Char(' ')).toStdString(), "guide.html guide_de.html guide_fr.html");
}

TEST_F(UserGuideTest, EveryLinkTargetIsInTheSameGuide)
{
    for (const QString &guide : guides()) {
        const Parts parts = partsOfGuide(guide);
        EXPECT_GT(parts.links.size(), 15) << guide.toStdString();
        for (const QString &link : parts.links) {
            EXPECT_TRUE(link.startsWith(QLatin1Char('#'))) << link.toStdString();
            EXPECT_TRUE(parts.places.contains(link.mid(1))) << guide.toStdString() << ": " << link.toStdString();
        }
        EXPECT_EQ(QSet<QString>(parts.places.begin(), parts.places.end()).size(), parts.places.size())
            << guide.toStdString() << " has a place twice";
    }
}

TEST_F(UserGuideTest, ContentsListEveryChapter)
{
    for (const QString &guide : guides()) {
        Parts parts = partsOfGuide(guide);
        ASSERT_FALSE(parts.places.isEmpty());
        EXPECT_EQ(parts.places.takeFirst(), QStringLiteral("top"));
        for (const QString &place : parts.places) {
            EXPECT_TRUE(parts.links.contains(QLatin1Char('#') + place))
                << guide.toStdString() << ": " << place.toStdString();
        }
    }
}

TEST_F(UserGuideTest, EveryPictureHasTwoDensitiesAndATextAlternative)
{
    for (const QString &guide : guides()) {
        const QStringList pictures = partsOfGuide(guide).pictures;
        EXPECT_EQ(pictures.join(QLatin1Char(' ')).toStdString(),
                  "window.png mixer.png curves.png vignette.png grain.png split.png");
        for (const QString &name : pictures) {
            const QImage picture(folder + QLatin1Char('/') + name);
            const QImage highDpi(folder + QLatin1Char('/') +
                                 QString(name).replace(QLatin1String("."), QLatin1String("@2x.")));
            ASSERT_FALSE(picture.isNull()) << name.toStdString();
            ASSERT_FALSE(highDpi.isNull()) << name.toStdString();
            EXPECT_EQ(highDpi.width(), 2 * picture.width()) << name.toStdString();
            EXPECT_EQ(highDpi.height(), 2 * picture.height()) << name.toStdString();
        }
        const QRegularExpression textAlternative(QStringLiteral("<img src=\"\\w+\\.png\" alt=\"[^\"]{8,}\">"));
        EXPECT_EQ(sourceOf(guide).count(textAlternative), pictures.size()) << guide.toStdString();
    }
}

TEST_F(UserGuideTest, AllLanguagesHaveTheSameChapters)
{
    const Parts english = partsOfGuide(QStringLiteral("guide.html"));
    for (const QString &guide : guides()) {
        const Parts parts = partsOfGuide(guide);
        EXPECT_EQ(parts.places, english.places) << guide.toStdString();
        EXPECT_EQ(parts.links, english.links) << guide.toStdString();
        for (const char *part : {"<tr>", "<li>", "<p>", "<h2>", "<b>"}) {
            EXPECT_NEAR(sourceOf(guide).count(QLatin1String(part)),
                        sourceOf(QStringLiteral("guide.html")).count(QLatin1String(part)), 1)
                << guide.toStdString() << ": " << part;
        }
    }
}

TEST_F(UserGuideTest, EveryLanguageContainsTheLumaExample)
{
    for (const QString &guide : guides()) {
        const QRegularExpression example(QStringLiteral("\\b200\\b.+\\b256\\b.+\\b162, 47 .+ 47\\b"));
        EXPECT_TRUE(example.match(sourceOf(guide).simplified()).hasMatch()) << guide.toStdString();
    }
}

// They can be copied from the guide, so that they must not be translated.
TEST_F(UserGuideTest, AllLanguagesHaveTheSameFilesAndCommands)
{
    const QStringList english = typewriterTexts(QStringLiteral("guide.html"));
    EXPECT_TRUE(english.contains(QStringLiteral(
        "exiv2 -M\"reg grisal https://grisal.example/look/1.0/\" -M\"del Xmp.grisal.Look\" picture.jpg")));
    for (const QString &guide : guides()) {
        EXPECT_EQ(typewriterTexts(guide), english) << guide.toStdString();
    }
}

TEST_F(ShownUserGuide, StartsAtTheTopWithTheContents)
{
    EXPECT_EQ(guide.windowTitle(), QStringLiteral("Grisal User Guide"));
    EXPECT_EQ(place(), 0);
    EXPECT_FALSE(back.isEnabled());
    EXPECT_FALSE(forward.isEnabled());
    EXPECT_FALSE(guide.isModal());
    EXPECT_TRUE(browser.toPlainText().startsWith(QStringLiteral("Grisal User Guide")));
}

TEST_F(ShownUserGuide, FitsOnTheScreenWithoutScrollingSideways)
{
    EXPECT_TRUE(guide.screen()->availableGeometry().size().expandedTo(guide.size()) ==
                guide.screen()->availableGeometry().size());
    EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ShownUserGuide, PicturesAreShownInTheDensityOfTheScreen)
{
    const qreal density = guide.devicePixelRatioF();
    const auto picture = browser.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("mixer.png")));
    if (density > 1) {
        EXPECT_EQ(picture.value<QImage>().devicePixelRatio(), density);
    } else {
        EXPECT_EQ(QImage::fromData(picture.toByteArray()).size(), QImage(folder + QStringLiteral("/mixer.png")).size());
    }
}

TEST_F(ShownUserGuide, KeyboardFollowsLinksAndButtonsGoBack)
{
    QTest::keyClick(&browser, Qt::Key_Tab);
    QTest::keyClick(&browser, Qt::Key_Return);
    const int chapter = place();
    EXPECT_GT(chapter, 0);
    ASSERT_TRUE(back.isEnabled());
    back.click();
    EXPECT_EQ(place(), 0);
    ASSERT_TRUE(forward.isEnabled());
    forward.click();
    EXPECT_EQ(place(), chapter);
    QTest::keyClick(&browser, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), 0);
    QTest::keyClick(&browser, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(place(), chapter);
    contents.click();
    EXPECT_EQ(place(), 0);
}

TEST_F(ShownUserGuide, ContentsButtonScrollsToTheTop)
{
    browser.verticalScrollBar()->setValue(500);
    contents.click();
    EXPECT_EQ(place(), 0);
}

TEST_F(ShownUserGuide, EscapeClosesTheGuide)
{
    QTest::keyClick(&browser, Qt::Key_Escape);
    EXPECT_FALSE(guide.isVisible());
}

TEST_F(ShownUserGuide, LinkColoursFollowThePalette)
{
    browser.verticalScrollBar()->setValue(100);
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    const QColor link(110, 170, 255);
    dark.setColor(QPalette::Link, link);
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    for (const QColor &colour : partsOf(*browser.document()).linkColours) {
        ASSERT_EQ(colour, link);
    }
    EXPECT_EQ(place(), 100);
    QApplication::setPalette(before);
}

TEST_F(ShownUserGuide, EveryControlHasANameOrTextAndADescription)
{
    for (const QWidget *control : std::initializer_list<QWidget *>{&browser, &contents, &back, &forward}) {
        const auto *button = qobject_cast<const QPushButton *>(control);
        EXPECT_FALSE(control->accessibleName().isEmpty() && (button == nullptr || button->text().isEmpty()));
        EXPECT_FALSE(control->accessibleDescription().isEmpty()) << control->objectName().toStdString();
    }
}

class UserGuideInMainWindow : public WindowTest
{
protected:
    QList<UserGuide *> opened() { return window.findChildren<UserGuide *>(); }
};

TEST_F(UserGuideInMainWindow, HelpOpensOneGuideAndRaisesItAgain)
{
    start();
    trigger(window, "actionHelp");
    ASSERT_EQ(opened().size(), 1);
    UserGuide *guide = opened().front();
    ASSERT_TRUE(QTest::qWaitForWindowActive(guide));
    auto *bar = child<QTextBrowser>(*guide, "browserGuide").verticalScrollBar();
    bar->setValue(100);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    trigger(window, "actionHelp");
    EXPECT_EQ(opened(), QList<UserGuide *>{guide});
    EXPECT_TRUE(QTest::qWaitForWindowActive(guide));
    EXPECT_EQ(bar->value(), 100);
}

TEST_F(UserGuideInMainWindow, HelpOpensTheGuideAgainAfterItWasClosed)
{
    start();
    trigger(window, "actionHelp");
    opened().front()->close();
    trigger(window, "actionHelp");
    ASSERT_EQ(opened().size(), 1);
    EXPECT_TRUE(opened().front()->isVisible());
}

TEST_F(UserGuideInMainWindow, OpenGuideDoesNotKeepTheProgramRunning)
{
    start();
    trigger(window, "actionHelp");
    ASSERT_TRUE(QTest::qWaitForWindowActive(opened().front()));
    QTimer::singleShot(0, &window, &QWidget::close);
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(EXIT_FAILURE); });
    EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
}

TEST_F(UserGuideInMainWindow, EveryShortcutIsInTheGuide)
{
    const QString guide = sourceOf(QStringLiteral("guide.html"));
    int shortcuts = 0;
    for (const QAction *action : window.findChildren<QAction *>()) {
        const QString keys = action->shortcut().toString(QKeySequence::PortableText);
        if (!keys.isEmpty()) {
            ++shortcuts;
            EXPECT_TRUE(guide.contains(QStringLiteral("<td>%1</td>").arg(keys))) << keys.toStdString();
        }
    }
    EXPECT_EQ(shortcuts, 15);
}

} // namespace
