// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>

class QFileDialog;

namespace grisal::test
{

/// Answers the next modal dialog of one kind: create it, then run the code that opens the dialog. Fails the test if no
/// such dialog appears during its lifetime, and closes a dialog that is still open after five seconds.
class ModalAnswer
{
public:
    ModalAnswer();
    ModalAnswer(const ModalAnswer &) = delete;
    ModalAnswer &operator=(const ModalAnswer &) = delete;
    virtual ~ModalAnswer();

protected:
    /// Reads and closes the dialog; returns false if the dialog is of another kind.
    virtual bool answer(QWidget &dialog) = 0;

private:
    void poll();
    void giveUp();

    QTimer m_poll;
    QTimer m_limit;
    bool m_answered = false;
};

/// Clicks a button of a message box.
class MessageBoxAnswer : public ModalAnswer
{
public:
    explicit MessageBoxAnswer(QMessageBox::StandardButton button) : m_button(button) {}

    QString title;
    QString text;
    QString informativeText;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;

protected:
    bool answer(QWidget &dialog) override;

private:
    QMessageBox::StandardButton m_button;
};

/// Enters a path in a file dialog and accepts it; cancels if the path is empty.
class FileDialogAnswer : public ModalAnswer
{
public:
    explicit FileDialogAnswer(QString path) : m_path(std::move(path)) {}

    QString title;
    QString directory;
    QString proposedName;
    QStringList nameFilters;
    bool hasParent = false;

protected:
    bool answer(QWidget &dialog) override;

private:
    QString m_path;
};

} // namespace grisal::test
