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

/// The user guide in a separate, non-modal window. Escape closes it.
class UserGuide : public QDialog
{
    Q_OBJECT

public:
    explicit UserGuide(QWidget *parent = nullptr);
    ~UserGuide() override;

    /// Shows the window at the position in the text where it was left, or brings it to the front if it is already open.
    void present();

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitOnScreen();
    void readAgain();

    std::unique_ptr<Ui::UserGuide> m_form;
};

/// The guide in the first language of the locale that has a guide, for example guide_de.html for German; otherwise
/// guide.html, the English one.
QUrl guideFor(const QLocale &locale);
