// SPDX-License-Identifier: MIT
#include "app/DesktopRequests.h"
#include "app/DesktopService.h"
#include "tests/app/FilesTest.h"
#include "tests/app/SessionBus.h"

#include <QUrl>

namespace
{

using namespace grisal::test;

const QString id = QStringLiteral("example.test-er.Program");
const QString path = QStringLiteral("/example/test_er/Program");

TEST(ObjectPath, IsTheIdWithSlashes)
{
    EXPECT_EQ(grisal::objectPathOf(id), path);
    EXPECT_EQ(grisal::objectPathOf(QStringLiteral("a.b.C")), QStringLiteral("/a/b/C"));
}

class DesktopService : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        GRISAL_SKIP_WITHOUT_DBUS();
        bus.start();
    }

    ~DesktopService() override { QDBusConnection::disconnectFromBus(id); }

    /// Starts the service and waits until it has its name. It has a connection of its own: calls within one connection
    /// do not use the bus.
    void startService()
    {
        QObject::connect(
            &service, &grisal::DesktopService::requested, &window,
            [this](const QStringList &uris, const QString &token) { requests << uris.join(u',') + u'|' + token; });
        service.start(bus.connectAs(id), id);
        ASSERT_TRUE(QTest::qWaitFor([this] { return bus.processWith(id) != 0; }));
    }

    QDBusMessage call(const QString &method, const QVariantList &arguments) const
    {
        return bus.call(id, path, method, arguments);
    }

    /// Whether the call has a reply and leads to this request.
    bool requestsAfter(const QString &method, const QVariantList &arguments, const QString &request)
    {
        requests.clear();
        return call(method, arguments).type() == QDBusMessage::ReplyMessage &&
               QTest::qWaitFor([this] { return !requests.isEmpty(); }) && requests == QStringList(request);
    }

    SessionBus bus;
    QStringList requests;
    grisal::DesktopService service;
};

TEST_F(DesktopService, PassesTheCallsOn)
{
    startService();
    const QStringList uris{QStringLiteral("file:///a"), QStringLiteral("b")};
    EXPECT_TRUE(requestsAfter(QStringLiteral("Activate"), {QVariantMap()}, QStringLiteral("|")));
    EXPECT_TRUE(requestsAfter(QStringLiteral("Open"), {uris, QVariantMap()}, QStringLiteral("file:///a,b|")));
    EXPECT_TRUE(requestsAfter(QStringLiteral("Open"), {QStringList(), QVariantMap()}, QStringLiteral("|")));
}

TEST_F(DesktopService, PassesTheTokenOn)
{
    startService();
    QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("old")}};
    EXPECT_TRUE(requestsAfter(QStringLiteral("Activate"), {data}, QStringLiteral("|old")));
    data.insert(QStringLiteral("activation-token"), QStringLiteral("new"));
    EXPECT_TRUE(requestsAfter(QStringLiteral("Activate"), {data}, QStringLiteral("|new")));
    data = {{QStringLiteral("activation-token"), 5.5}, {QStringLiteral("unknown"), QStringList()}};
    EXPECT_TRUE(requestsAfter(QStringLiteral("Activate"), {data}, QStringLiteral("|5.5")));
}

TEST_F(DesktopService, LogsAnUnknownActionAndActivates)
{
    startService();
    expectWarning(QStringLiteral("There is no action print"));
    EXPECT_TRUE(requestsAfter(QStringLiteral("ActivateAction"),
                              {QStringLiteral("print"), QVariantList{1, QStringLiteral("x")}, QVariantMap()},
                              QStringLiteral("|")));
}

TEST_F(DesktopService, RefusesOtherArguments)
{
    startService();
    EXPECT_EQ(call(QStringLiteral("Open"), {QStringLiteral("file:///a"), QVariantMap()}).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(call(QStringLiteral("Open"), {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call(QStringLiteral("deleteLater"), {}).type(), QDBusMessage::ErrorMessage);
}

TEST_F(DesktopService, GetsTheNameWhenTheProgramThatHasItEnds)
{
    const QString other = QStringLiteral("other");
    ASSERT_TRUE(bus.connectAs(other).registerService(id));
    service.start(bus.connectAs(id), id);
    EXPECT_EQ(call(QStringLiteral("Activate"), {QVariantMap()}).type(), QDBusMessage::ErrorMessage);
    QDBusConnection::disconnectFromBus(other);
    const auto answers = [this] {
        return call(QStringLiteral("Activate"), {QVariantMap()}).type() == QDBusMessage::ReplyMessage;
    };
    EXPECT_TRUE(QTest::qWaitFor(answers));
}

TEST_F(DesktopService, WithoutABusNothingHappens)
{
    service.start(QDBusConnection(QStringLiteral("unconnected")), id);
    EXPECT_EQ(bus.processWith(id), 0U);
}

TEST_F(DesktopService, CallsDuringASaveAreCarriedOutAfterIt)
{
    start();
    startService();
    grisal::DesktopRequests waiting(window);
    QObject::connect(&service, &grisal::DesktopService::requested, &waiting, &grisal::DesktopRequests::add);
    QObject::connect(&waiting, &grisal::DesktopRequests::signalOpen, &window, &grisal::ui::MainWindow::openUris);
    const QString next = makePicture(QStringLiteral("next.png"), 24, 16);
    const QString undisturbed = inHome(QStringLiteral("undisturbed.png"));
    const QString disturbed = inHome(QStringLiteral("disturbed.png"));
    window.openImage(makePicture(QStringLiteral("first.png"), 30, 20));
    window.saveImage(undisturbed);

    QList<QDBusPendingCall> calls;
    QObject::connect(
        &child<QStatusBar>(window, "statusbar"), &QStatusBar::messageChanged, &window, [&](const QString &message) {
            if (message.startsWith(QStringLiteral("Rendering")) || message.startsWith(QStringLiteral("Writing"))) {
                const QStringList uris{QUrl::fromLocalFile(next).toString()};
                calls << bus.startCall(id, path, QStringLiteral("Open"), {uris, QVariantMap()});
            }
        });
    window.saveImage(disturbed);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(contentsOf(disturbed), contentsOf(undisturbed));
    EXPECT_EQ(title(), "Lumio Grisal (Alpha) - first.png 30x20");
    EXPECT_TRUE(QTest::qWaitFor([this] { return title() == "Lumio Grisal (Alpha) - next.png 24x16"; })) << title();
    for (const QDBusPendingCall &each : calls) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return each.isFinished(); }));
        EXPECT_FALSE(each.isError());
    }
}

} // namespace
