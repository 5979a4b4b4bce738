// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/// Skips the test if the machine has no D-Bus. For SetUp().
#define GRISAL_SKIP_WITHOUT_DBUS()                                                                                     \
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty()) {                                     \
        GTEST_SKIP() << "no dbus-daemon on this machine";                                                              \
    }

namespace grisal::test
{

/// A bus that only the test and the programs that it starts use, and a connection to it. It starts programs of no other
/// service files than those in its own folder.
class SessionBus
{
public:
    ~SessionBus()
    {
        QDBusConnection::disconnectFromBus(m_name);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    /// Starts the bus, which starts programs in this environment.
    void start(const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        const QString config = QStringLiteral("<busconfig><type>session</type><listen>unix:dir=%1</listen>"
                                              "<servicedir>%1</servicedir><policy context='default'>"
                                              "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/>"
                                              "<allow own='*'/></policy></busconfig>");
        write(QStringLiteral("bus.conf"), config.arg(m_folder.path()));
        m_daemon.setProcessEnvironment(environment);
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + m_folder.filePath(QStringLiteral("bus.conf"))});
        ASSERT_TRUE(m_daemon.waitForReadyRead()) << m_daemon.readAllStandardError().toStdString();
        m_address = QString::fromUtf8(m_daemon.readLine().trimmed());
        m_name = m_address;
        ASSERT_TRUE(connectAs(m_name).isConnected());
    }

    /// Makes the bus start `program` for calls to `name`.
    void addService(const QString &name, const QString &program)
    {
        write(name + QStringLiteral(".service"),
              QStringLiteral("[D-BUS Service]\nName=%1\nExec=\"%2\"\n").arg(name, program));
        callBus(QStringLiteral("ReloadConfig"), {});
    }

    QString address() const { return m_address; }

    /// The connection of the test.
    QDBusConnection connection() const { return QDBusConnection(m_name); }

    /// Another connection; the caller closes it by its name.
    QDBusConnection connectAs(const QString &name) const { return QDBusConnection::connectToBus(m_address, name); }

    /// Calls a method of org.freedesktop.Application.
    QDBusPendingCall startCall(const QString &name, const QString &path, const QString &method,
                               const QVariantList &arguments) const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(name, path, QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        return connection().asyncCall(message, patience);
    }

    /// Calls a method and returns its reply. Runs the event loop, because the service may be in this thread.
    QDBusMessage call(const QString &name, const QString &path, const QString &method,
                      const QVariantList &arguments) const
    {
        const QDBusPendingCall pending = startCall(name, path, method, arguments);
        return QTest::qWaitFor([&] { return pending.isFinished(); }, patience) ? pending.reply() : QDBusMessage();
    }

    /// The process that has a name; 0 if there is none.
    uint processWith(const QString &name) const
    {
        const QDBusReply<uint> reply = callBus(QStringLiteral("GetConnectionUnixProcessID"), {name});
        return reply.isValid() ? reply.value() : 0;
    }

private:
    static constexpr int patience = 20000;

    void write(const QString &name, const QString &text) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    QDBusMessage callBus(const QString &method, const QVariantList &arguments) const
    {
        const QString bus = QStringLiteral("org.freedesktop.DBus");
        QDBusMessage message =
            QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, method);
        message.setArguments(arguments);
        return connection().call(message, QDBus::Block, patience);
    }

    const QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QString m_name;
};

} // namespace grisal::test
