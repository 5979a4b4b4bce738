// SPDX-License-Identifier: MIT
#include "app/About.h"

#include "app/Product.h"
#include "ui_About.h"

#include <QDesktopServices>
#include <QUrl>

About::About(QWidget *parent) : QDialog(parent), m_form(std::make_unique<Ui::About>())
{
    m_form->setupUi(this);
    m_form->labelVersion->setText(QStringLiteral("Version: " __DATE__ " " __TIME__));
}

About::~About() = default;

void About::on_buttonWebsite_clicked()
{
    QDesktopServices::openUrl(QUrl(QString::fromLatin1(product::website)));
}
