// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class FileDealer;

namespace Ui
{
class Preferences;
}

/// What the program remembers from run to run, to be looked at and forgotten, and where its log and its settings lie.
class Preferences : public QDialog
{
    Q_OBJECT

public:
    /// The dealer remembers and forgets; it outlives the dialog.
    explicit Preferences(FileDealer &dealer, QWidget *parent = nullptr);
    ~Preferences() override;

public slots:
    void on_buttonForgetDirectory_clicked();
    void on_buttonForgetRecent_clicked();
    void on_buttonOpenLog_clicked();
    void on_buttonOpenSettings_clicked();

private:
    void showRemembered();
    void showPlaces();
    void openFolderOf(const QString &file);

    FileDealer &m_dealer;
    std::unique_ptr<Ui::Preferences> m_form;
};
