// SIGKILL for the server at random moments of its scans: each restart finds what the user was told to be
// stored, and the scan goes on to its end. Rounds: QUORIN_KILL_ROUNDS, seed: QUORIN_KILL_SEED.
#include "ServerFixture.h"

#include "library/MusicChanges.h"

#include <QDir>
#include <QElapsedTimer>

#include <random>

namespace {

constexpr int UsualRounds = 12;
constexpr unsigned int UsualSeed = 20260;
constexpr int LongestMs = 40; // about what the scan of a round takes
constexpr int ScanBeginsMs = 2000;
constexpr int SongsARound = 200;
constexpr int FilmsARound = 60;
constexpr int WholeScanEvery = 4;
// Older files go, so that a long run does not slow down, and scans have losses to take in as well.
constexpr int KeptRounds = 4;
constexpr int LongestScanMs = 60000;

int fromEnvironment(const char *name, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber && number > 0 ? number : otherwise;
}

} // namespace

class KillTest : public ServerFixture {
protected:
    void SetUp() override
    {
        m_tree.makeFilms();
        m_tree.makeMusic();
        m_tree.sound("music/move/0/mover.mp3", {"Mover", "Wanderer", "Ways", {}, "Folk", 2001, 1, {}});
        grow(0);
        startServer();
        ASSERT_TRUE(m_manager->addVideoPath(m_tree.films(), "common"));
        ASSERT_TRUE(m_manager->addMusicPath(m_tree.music()));
        scan();
        loadAll();
        m_liked = QStringList{songId("One"), songId("Mover"), songId("Middle")};
        for (const QString &id : m_liked)
            ASSERT_TRUE(music().like(id));
        m_playlist = music().createPlaylist({}, "Mine", "Kept");
        for (const QString &id : m_liked)
            ASSERT_TRUE(music().addToPlaylist(m_playlist, id));
        m_edited = songId("Two");
        ASSERT_TRUE(music().editSong(m_edited, {"Zwei", {}, "Kapelle", "Schlager", 99, 1888}));
        m_matched = idOf(VideoCache::Movies, "Epsilon");
        const QList<MediaItem> found = m_manager->videoRequests().searchMovie("Chosen", "1950");
        ASSERT_FALSE(found.isEmpty());
        ASSERT_TRUE(m_manager->videoRequests().makeMovie({m_matched.toInt(), found.first().mediaId, {}}));
    }

    // New files for the round's scan, and a liked song in another folder than before.
    void grow(int round) const
    {
        for (int i = 0; i < SongsARound; ++i)
            m_tree.sound(QStringLiteral("music/round %1/%2/%3.mp3").arg(round).arg(i % 20).arg(i),
                         {songTitle(round, i),
                          "Crowd",
                          QStringLiteral("Album %1").arg(round),
                          {},
                          "Noise",
                          2000,
                          i + 1,
                          {}});
        for (int i = 0; i < FilmsARound; ++i)
            m_tree.clip(QStringLiteral("films/round %1/Film %1 x %2 (1990).mkv").arg(round).arg(i));
        const int old = round - KeptRounds;
        if (old >= 0) {
            QDir(m_tree.full(QStringLiteral("music/round %1").arg(old))).removeRecursively();
            QDir(m_tree.full(QStringLiteral("films/round %1").arg(old))).removeRecursively();
        }
    }

