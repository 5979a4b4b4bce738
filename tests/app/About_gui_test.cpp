// SPDX-License-Identifier: MIT
#include "app/About.h"
#include "tests/support/GuiTest.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

#include <array>
#include <set>

namespace
{

using namespace grisal::test;

struct LicenseRow {
    const char *name; ///< of the library
    const char *resource;
    const char *words; ///< contained in this text only
};

constexpr std::array<LicenseRow, 16> licenseTable{{
    {"Adobe", "adobe", "does not contain a library of Adobe's own"},
    {"BSpline", "bspline", "this program's own code"},
    {"lcms2", "lcms2", "Marti Maria"},
    {"libbz2", "libbz2", "Julian R Seward"},
    {"libfreetype", "libfreetype", "The FreeType Project LICENSE"},
    {"libiconv", "libiconv", "does not contain GNU libiconv"},
    {"libjpeg", "libjpeg", "Independent JPEG Group"},
    {"libltdl", "libltdl", "does not contain GNU libltdl"},
    {"liblzma", "liblzma", "Lasse Collin"},
    {"libpng", "libpng", "PNG Reference Library"},
    {"libtiff", "libtiff", "Silicon Graphics"},
    {"libxml2", "libxml2", "Daniel Veillard"},
    {"libz", "libz", "Jean-loup Gailly"},
    {"Magick", "magick", "GraphicsMagick Group"},
    {"Magick++", "magick++", "Magick++"},
    {"Qt", "qt", "The Qt Company"},
}};

QString textOf(const LicenseRow &row)
{
    QFile file(QStringLiteral(":/Licenses/Licenses/%1.txt").arg(QLatin1String(row.resource)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class AboutTest : public GuiTest
{
protected:
    About about;
    QTabWidget &tabs = child<QTabWidget>(about, "tabWidget");
    QComboBox &box = child<QComboBox>(about, "boxLicense");
    QTextBrowser &browser = child<QTextBrowser>(about, "browserLicense");
    QLabel &logo = child<QLabel>(about, "labelLogo");
};

TEST_F(AboutTest, HasTitleAndSize)
{
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About"));
    EXPECT_EQ(about.size(), QSize(404, 284));
}

TEST_F(AboutTest, OpensOnTheFirstOfTwoTabs)
{
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("About"));
    EXPECT_EQ(tabs.widget(0)->objectName(), QStringLiteral("tabAbout"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("Licenses"));
    EXPECT_EQ(tabs.widget(1)->objectName(), QStringLiteral("tabLicense"));
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(AboutTest, LogoIsThirtyPixelsWideAtTheScreenDensity)
{
    const QPixmap pixmap = logo.pixmap();
    EXPECT_EQ(pixmap.deviceIndependentSize().width(), 30);
    EXPECT_EQ(pixmap.devicePixelRatio(), about.devicePixelRatioF());
    EXPECT_EQ(pixmap.width(), qRound(30 * about.devicePixelRatioF()));
    // The logo is rendered at the density of the screen, not scaled.
    const QImage expected = QPixmap(QStringLiteral(":/Icons/Icons/logo.svg"))
                                .scaledToWidth(pixmap.width(), Qt::SmoothTransformation)
                                .toImage();
    QImage shown = pixmap.toImage();
    shown.setDevicePixelRatio(1);
    EXPECT_EQ(shown, expected);
    EXPECT_TRUE(logo.text().isEmpty());
}

TEST_F(AboutTest, LicensesAreListedInFixedOrder)
{
    ASSERT_EQ(box.count(), static_cast<int>(licenseTable.size()));
    for (int i = 0; i < box.count(); ++i) {
        const LicenseRow &row = licenseTable[static_cast<std::size_t>(i)];
        EXPECT_EQ(box.itemText(i), QLatin1String(row.name));
        EXPECT_TRUE(box.itemIcon(i).isNull());
        EXPECT_EQ(box.itemData(i).toString(),
                  QStringLiteral(":/Licenses/Licenses/%1.txt").arg(QLatin1String(row.resource)));
    }
}

TEST_F(AboutTest, FirstLicenseIsShownInitially)
{
    EXPECT_EQ(box.currentText(), QStringLiteral("Adobe"));
    EXPECT_EQ(browser.toPlainText().trimmed().toStdString(), textOf(licenseTable[0]).trimmed().toStdString());
}

TEST_F(AboutTest, EveryLibraryShowsItsUnchangedLicenseText)
{
    std::set<QString> texts;
    for (int i = 0; i < box.count(); ++i) {
        const LicenseRow &row = licenseTable[static_cast<std::size_t>(i)];
        box.setCurrentIndex(i);
        const QString shown = browser.toPlainText();
        EXPECT_FALSE(shown.isEmpty()) << row.name;
        EXPECT_TRUE(shown.trimmed() == textOf(row).trimmed()) << row.name;
        EXPECT_TRUE(shown.contains(QLatin1String(row.words))) << row.name;
        EXPECT_TRUE(texts.insert(shown).second) << row.name << " shows the text of another library";
    }
}

// A library that the program is linked with has its complete licence.
TEST_F(AboutTest, TextsOfContainedLibrariesHaveACopyrightLine)
{
    for (const LicenseRow &row : licenseTable) {
        const QString text = textOf(row);
        if (!text.startsWith(QStringLiteral("This build does not contain"))) {
            EXPECT_TRUE(text.contains(QStringLiteral("copyright"), Qt::CaseInsensitive)) << row.name;
            EXPECT_GT(text.size(), 900) << row.name;
        }
    }
}

TEST_F(AboutTest, ButtonBoxHasOnlyOk)
{
    const auto &buttons = child<QDialogButtonBox>(about, "buttonBox");
    EXPECT_EQ(buttons.orientation(), Qt::Vertical);
    EXPECT_EQ(buttons.standardButtons(), QDialogButtonBox::Ok);
    EXPECT_EQ(child<QPushButton>(about, "buttonWebsite").text(), QStringLiteral("Website"));
}

TEST_F(AboutTest, OkAndEscapeCloseTheDialog)
{
    about.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
    QTest::mouseClick(child<QDialogButtonBox>(about, "buttonBox").button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
    EXPECT_EQ(about.result(), QDialog::Accepted);
    about.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
    QTest::keyClick(&about, Qt::Key_Escape);
    EXPECT_FALSE(about.isVisible());
    EXPECT_EQ(about.result(), QDialog::Rejected);
}

TEST_F(AboutTest, ButtonsHaveTheirOwnWidthAndTheEdgesOfTheTabs)
{
    about.show();
    const auto &website = child<QPushButton>(about, "buttonWebsite");
    const auto &buttons = child<QDialogButtonBox>(about, "buttonBox");
    EXPECT_EQ(website.width(), website.sizeHint().width());
    EXPECT_EQ(website.geometry().left(), tabs.geometry().left());
    EXPECT_EQ(buttons.geometry().right(), tabs.geometry().right());
    EXPECT_EQ(buttons.button(QDialogButtonBox::Ok)->width(), buttons.button(QDialogButtonBox::Ok)->sizeHint().width());
}

} // namespace
