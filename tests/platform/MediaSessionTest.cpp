#include "platform/MediaSession.h"
#include "platform/TaskbarProgress.h"

#include "support/Sanitizers.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QString Service = QStringLiteral("org.mpris.MediaPlayer2.quorin-test");
const QString Path = QStringLiteral("/org/mpris/MediaPlayer2");
const QString Player = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString Properties = QStringLiteral("org.freedesktop.DBus.Properties");

// A bus of the test's own, as a desktop would give.
class SessionBus {
public:
    SessionBus()
    {
        m_daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        m_daemon.waitForReadyRead(5000);
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
    }
    ~SessionBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished(5000);
    }

private:
    QProcess m_daemon;
};

class Receiver final : public QObject {
    Q_OBJECT
public:
    QVariantMap changes;
    QList<qlonglong> seeks;
    QStringList updates; // "0.25", or "none"
public slots:
    void onUpdate(const QString &application, const QVariantMap &facts)
    {
        EXPECT_EQ(application, "application://quorin-test.desktop");
        updates << (facts.value("progress-visible").toBool()
                        ? QString::number(facts.value("progress").toDouble())
                        : QStringLiteral("none"));
    }
    void onChanged(const QString &, const QVariantMap &map, const QStringList &)
    {
        for (auto it = map.begin(); it != map.end(); ++it)
            changes.insert(it.key(), it.value());
    }
    void onSeeked(qlonglong position) { seeks << position; }
};

class MediaSessionTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        if (Sanitizers::WatchesThreads)
            return;
        s_bus = std::make_unique<SessionBus>();
        s_client = std::make_unique<QDBusConnection>(
            QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "client"));
    }
    static void TearDownTestSuite()
    {
        if (Sanitizers::WatchesThreads)
            return;
        QDBusConnection::disconnectFromBus("client");
        QDBusConnection::disconnectFromBus("qt_default_session_bus");
        s_client.reset();
        s_bus.reset();
    }
    void SetUp() override
    {
        if (Sanitizers::WatchesThreads)
            GTEST_SKIP() << Sanitizers::BusThread;
        ASSERT_TRUE(s_client->isConnected());
        ASSERT_TRUE(session.open("Quorin Player 6", "quorin-test"));
        session.setMetadata({"A film",
                             {},
                             {},
                             QUrl::fromLocalFile("/films/a film.mkv"),
                             QUrl::fromLocalFile("/art/a.png"),
                             60000});
        session.setCanSeek(true);
    }

    // The program answers on this very thread, so its event loop must run while the client waits.
    QDBusMessage call(const QString &interfaceName, const QString &method, const QVariantList &arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(Service, Path, interfaceName, method);
        message.setArguments(arguments);
        QDBusPendingCall pending = s_client->asyncCall(message);
        QDBusPendingCallWatcher watcher(pending);
        QSignalSpy finished(&watcher, &QDBusPendingCallWatcher::finished);
        if (!pending.isFinished()) {
            EXPECT_TRUE(finished.wait(5000));
        }
        return pending.reply();
    }
    QVariant property(const QString &name)
    {
        return call(Properties, "Get", {Player, name}).arguments().value(0).value<QDBusVariant>().variant();
    }

    MediaSession session;
    static std::unique_ptr<SessionBus> s_bus;
    static std::unique_ptr<QDBusConnection> s_client;
};

std::unique_ptr<SessionBus> MediaSessionTest::s_bus;
std::unique_ptr<QDBusConnection> MediaSessionTest::s_client;

QDBusObjectPath trackOf(const QVariant &metadata)
{
    return qdbus_cast<QVariantMap>(metadata.value<QDBusArgument>())
        .value("mpris:trackid")
        .value<QDBusObjectPath>();
}

} // namespace

TEST_F(MediaSessionTest, ClientReadsWhatPlays)
{
    session.setState(MediaSession::State::Playing);
    session.setPositionMs(12345);
    EXPECT_EQ(property("PlaybackStatus").toString(), "Playing");
    EXPECT_EQ(property("Position").toLongLong(), 12345000);
    const QVariantMap metadata = qdbus_cast<QVariantMap>(property("Metadata").value<QDBusArgument>());
    EXPECT_EQ(metadata.value("xesam:title").toString(), "A film");
    EXPECT_EQ(metadata.value("xesam:url").toString(), "file:///films/a%20film.mkv");
    EXPECT_EQ(metadata.value("mpris:length").toLongLong(), 60000000);
    EXPECT_EQ(metadata.value("mpris:artUrl").toString(), "file:///art/a.png");
}

