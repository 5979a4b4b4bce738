// SPDX-License-Identifier: MIT
#include "app/Preferences.h"

#include "app/FileDealer.h"
#include "app/MessageLog.h"
#include "ui_Preferences.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

#include <algorithm>
#include <initializer_list>

namespace
{

/// Shows the beginning of a path that is longer than the line edit.
void showPath(QLineEdit *line, const QString &path)
{
    line->setText(QDir::toNativeSeparators(path));
    line->setCursorPosition(0);
}

/// Makes all widgets as wide as the widest of them.
void alignWidths(const std::initializer_list<QWidget *> &widgets)
{
    const auto isNarrower = [](const QWidget *a, const QWidget *b) {
        return a->sizeHint().width() < b->sizeHint().width();
    };
    const int widest = (*std::max_element(widgets.begin(), widgets.end(), isNarrower))->sizeHint().width();
    for (QWidget *widget : widgets) {
        widget->setMinimumWidth(widest);
    }
}

/// The folder of the file. If it does not exist, because there are no settings before the first image, the nearest
/// parent folder that exists.
QString folderOf(const QString &file)
{
    QString folder = QFileInfo(file).absolutePath();
    while (!QFileInfo::exists(folder)) {
        folder = QFileInfo(folder).path();
    }
    return folder;
}

} // namespace

Preferences::Preferences(FileDealer &dealer, QWidget *parent)
    : QDialog(parent), m_dealer(dealer), m_form(std::make_unique<Ui::Preferences>())
{
    m_form->setupUi(this);
    alignColumns();
    colourReadOnlyFields();
    showRemembered();
    showPlaces();
}

Preferences::~Preferences() = default;

// Each group has a layout of its own.
void Preferences::alignColumns()
{
    alignWidths({m_form->labelDirectory, m_form->labelRecent, m_form->labelLog, m_form->labelSettings});
    alignWidths(
        {m_form->buttonForgetDirectory, m_form->buttonForgetRecent, m_form->buttonOpenLog, m_form->buttonOpenSettings});
}

// White, they would look as if a path could be typed into them.
void Preferences::colourReadOnlyFields()
{
    QPalette colours;
    colours.setBrush(QPalette::Base, palette().window());
    for (QLineEdit *field : {m_form->lineDirectory, m_form->lineLog, m_form->lineSettings}) {
        field->setPalette(colours);
    }
}

void Preferences::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        colourReadOnlyFields();
    }
}

void Preferences::showRemembered()
{
    const QString directory = m_dealer.lastDirectory();
    showPath(m_form->lineDirectory, directory);
    m_form->buttonForgetDirectory->setEnabled(!directory.isEmpty());
    const QStringList recent = m_dealer.recentImages();
    m_form->listRecent->clear();
    for (const QString &path : recent) {
        // An image from the Recent menu that is opened before any dialog is stored without a path.
        if (!path.isEmpty()) {
            m_form->listRecent->addItem(QDir::toNativeSeparators(path));
        }
    }
    m_form->buttonForgetRecent->setEnabled(!recent.isEmpty());
}

void Preferences::showPlaces()
{
    showPath(m_form->lineLog, message_log::path());
    showPath(m_form->lineSettings, FileDealer::settingsFile());
}

void Preferences::on_buttonForgetDirectory_clicked()
{
    showForgotten(m_dealer.forgetDirectory());
}

void Preferences::on_buttonForgetRecent_clicked()
{
    showForgotten(m_dealer.forgetRecent());
}

void Preferences::showForgotten(bool forgotten)
{
    showRemembered();
    if (!forgotten) {
        showInformation(tr("The settings could not be changed. The log contains the reason."));
    }
}

void Preferences::showInformation(const QString &text)
{
    QMessageBox box(QMessageBox::Information, windowTitle(), text, QMessageBox::Ok, this);
    // A folder name may contain characters that look like HTML.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void Preferences::on_buttonOpenLog_clicked()
{
    openFolderOf(message_log::path());
}

void Preferences::on_buttonOpenSettings_clicked()
{
    openFolderOf(FileDealer::settingsFile());
}

void Preferences::openFolderOf(const QString &file)
{
    const QString folder = folderOf(file);
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(folder))) {
        return;
    }
    qWarning("No program opens the folder %s", qPrintable(folder));
    showInformation(tr("No program was found that opens the folder %1.").arg(QDir::toNativeSeparators(folder)));
}
