// SPDX-License-Identifier: MIT
#include "app/About.h"

#include "app/Product.h"
#include "ui_About.h"

#include <QDesktopServices>
#include <QPixmap>
#include <QUrl>

#include <array>

namespace
{

constexpr int logoWidth = 30;

struct LibraryLicense {
    const char *name;
    const char *resource;
};

constexpr std::array<LibraryLicense, 16> licenses{{
    {"Adobe", ":/Licenses/Licenses/adobe.txt"},
    {"BSpline", ":/Licenses/Licenses/bspline.txt"},
    {"lcms2", ":/Licenses/Licenses/lcms2.txt"},
    {"libbz2", ":/Licenses/Licenses/libbz2.txt"},
    {"libfreetype", ":/Licenses/Licenses/libfreetype.txt"},
    {"libiconv", ":/Licenses/Licenses/libiconv.txt"},
    {"libjpeg", ":/Licenses/Licenses/libjpeg.txt"},
    {"libltdl", ":/Licenses/Licenses/libltdl.txt"},
    {"liblzma", ":/Licenses/Licenses/liblzma.txt"},
    {"libpng", ":/Licenses/Licenses/libpng.txt"},
    {"libtiff", ":/Licenses/Licenses/libtiff.txt"},
    {"libxml2", ":/Licenses/Licenses/libxml2.txt"},
    {"libz", ":/Licenses/Licenses/libz.txt"},
    {"Magick", ":/Licenses/Licenses/magick.txt"},
    {"Magick++", ":/Licenses/Licenses/magick++.txt"},
    {"Qt", ":/Licenses/Licenses/qt.txt"},
}};

} // namespace

About::About(QWidget *parent) : QDialog(parent), m_form(std::make_unique<Ui::About>())
{
    m_form->setupUi(this);
    showVersion();
    showLogo();
    fillLicenses();
}

About::~About() = default;

void About::showVersion()
{
    m_form->labelVersion->setText(tr("Version: %1").arg(QStringLiteral(__DATE__ " " __TIME__)));
}

void About::showLogo()
{
    const qreal scale = devicePixelRatioF();
    QPixmap logo = QPixmap(QStringLiteral(":/Icons/Icons/logo.svg"))
                       .scaledToWidth(qRound(logoWidth * scale), Qt::SmoothTransformation);
    logo.setDevicePixelRatio(scale);
    m_form->labelLogo->setPixmap(logo);
}

void About::fillLicenses()
{
    int index = 0;
    for (const LibraryLicense &license : licenses) {
        m_form->boxLicense->insertItem(index++, QIcon(), QString::fromLatin1(license.name),
                                       QString::fromLatin1(license.resource));
    }
}

void About::on_boxLicense_currentIndexChanged(int index)
{
    const QString resource = m_form->boxLicense->itemData(index).toString();
    m_form->browserLicense->setSource(QUrl::fromLocalFile(resource));
}

void About::on_buttonWebsite_clicked()
{
    QDesktopServices::openUrl(QUrl(QString::fromLatin1(product::website)));
}
