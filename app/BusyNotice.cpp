// SPDX-License-Identifier: MIT
#include "app/BusyNotice.h"

#include "app/StatusBar.h"

#include <QEvent>
#include <QGuiApplication>
#include <QProgressBar>

namespace
{

constexpr int readingTime = 300; // minimum milliseconds between two progress texts

} // namespace

BusyNotice::BusyNotice(grisal::ui::StatusBar &statusBar) : m_statusBar(statusBar)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyNotice::~BusyNotice()
{
    end();
}

void BusyNotice::show(const QString &text)
{
    m_statusBar.progressBar().setRange(0, 0);
    paint(text);
}

void BusyNotice::show(const QString &text, int done, int all)
{
    const bool first = done == 0 || !m_sincePainted.isValid();
    if (!first && m_sincePainted.elapsed() < readingTime) {
        return;
    }
    m_statusBar.progressBar().setRange(0, all);
    m_statusBar.progressBar().setValue(done);
    paint(text);
}

void BusyNotice::paint(const QString &text)
{
    if (m_ended) {
        return;
    }
    m_text = text;
    m_statusBar.progressBar().show();
    m_statusBar.showMessage(text);
    m_statusBar.update();
    // repaint() would wait for the event loop if the last repaint was a moment ago.
    QEvent paintNow(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(m_statusBar.window(), &paintNow);
    m_sincePainted.start();
}

void BusyNotice::end()
{
    if (m_ended) {
        return;
    }
    m_ended = true;
    m_statusBar.progressBar().hide();
    // A message that was shown by other code in the meantime stays.
    if (m_statusBar.currentMessage() == m_text) {
        m_statusBar.clearMessage();
    }
    QGuiApplication::restoreOverrideCursor();
}
