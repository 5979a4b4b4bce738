// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class FileDealer;

namespace Ui
{
class Preferences;
}

/// Shows what the program stores between runs, lets the user delete it, and shows the locations of log and settings.
class Preferences : public QDialog
{
    Q_OBJECT

public:
    /// `dealer` stores and deletes the values; it must outlive the dialog.
    explicit Preferences(FileDealer &dealer, QWidget *parent = nullptr);
    ~Preferences() override;

public slots:
    void on_buttonForgetDirectory_clicked();
    void on_buttonForgetRecent_clicked();
    void on_buttonOpenLog_clicked();
    void on_buttonOpenSettings_clicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void alignColumns();
    void colourReadOnlyFields();
    void showRemembered();
    void showPlaces();
    void showForgotten(bool forgotten);
    void showInformation(const QString &text);
    void openFolderOf(const QString &file);

    FileDealer &m_dealer;
    std::unique_ptr<Ui::Preferences> m_form;
};