    // Between two scans: one that lists both places while the file goes from one to the other sees two files.
    void move(int round)
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_manager->videoRequests().heartbeat().isScanFinished; },
                                    LongestScanMs));
        ASSERT_TRUE(m_tree.rename(QStringLiteral("music/move/%1/mover.mp3").arg(round - 1),
                                  QStringLiteral("music/move/%1/mover.mp3").arg(round)));
    }

    // Asks without a pause: the whole scan is not much longer than a pause.
    void waitUntilItScans()
    {
        QElapsedTimer timer;
        timer.start();
        while (m_manager->videoRequests().heartbeat().isScanFinished && timer.elapsed() < ScanBeginsMs)
            QCoreApplication::processEvents();
    }

    // What holds at every moment, whatever a scan was about to do. The song that moves may be on its way.
    void expectUserDataKept(bool withMover)
    {
        load(LibraryRole::Music);
        load(LibraryRole::Movies);
        const MusicCache &held = m_manager->music();
        const QString mover = m_liked.at(1);
        for (const QString &id : m_liked) {
            if (id == mover && !withMover)
                continue;
            EXPECT_TRUE(held.song(id).like) << qPrintable(id);
            EXPECT_TRUE(held.playlist(m_playlist).songs.contains(id)) << qPrintable(id);
        }
        EXPECT_EQ(held.playlist(m_playlist).title, "Mine");
        EXPECT_EQ(held.song(m_edited).title, "Zwei");
        EXPECT_EQ(held.song(m_edited).year, 1888);
        EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, m_matched).title, "Chosen");
        QStringList paths = m_manager->musicPaths().values();
        paths.sort();
        EXPECT_EQ(paths, m_paths);
        if (withMover) {
            EXPECT_EQ(held.song(mover).title, "Mover");
        }
    }

    [[nodiscard]] static QString songTitle(int round, int number)
    {
        return QStringLiteral("Song %1 of %2").arg(number).arg(round);
    }

    QStringList m_liked;
    QString m_playlist;
    QString m_edited;
    QString m_matched;
    QStringList m_paths{m_tree.music()}; // sorted
};

TEST_F(KillTest, NothingThatAUserMadeIsLostAndTheScanGoesOn)
{
    const int rounds = fromEnvironment("QUORIN_KILL_ROUNDS", UsualRounds);
    const int seed = fromEnvironment("QUORIN_KILL_SEED", int(UsualSeed));
    std::mt19937 random{unsigned(seed)};
    const auto below = [&](int limit) { return int(random() % unsigned(limit)); };
    int underWay = 0;
    int killed = 0;
    for (int round = 1; round <= rounds && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round << ", seed " << seed);
        move(round);
        grow(round);
        m_manager->startLibraryUpdate();
        waitUntilItScans();
        QTest::qWait(below(LongestMs));
        // What the server has said yes to stands, however soon after it ends.
        const QString id = m_edited;
        ASSERT_TRUE(round % 2 == 1 ? music().like(id) : music().unlike(id));
        const QString folder = m_tree.full(QStringLiteral("extra %1").arg(round));
        if (round % 3 == 0) {
            m_tree.sound(QStringLiteral("extra %1/x.mp3").arg(round),
                         {QStringLiteral("Extra %1").arg(round), "Crowd", {}, {}, {}, 0, 0, {}});
            ASSERT_TRUE(m_manager->addMusicPath(folder));
            m_paths << folder;
            m_paths.sort();
            QTest::qWait(below(LongestMs / 4));
        }
        underWay += m_manager->videoRequests().heartbeat().isScanFinished ? 0 : 1;
        ++killed;
        killServer();
        startServer();
        expectUserDataKept(false);
        EXPECT_EQ(m_manager->music().song(id).like, round % 2 == 1);
        if (round % WholeScanEvery == 0) {
            scan();
            expectUserDataKept(true);
        }
    }
    std::printf("# %d of %d kills came while a scan ran\n", underWay, killed);
    EXPECT_GT(underWay, killed / 4) << "kills that come between scans prove little";
    scan();
    expectUserDataKept(true);
    QMap<QString, int> found;
    for (const QString &id : m_manager->music().songs())
        ++found[m_manager->music().song(id).title];
    for (int round = 0; round <= rounds; ++round) {
        const int expected = round > rounds - KeptRounds ? 1 : 0;
        for (int i = 0; i < SongsARound; ++i)
            EXPECT_EQ(found.value(songTitle(round, i)), expected) << qPrintable(songTitle(round, i));
    }
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 8 + qMin(rounds + 1, KeptRounds) * FilmsARound);
    EXPECT_FALSE(m_server.log().contains("damaged")) << "the database was set aside";
    EXPECT_EQ(m_server.stop(), 0);
}
