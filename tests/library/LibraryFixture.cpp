#include "LibraryFixture.h"

#include "support/Eventually.h"

#include <QJsonDocument>

void StarterScript::open()
{
    {
        std::lock_guard lock(mutex);
        isOpen = true;
    }
    opened.notify_all();
}

QStringList StarterScript::recorded()
{
    std::lock_guard lock(mutex);
    return calls;
}

void FakeStarter::note(const QString &call)
{
    std::function<void(const QString &)> onCall;
    {
        std::lock_guard lock(m_script.mutex);
        m_script.calls.append(call);
        onCall = m_script.onCall;
    }
    if (onCall)
        onCall(call);
}

bool FakeStarter::isHeld() const
{
    std::unique_lock lock(m_script.mutex);
    m_script.opened.wait(lock, [this] { return m_script.isOpen; });
    return m_script.isHeld;
}

bool FakeStarter::start(const QString &program, const QString &dataFolder, int waitMs)
{
    note(QStringLiteral("start %1 %2 %3").arg(program, dataFolder).arg(waitMs));
    std::lock_guard lock(m_script.mutex);
    m_script.isHeld = m_script.startsProcess;
    return m_script.startsProcess;
}

bool FakeStarter::isRunning() const
{
    std::lock_guard lock(m_script.mutex);
    return m_script.isRunning;
}

bool FakeStarter::startPlain(const QString &program)
{
    note(QStringLiteral("plain %1").arg(program));
    std::lock_guard lock(m_script.mutex);
    return m_script.startsPlain;
}

void FakeStarter::release()
{
    note(QStringLiteral("release"));
    std::lock_guard lock(m_script.mutex);
    m_script.isHeld = false;
}

void PauseScript::tick()
{
    {
        std::lock_guard lock(mutex);
        ++ticks;
    }
    changed.notify_all();
}

QList<int> PauseScript::recorded()
{
    std::lock_guard lock(mutex);
    return waits;
}

bool FakePause::wait(int ms)
{
    std::unique_lock lock(m_script.mutex);
    m_script.waits.append(ms);
    if (m_script.onWait) {
        const auto onWait = m_script.onWait;
        const int count = m_script.waits.size();
        lock.unlock();
        onWait(count);
        lock.lock();
    }
    if (ms != PauseScript::BeatMs)
        return !m_script.isEnding;
    m_script.changed.wait(lock, [this] { return m_script.isEnding || m_script.ticks > 0; });
    if (m_script.isEnding)
        return false;
    --m_script.ticks;
    return true;
}

void FakePause::end()
{
    {
        std::lock_guard lock(m_script.mutex);
        m_script.isEnding = true;
    }
    m_script.changed.notify_all();
}

bool FakePause::isEnding() const
{
    std::lock_guard lock(m_script.mutex);
    return m_script.isEnding;
}

LibraryFixture::LibraryFixture() = default;
LibraryFixture::~LibraryFixture() = default;

void LibraryFixture::answerStart()
{
    m_server.answer("Server.GetLibraries", json("{'libraries':[{'Name':'x'},{'Library':7},{'Library':9}]}"));
    m_server.answer("VMusicLibrary.GetLibraries", json("{'libraries':[{'Library':8}]}"));
    m_server.answer("Server.GetLibraryDetail", json("{'paths':[{'PathId':1,'path':'/films'}]}"));
    m_server.answer("VMusicLibrary.GetLibraryDetail", json("{'paths':[{'PathId':2,'path':'/songs'}]}"));
    m_server.answer("Server.Heartbeat", json("{'Finished':'1','ScraperFinished':false}"));
}

void LibraryFixture::makeManager()
{
    LibraryParts parts;
    parts.transport = m_server.transport();
    parts.starter = std::make_unique<FakeStarter>(m_starter);
    parts.pause = std::make_unique<FakePause>(m_pause);
    parts.statistics = [this](const QString &category, const QString &key, const QString &value) {
        std::lock_guard lock(m_statisticsMutex);
        m_statistics.append(QStringList{category, key, value}.join(QLatin1Char('|')));
    };
    parts.settings = &m_settings;
    parts.program = "/program/server";
    parts.dataFolder = "/data/mediaServer";
    parts.port = 32080;
    m_manager = std::make_unique<MediaServerManager>(std::move(parts));
    m_log.follow(*m_manager);
    m_starter.open();
}

void LibraryFixture::startManager()
{
    answerStart();
    makeManager();
    ASSERT_EVENTUALLY(m_log.lines().contains("sig_meidaServerPathLoaded"));
    ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateHeartBeat"));
    m_server.forgetRequests();
    m_log.clear();
}

void LibraryFixture::load(int role)
{
    m_manager->reloadLibrary(role);
    m_manager->waitForLoad(role);
    // The second of the two stands behind everything that the load has told.
    const QString ended = QStringLiteral("sig_mediaScanStateChanged %1").arg(role);
    ASSERT_EVENTUALLY(m_log.lines().count(ended) == 2);
}

QStringList LibraryFixture::statistics()
{
    std::lock_guard lock(m_statisticsMutex);
    return m_statistics;
}

QJsonObject json(const char *text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(text).replace('\'', '"'), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << text;
    return document.object();
}
