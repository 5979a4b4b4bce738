// SPDX-License-Identifier: MIT
#include "app/DesktopRequests.h"

#include <QApplication>
#include <QThread>
#include <QWidget>

#include <utility>

namespace grisal
{

namespace
{

constexpr int pause = 100; // milliseconds between two checks whether a dialog is still open

// A dialog that was just hidden is still in its own event loop, and the work that follows it has not begun.
bool isIdle()
{
    return QThread::currentThread()->loopLevel() <= 1 && QApplication::activeModalWidget() == nullptr &&
           QApplication::activePopupWidget() == nullptr;
}

// A dialog must not be covered by the window that it blocks.
void bringToFront(QWidget &window, const QString &activationToken)
{
    // On Wayland, Qt takes the token from the environment.
    constexpr const char *variable = "XDG_ACTIVATION_TOKEN";
    if (!activationToken.isEmpty()) {
        qputenv(variable, activationToken.toUtf8());
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    QWidget *dialog = QApplication::activeModalWidget();
    QWidget &front = dialog != nullptr ? *dialog : window;
    front.raise();
    front.activateWindow();
    qunsetenv(variable);
}

} // namespace

DesktopRequests::DesktopRequests(QWidget &window) : m_window(window)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DesktopRequests::openWhenIdle);
}

void DesktopRequests::add(const QStringList &uris, const QString &activationToken)
{
    bringToFront(m_window, activationToken);
    QStringList named = uris;
    named.removeAll(QString());
    if (!named.isEmpty()) {
        m_uris = named;
        m_timer.start(0);
    }
}

void DesktopRequests::openWhenIdle()
{
    if (isIdle()) {
        emit signalOpen(std::exchange(m_uris, {}));
    } else {
        m_timer.start(pause);
    }
}

} // namespace grisal
