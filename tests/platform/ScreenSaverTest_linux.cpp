#include "platform/ScreenSaver.h"

#include "platform/ScreenSaverInhibitor_linux.h"
#include "support/Sanitizers.h"
#include "support/TestLog.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QElapsedTimer>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kPatienceMs = 10000;
constexpr char kBusName[] = "test-service";

// Stands in for the desktop's screen saver.
class FakeService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    QStringList calls;
    QSet<uint> held;

public slots:
    uint Inhibit(const QString &application, const QString &reason)
    {
        calls << "Inhibit " + application;
        EXPECT_FALSE(reason.isEmpty());
        held << ++m_last;
        return m_last;
    }
    void UnInhibit(uint cookie)
    {
        calls << "UnInhibit";
        EXPECT_TRUE(held.remove(cookie));
    }

private:
    uint m_last{4000000000u};
};

// A session bus of the test's own.
class ScreenSaverTest : public testing::Test {
protected:
    ScreenSaverTest()
    {
        m_daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address",
                                       "--address=unix:path=" + m_folder.filePath("bus")});
        EXPECT_TRUE(m_daemon.waitForReadyRead(kPatienceMs));
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }

    void SetUp() override
    {
        if (Sanitizers::WatchesThreads)
            GTEST_SKIP() << Sanitizers::BusThread;
    }

    ~ScreenSaverTest() override
    {
        if (!Sanitizers::WatchesThreads)
            QDBusConnection::disconnectFromBus(kBusName);
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    void offerService(const QString &name = "org.freedesktop.ScreenSaver")
    {
        QDBusConnection bus = QDBusConnection::connectToBus(m_address, kBusName);
        ASSERT_TRUE(bus.isConnected());
        ASSERT_TRUE(
            bus.registerObject("/org/freedesktop/ScreenSaver", &m_service, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(bus.registerService(name));
    }

    // Waits until the wish has been carried out.
    bool applied(ScreenSaverInhibitor &inhibitor, bool inhibit, bool &held)
    {
        bool done = false;
        inhibitor.setAppliedHandler([&](bool now) {
            held = now;
            done = true;
        });
        inhibitor.setInhibited(inhibit);
        const bool came = QTest::qWaitFor([&] { return done; }, kPatienceMs);
        inhibitor.setAppliedHandler({});
        return came;
    }

    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    FakeService m_service;
};

TEST_F(ScreenSaverTest, IsInhibitedOnceAndGivenBackWithItsCookie)
{
    offerService();
    ScreenSaverInhibitor inhibitor(m_address);
    bool held = false;
    ASSERT_TRUE(applied(inhibitor, true, held));
    EXPECT_TRUE(held);
    inhibitor.setInhibited(true);
    ASSERT_TRUE(applied(inhibitor, false, held));
    EXPECT_FALSE(held);
    EXPECT_EQ(m_service.calls, (QStringList{"Inhibit Quorin Player 6", "UnInhibit"}));
    ASSERT_TRUE(applied(inhibitor, true, held));
    EXPECT_EQ(m_service.held.size(), 1);
}

TEST_F(ScreenSaverTest, AskingNeverWaits)
{
    // A bus that takes the connection and then says nothing.
    offerService();
    ASSERT_EQ(::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP), 0);
    QElapsedTimer clock;
    clock.start();
    {
        ScreenSaverInhibitor inhibitor(m_address);
        inhibitor.setInhibited(true);
        EXPECT_LT(clock.elapsed(), 500);
        ASSERT_EQ(::kill(static_cast<pid_t>(m_daemon.processId()), SIGCONT), 0);
    }
}

TEST_F(ScreenSaverTest, WithoutAServiceThereIsALogLineAndNothingElse)
{
    ScreenSaverInhibitor inhibitor(m_address);
    bool held = true;
    ASSERT_TRUE(applied(inhibitor, true, held));
    EXPECT_FALSE(held);
    ASSERT_EQ(TestLog::infoLines().size(), 1);
    EXPECT_TRUE(TestLog::infoLines().first().startsWith("[ScreenSaver] no service answers:"));
    ASSERT_TRUE(applied(inhibitor, false, held));
    EXPECT_EQ(TestLog::infoLines().size(), 1);
}

TEST_F(ScreenSaverTest, WithoutABusThereIsALogLineAndNothingElse)
{
    for (const QString &address : {QString(), "unix:path=" + m_folder.filePath("gone")}) {
        ScreenSaverInhibitor inhibitor(address);
        bool held = true;
        ASSERT_TRUE(applied(inhibitor, true, held));
        EXPECT_FALSE(held);
    }
    EXPECT_EQ(TestLog::infoLines().size(), 2);
}

TEST_F(ScreenSaverTest, AWishFromBeforeTheApplicationObjectIsRemembered)
{
    offerService();
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", m_address);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(PLATFORM_CHILD, {"playing"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_service.calls.isEmpty(); }, kPatienceMs));
    EXPECT_EQ(m_service.calls, QStringList{"Inhibit Quorin Player 6"});
    program.closeWriteChannel();
    ASSERT_TRUE(program.waitForFinished(kPatienceMs));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
}

TEST_F(ScreenSaverTest, TheScreenIsKeptOnOnlyWhileSomethingPlays)
{
    offerService();
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", m_address);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(PLATFORM_CHILD, QStringList());
    ASSERT_TRUE(program.waitForStarted(kPatienceMs));
    const QStringList calls{"Inhibit Quorin Player 6", "UnInhibit", "Inhibit Quorin Player 6"};
    const char orders[] = {'1', '0', '1'};
    for (int i = 0; i < calls.size(); ++i) {
        EXPECT_EQ(m_service.calls, QStringList(calls.mid(0, i)));
        program.write(&orders[i], 1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_service.calls.size() > i; }, kPatienceMs)) << i;
    }
    EXPECT_EQ(m_service.calls, calls);
    program.closeWriteChannel();
    ASSERT_TRUE(program.waitForFinished(kPatienceMs));
    EXPECT_EQ(program.exitCode(), 0);
}

TEST_F(ScreenSaverTest, TheSessionBusIsNeverStarted)
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/x");
    EXPECT_EQ(ScreenSaverInhibitor::sessionBusAddress(), "unix:path=/x");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
    EXPECT_EQ(ScreenSaverInhibitor::sessionBusAddress(), "unix:path=" + m_folder.filePath("bus"));
    qputenv("XDG_RUNTIME_DIR", m_folder.filePath("gone").toLocal8Bit());
    EXPECT_EQ(ScreenSaverInhibitor::sessionBusAddress(), "");
    if (address.isNull())
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    else
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    if (runtime.isNull())
        qunsetenv("XDG_RUNTIME_DIR");
    else
        qputenv("XDG_RUNTIME_DIR", runtime);
}

} // namespace

#include "ScreenSaverTest_linux.moc"
