// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace grisal
{

/// The D-Bus interface through which file managers and menus use a program whose desktop entry contains
/// DBusActivatable=true. The methods return at once; a call that arrives while the program reads or saves a picture is
/// answered afterwards.
class DesktopService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Registers the object on the bus, then requests the name. If another program has the name, this one gets it when
    /// the other ends. Without a bus, nothing happens. To be called once.
    void start(QDBusConnection bus, const QString &applicationId);

public slots:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);

    /// The program has no actions: the name is logged, and the window comes to the front.
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

signals:
    /// The window is to come to the front and open a file of `uris`, which is empty if only the former is requested.
    /// The token allows a Wayland window to come to the front; it may be empty.
    void requested(QStringList uris, QString activationToken);
};

/// The path of the object that provides DesktopService.
QString objectPathOf(QString applicationId);

} // namespace grisal
