// SPDX-License-Identifier: MIT
#include "app/DesktopService.h"

#include <QDBusMessage>

namespace grisal
{

namespace
{

constexpr int longestName = 200; // characters of an action in the log

QString tokenIn(const QVariantMap &platformData)
{
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    return token.isEmpty() ? platformData.value(QStringLiteral("desktop-startup-id")).toString() : token;
}

// QDBusConnection::registerService() would wait for the bus and would not queue for a name that is taken.
QDBusMessage requestForName(const QString &name)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    constexpr uint queueForName = 0;
    QDBusMessage request = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                                          QStringLiteral("RequestName"));
    request << name << queueForName;
    return request;
}

} // namespace

void DesktopService::start(QDBusConnection bus, const QString &applicationId)
{
    if (bus.isConnected() && bus.registerObject(objectPathOf(applicationId), this, QDBusConnection::ExportAllSlots)) {
        bus.send(requestForName(applicationId));
    }
}

void DesktopService::Activate(const QVariantMap &platformData)
{
    emit requested({}, tokenIn(platformData));
}

void DesktopService::Open(const QStringList &uris, const QVariantMap &platformData)
{
    emit requested(uris, tokenIn(platformData));
}

void DesktopService::ActivateAction(const QString &name, const QVariantList & /*parameter*/,
                                    const QVariantMap &platformData)
{
    qWarning("There is no action %s", qPrintable(name.left(longestName)));
    emit requested({}, tokenIn(platformData));
}

QString objectPathOf(QString applicationId)
{
    return u'/' + applicationId.replace(u'.', u'/').replace(u'-', u'_');
}

} // namespace grisal
