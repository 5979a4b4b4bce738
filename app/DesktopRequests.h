// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

class QWidget;

namespace grisal
{

/// Carries out what other programs request of the window: it comes to the front at once, but files are opened only when
/// no dialog and no menu is open, so that nothing that the user has begun is interrupted. If several requests to open
/// files wait, the newest is carried out, because only one picture can be open.
class DesktopRequests : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive the object.
    explicit DesktopRequests(QWidget &window);

    /// See DesktopService::requested(). Empty URIs are ignored.
    void add(const QStringList &uris, const QString &activationToken);

signals:
    void signalOpen(QStringList uris);

private:
    void openWhenIdle();

    QWidget &m_window;
    QStringList m_uris;
    QTimer m_timer;
};

} // namespace grisal
