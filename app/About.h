// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class About;
}

/// Shows the name, version and build date of the program and the licences of the libraries that it contains.
class About : public QDialog
{
    Q_OBJECT

public:
    explicit About(QWidget *parent = nullptr);
    ~About() override;

public slots:
    void on_boxLicense_currentIndexChanged(int index);
    void on_buttonWebsite_clicked();

private:
    void showVersion();
    void showLogo();
    void fillLicenses();

    std::unique_ptr<Ui::About> m_form;
};
