// SPDX-License-Identifier: MIT
// The program as a process that other programs call over D-Bus.
#include "tests/app/SessionBus.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/GlPresence.h"

#include <QDir>
#include <QTest>
#include <QUrl>

#include <csignal>

namespace
{

using namespace grisal::test;

constexpr int limit = 20000;
const QString id = QStringLiteral(GRISAL_APP_ID);
const QString program = QStringLiteral(GRISAL_PROGRAM);

class ProgramOnTheBus : public testing::Test
{
protected:
    void SetUp() override
    {
        GRISAL_SKIP_WITHOUT_GL();
        GRISAL_SKIP_WITHOUT_DBUS();
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
        bus.start(environment);
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
        picture = home.filePath(QStringLiteral("a picture.png"));
        painted(30, 20, 8, [](int x, int y) {
            return Samples{static_cast<std::uint16_t>(x * 257), static_cast<std::uint16_t>(y * 257), 0};
        }).write(picture.toStdString());
    }

    ~ProgramOnTheBus() override
    {
        for (QProcess *process : {&first, &owner}) {
            process->kill();
            process->waitForFinished();
        }
    }

    void start(QProcess &process)
    {
        process.setProcessEnvironment(environment);
        process.start(program, QStringList());
        ASSERT_TRUE(process.waitForStarted());
    }

    bool becomesOwner(const QProcess &process)
    {
        return QTest::qWaitFor([&] { return bus.processWith(id) == process.processId(); }, limit);
    }

    /// Calls Open; returns whether it is answered.
    bool open(const QStringList &uris) const
    {
        const QString path = u'/' + QString(id).replace(u'.', u'/');
        return bus.call(id, path, QStringLiteral("Open"), {uris, QVariantMap()}).type() == QDBusMessage::ReplyMessage;
    }

    QString uri() const { return QUrl::fromLocalFile(picture).toString(QUrl::FullyEncoded); }

    QByteArray logged() const
    {
        return contentsOf(environment.value(QStringLiteral("HOME")) + QStringLiteral("/GrisalLog.txt"));
    }

    bool logs(const QByteArray &part, int times = 1) const
    {
        return QTest::qWaitFor([&] { return logged().count(part) == times; }, limit);
    }

    bool opensThePicture() const { return logs("filename:   " + picture.toUtf8() + '\n'); }

    /// Whether the program starts, writes nothing to the console and logs no warning.
    void expectOrdinaryStart()
    {
        start(first);
        ASSERT_TRUE(logs("Max Texture Size"));
        QTest::qWait(200);
        EXPECT_EQ(first.state(), QProcess::Running);
        first.kill();
        first.waitForFinished();
        EXPECT_EQ(first.readAllStandardError().toStdString(), "");
        EXPECT_EQ(logged().count(" Warning: "), logged().count(" Warning: QStandardPaths: XDG_RUNTIME_DIR"))
            << logged().toStdString();
    }

    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    SessionBus bus;
    QString picture;
    QProcess first;
    QProcess owner;
};

TEST_F(ProgramOnTheBus, OpensAPicture)
{
    start(first);
    ASSERT_TRUE(becomesOwner(first));
    EXPECT_TRUE(open({uri()}));
    EXPECT_TRUE(opensThePicture()) << logged().toStdString();
}

TEST_F(ProgramOnTheBus, IsStartedByTheBusAndOpensAPicture)
{
    bus.addService(id, program);
    EXPECT_TRUE(open({uri()}));
    EXPECT_TRUE(opensThePicture()) << logged().toStdString();
    if (const uint started = bus.processWith(id); started != 0) {
        kill(static_cast<pid_t>(started), SIGKILL);
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return bus.processWith(id) == 0; }, limit));
}

TEST_F(ProgramOnTheBus, OpensTheOnlyPictureAmongHostileUris)
{
    QStringList uris(10000, QStringLiteral("https://grisal.example/a.png"));
    uris << QString() << QStringLiteral("file://otherhost/a.png") << QStringLiteral("sftp://otherhost/a.png");
    uris << QStringLiteral("file:///%FF%00") << QStringLiteral("file:///tmp") << QStringLiteral("file:///missing.png");
    uris << QStringLiteral("file:///") + QString(1'000'000, u'%') << QString(1'000'000, u'a') << uri();
    start(first);
    ASSERT_TRUE(becomesOwner(first));
    EXPECT_TRUE(open(uris));
    EXPECT_TRUE(opensThePicture()) << logged().right(2000).toStdString();
    EXPECT_TRUE(open({}));
}

TEST_F(ProgramOnTheBus, AnswersWhileAMessageBoxIsOpen)
{
    start(first);
    ASSERT_TRUE(becomesOwner(first));
    EXPECT_TRUE(open({QStringLiteral("https://grisal.example/a.png")}));
    ASSERT_TRUE(logs("There is no file https://grisal.example/a.png"));
    EXPECT_TRUE(open({uri()}));
    QTest::qWait(300);
    EXPECT_FALSE(logged().contains(picture.toUtf8())) << "the message box is interrupted";
}

TEST_F(ProgramOnTheBus, ASecondProgramRunsIndependently)
{
    start(owner);
    ASSERT_TRUE(becomesOwner(owner));
    const QTemporaryDir otherHome;
    environment.insert(QStringLiteral("HOME"), otherHome.path());
    expectOrdinaryStart();
    EXPECT_TRUE(becomesOwner(owner));
}

TEST_F(ProgramOnTheBus, RunsWithoutABus)
{
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    expectOrdinaryStart();
}

TEST_F(ProgramOnTheBus, RunsIfTheBusIsGone)
{
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/missing"));
    expectOrdinaryStart();
}

} // namespace
