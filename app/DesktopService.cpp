// SPDX-License-Identifier: MIT
#include "app/DesktopService.h"

#include <QDBusMessage>

namespace grisal
{

namespace
{

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

void ApplicationInterface::Activate(const QVariantMap &platformData)
{
    emit requested({}, tokenIn(platformData));
}

void ApplicationInterface::Open(const QStringList &uris, const QVariantMap &platformData)
{
    emit requested(uris, tokenIn(platformData));
}

void ApplicationInterface::ActivateAction(const QString &name, const QVariantList & /*parameter*/,
                                          const QVariantMap &platformData)
{
    emit unknownAction(name);
    emit requested({}, tokenIn(platformData));
}

void DesktopService::start(const QDBusConnection &bus, const QString &applicationId)
{
    if (!bus.isConnected()) {
        return;
    }
    m_bus = bus;
    m_path = objectPathOf(applicationId);
    connect(&m_interface, &ApplicationInterface::requested, this, &DesktopService::requested);
    connect(&m_interface, &ApplicationInterface::unknownAction, this,
            [](const QString &name) { qWarning("There is no action %s", qPrintable(name)); });
    m_interface.moveToThread(&m_thread);
    m_thread.start();
    if (m_bus.registerObject(m_path, &m_interface, QDBusConnection::ExportAllSlots)) {
        m_bus.send(requestForName(applicationId));
    }
}

DesktopService::~DesktopService()
{
    m_bus.unregisterObject(m_path);
    m_thread.quit();
    m_thread.wait();
}

QString objectPathOf(QString applicationId)
{
    return u'/' + applicationId.replace(u'.', u'/').replace(u'-', u'_');
}

} // namespace grisal