TEST_F(MediaSessionTest, ChangesAreAnnounced)
{
    Receiver receiver;
    ASSERT_TRUE(s_client->connect(Service, Path, Properties, "PropertiesChanged", &receiver,
                                  SLOT(onChanged(QString, QVariantMap, QStringList))));
    ASSERT_TRUE(s_client->connect(Service, Path, Player, "Seeked", &receiver, SLOT(onSeeked(qlonglong))));
    // Once this is answered the bus has taken what the client wants to hear.
    EXPECT_FALSE(property("PlaybackStatus").toString().isEmpty());
    session.setState(MediaSession::State::Paused);
    session.setVolume(0.5);
    session.announceSeek(2000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !receiver.seeks.isEmpty(); }));
    EXPECT_EQ(receiver.changes.value("PlaybackStatus").toString(), "Paused");
    EXPECT_DOUBLE_EQ(receiver.changes.value("Volume").toDouble(), 0.5);
    EXPECT_EQ(receiver.seeks, QList<qlonglong>{2000000});
}

TEST_F(MediaSessionTest, RequestsOfTheDesktopComeAsSignals)
{
    QSignalSpy playPause(&session, &MediaSession::playPauseRequested);
    QSignalSpy seek(&session, &MediaSession::seekRequested);
    QSignalSpy volume(&session, &MediaSession::volumeRequested);
    call(Player, "PlayPause");
    call(Player, "Seek", {qlonglong(-5000000)});
    call(Properties, "Set", {Player, "Volume", QVariant::fromValue(QDBusVariant(9.0))});
    EXPECT_EQ(playPause.count(), 1);
    ASSERT_EQ(seek.count(), 1);
    EXPECT_EQ(seek.first().first().toLongLong(), -5000);
    ASSERT_EQ(volume.count(), 1);
    EXPECT_DOUBLE_EQ(volume.first().first().toDouble(), 2.0);
}

TEST_F(MediaSessionTest, PositionOfAnEarlierTrackOrOutsideTheSourceIsDropped)
{
    QSignalSpy asked(&session, &MediaSession::positionRequested);
    const QVariant track = QVariant::fromValue(trackOf(property("Metadata")));
    call(Player, "SetPosition", {track, qlonglong(61000000)});
    call(Player, "SetPosition", {track, qlonglong(-1)});
    call(Player, "SetPosition", {QVariant::fromValue(QDBusObjectPath("/other")), qlonglong(1000000)});
    EXPECT_EQ(asked.count(), 0);
    call(Player, "SetPosition", {track, qlonglong(30000000)});
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.first().first().toLongLong(), 30000);
    session.setMetadata({"Another", {}, {}, QUrl::fromLocalFile("/films/b.mkv"), {}, 60000});
    call(Player, "SetPosition", {track, qlonglong(30000000)});
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(MediaSessionTest, OnlyLocalFilesAreOpened)
{
    QSignalSpy opened(&session, &MediaSession::openRequested);
    call(Player, "OpenUri", {"http://127.0.0.1/film.mkv"});
    call(Player, "OpenUri", {"not a url %%%"});
    EXPECT_EQ(opened.count(), 0);
    call(Player, "OpenUri", {"file:///films/c.mkv"});
    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(opened.first().first().toUrl().toLocalFile(), "/films/c.mkv");
}

TEST_F(MediaSessionTest, NextAndPreviousActOnlyWhereThereIsOne)
{
    QSignalSpy next(&session, &MediaSession::nextRequested);
    QSignalSpy previous(&session, &MediaSession::previousRequested);
    call(Player, "Next");
    call(Player, "Previous");
    EXPECT_EQ(next.count() + previous.count(), 0);
    session.setCanGoNext(true);
    session.setCanGoPrevious(true);
    call(Player, "Next");
    call(Player, "Previous");
    EXPECT_EQ(next.count(), 1);
    EXPECT_EQ(previous.count(), 1);
}

TEST_F(MediaSessionTest, TheDockIsToldOfProgressThatCanBeSeenAlone)
{
    Receiver receiver;
    ASSERT_TRUE(s_client->connect({}, {}, "com.canonical.Unity.LauncherEntry", "Update", &receiver,
                                  SLOT(onUpdate(QString, QVariantMap))));
    EXPECT_FALSE(property("PlaybackStatus").toString().isEmpty());
    {
        TaskbarProgress progress;
        progress.show(0.9, false); // to nobody yet
        progress.open("quorin-test", 0);
        progress.hide(); // nothing is shown
        progress.show(0.25, false);
        progress.show(0.2501, false);
        progress.show(0.5, false);
        progress.show(7, false);
        progress.hide();
        progress.show(0, false);
    }
    const QStringList expected{"0.25", "0.5", "1", "none", "0", "none"};
    ASSERT_TRUE(QTest::qWaitFor([&] { return receiver.updates.size() >= expected.size(); }));
    EXPECT_EQ(receiver.updates, expected);
}

#include "MediaSessionTest.moc"
