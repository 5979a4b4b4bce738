// SPDX-License-Identifier: MIT
#include "tests/support/Modal.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace grisal::test
{

namespace
{

constexpr int pollInterval = 10;
constexpr int limit = 5000;

} // namespace

ModalAnswer::ModalAnswer()
{
    QObject::connect(&m_poll, &QTimer::timeout, &m_poll, [this] { poll(); });
    QObject::connect(&m_limit, &QTimer::timeout, &m_limit, [this] { giveUp(); });
    m_poll.start(pollInterval);
    m_limit.start(limit);
}

ModalAnswer::~ModalAnswer()
{
    EXPECT_TRUE(m_answered) << "the dialog did not come";
}

void ModalAnswer::poll()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    // answer() may open the next dialog, with its own event loop.
    m_poll.stop();
    m_answered = answer(*dialog);
    if (!m_answered) {
        m_poll.start(pollInterval);
    }
}

void ModalAnswer::giveUp()
{
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        ADD_FAILURE() << "a dialog stands and waits: " << dialog->windowTitle().toStdString();
        dialog->close();
    }
}

bool MessageBoxAnswer::answer(QWidget &dialog)
{
    auto *box = qobject_cast<QMessageBox *>(&dialog);
    if (box == nullptr) {
        return false;
    }
    title = box->windowTitle();
    text = box->text();
    informativeText = box->informativeText();
    buttons = box->standardButtons();
    defaultButton = box->standardButton(box->defaultButton());
    QAbstractButton *button = box->button(m_button);
    if (button == nullptr) {
        ADD_FAILURE() << "the box has no such button";
        box->close();
        return true;
    }
    button->click();
    return true;
}

bool FileDialogAnswer::answer(QWidget &dialog)
{
    auto *files = qobject_cast<QFileDialog *>(&dialog);
    if (files == nullptr) {
        return false;
    }
    title = files->windowTitle();
    directory = files->directory().absolutePath();
    nameFilters = files->nameFilters();
    hasParent = files->parentWidget() != nullptr;
    auto *name = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (name != nullptr) {
        proposedName = name->text();
    }
    if (m_path.isEmpty() || name == nullptr) {
        EXPECT_NE(name, nullptr) << "no field to type a path into";
        files->reject();
        return true;
    }
    name->setText(m_path);
    QTest::keyClick(name, Qt::Key_Return);
    return true;
}

} // namespace grisal::test
