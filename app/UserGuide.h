// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QUrl>

#include <memory>

class QLocale;

namespace Ui
{
class UserGuide;
}

/// The user guide in a window of its own, which stays open beside the work. Escape closes it.
class UserGuide : public QDialog
{
    Q_OBJECT

public:
    explicit UserGuide(QWidget *parent = nullptr);
    ~UserGuide() override;

    /// Shows the window, or brings it to the front where it is open already, at the place where it was left.
    void present();

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitOnScreen();
    void readAgain();

    std::unique_ptr<Ui::UserGuide> m_form;
};

/// The guide in the first of the locale's languages that it is written in: guide_de.html for German, say. English,
/// which is guide.html, where there is none.
QUrl guideFor(const QLocale &locale);
