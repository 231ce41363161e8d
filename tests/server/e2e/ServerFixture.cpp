#include "ServerFixture.h"

#include "library/HttpTransport.h"
#include "library/IServerStarter.h"
#include "library/LibraryPause.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr int BeatMs = 100;
constexpr int ScanMs = 120000;
constexpr int ReadyMs = 30000;
// The first heartbeat after a request may have been under way before it.
constexpr int BeatsBeforeEnd = 2;

// The server runs already, and a manager that ends takes none with it.
class NoStarter final : public IServerStarter {
public:
    bool isHeld() const override { return false; }
    bool start(const QString &, const QString &, int) override { return true; }
    bool isRunning() const override { return false; }
    bool startPlain(const QString &) override { return false; }
    void release() override {}
};

class QuickPause final : public LibraryPause {
public:
    bool wait(int ms) override { return m_pause.wait(std::min(ms, BeatMs)); }
    void end() override { m_pause.end(); }
    bool isEnding() const override { return m_pause.isEnding(); }

private:
    WakeablePause m_pause;
};

} // namespace

ServerFixture::ServerFixture() = default;

ServerFixture::~ServerFixture()
{
    m_manager.reset();
    if (HasFailure())
        std::fprintf(stderr, "---- server.log\n%s----\n", qUtf8Printable(m_server.log()));
}

void ServerFixture::startServer()
{
    if (!m_server.isRunning()) {
        ASSERT_TRUE(m_server.start());
    }
    startManager();
}

void ServerFixture::startManager()
{
    LibraryParts parts;
    parts.transport = std::make_unique<HttpTransport>();
    parts.starter = std::make_unique<NoStarter>();
    parts.pause = std::make_unique<QuickPause>();
    parts.statistics = [](const QString &, const QString &, const QString &) {};
    parts.settings = &m_settings;
    parts.port = m_server.port();
    m_manager = std::make_unique<MediaServerManager>(std::move(parts));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_manager->isServerReady(); }, ReadyMs));
}

void ServerFixture::killServer()
{
    m_server.kill();
    m_manager.reset();
}

void ServerFixture::scan()
{
    // Signals come from the manager's own threads: what is made of them happens here.
    QObject here;
    bool isTaken = false;
    QObject::connect(m_manager.get(), &MediaServerManager::sig_updateLibraryCompleted, &here,
                     [&isTaken](bool succeeded) { isTaken = succeeded; });
    m_manager->startLibraryUpdate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return isTaken; }, ReadyMs));
    waitForScanEnd();
}

void ServerFixture::waitForScanEnd()
{
    int beats = 0;
    ASSERT_TRUE(
        waitByHeartbeats([&] { return ++beats >= BeatsBeforeEnd && m_manager->isScanFinished(); }, ScanMs));
}

bool ServerFixture::waitByHeartbeats(const std::function<bool()> &condition, int limitMs)
{
    QObject here;
    int beats = 0;
    QObject::connect(m_manager.get(), &MediaServerManager::sig_updateHeartBeat, &here, [&beats] { ++beats; });
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < limitMs) {
        beats = 0;
        if (QTest::qWaitFor([&] { return beats > 0; }, limitMs) && condition())
            return true;
    }
    return false;
}

void ServerFixture::load(LibraryRole role)
{
    m_manager->reloadLibrary(int(role));
    m_manager->waitForLoad(int(role));
}

void ServerFixture::loadAll()
{
    for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role)
        m_manager->reloadLibrary(role);
    for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role)
        m_manager->waitForLoad(role);
}

QString ServerFixture::idOf(VideoCache::Kind kind, const QString &title) const
{
    QStringList found;
    for (const QString &id : m_manager->videos().ids(kind)) {
        if (m_manager->videos().item(kind, id).title == title)
            found.append(id);
    }
    EXPECT_EQ(found.size(), 1) << qPrintable(title);
    return found.value(0);
}

QString ServerFixture::songId(const QString &title) const
{
    QStringList found;
    for (const QString &id : m_manager->music().songs()) {
        if (m_manager->music().song(id).title == title)
            found.append(id);
    }
    EXPECT_EQ(found.size(), 1) << qPrintable(title);
    return found.value(0);
}

QStringList ServerFixture::titles(VideoCache::Kind kind) const
{
    QStringList found;
    for (const QString &id : m_manager->videos().ids(kind))
        found.append(m_manager->videos().item(kind, id).title);
    found.sort();
    return found;
}

QStringList ServerFixture::songTitles(const QStringList &ids) const
{
    QStringList found;
    for (const QString &id : ids)
        found.append(m_manager->music().song(id).title);
    found.sort();
    return found;
}
