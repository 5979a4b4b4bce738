// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThread>
#include <QVariantList>
#include <QVariantMap>

namespace grisal
{

/// The D-Bus interface through which file managers and menus use a program whose desktop entry contains
/// DBusActivatable=true. The methods return at once.
class ApplicationInterface : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public slots:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);

    /// The program has no actions: the name is logged, and the window comes to the front.
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

signals:
    void requested(QStringList uris, QString activationToken);
    void unknownAction(QString name);
};

/// Receives the calls of ApplicationInterface, in a thread of its own: a call is answered while the program reads or
/// saves a picture, too.
class DesktopService : public QObject
{
    Q_OBJECT

public:
    DesktopService() = default;
    DesktopService(const DesktopService &) = delete;
    DesktopService &operator=(const DesktopService &) = delete;
    ~DesktopService() override;

    /// Registers the object on the bus, then requests the name. If another program has the name, this one gets it when
    /// the other ends. Without a bus, nothing happens. To be called once.
    void start(const QDBusConnection &bus, const QString &applicationId);

signals:
    /// The window is to come to the front and open a file of `uris`, which is empty if only the former is requested.
    /// The token allows a Wayland window to come to the front; it may be empty. Emitted in the thread of this object.
    void requested(QStringList uris, QString activationToken);

private:
    QDBusConnection m_bus{QString()};
    QString m_path;
    QThread m_thread;
    ApplicationInterface m_interface;
};

/// The path of the object that provides ApplicationInterface.
QString objectPathOf(QString applicationId);

} // namespace grisal
