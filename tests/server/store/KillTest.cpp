#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "store/Database.h"
#include "store/MusicLibrary.h"

#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

struct Answered {
    QSet<int> playlists;
    QSet<int> filled;
    QSet<int> liked;
};

// Kills the child after so many answers and returns all that it gave.
Answered changeUntilKilled(const QString &folder, int answers)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QStringLiteral(STORE_CHILD), {folder});
    constexpr int kPatienceMs = 30000;
    QByteArray output;
    while (output.count('\n') < answers && child.waitForReadyRead(kPatienceMs))
        output += child.readAllStandardOutput();
    EXPECT_GE(output.count('\n'), answers);
    child.kill();
    EXPECT_TRUE(child.waitForFinished(kPatienceMs));
    output += child.readAllStandardOutput();
    Answered answered;
    // The last line may have been cut by the kill; what stands before its end was answered.
    QList<QByteArray> lines = output.split('\n');
    lines.removeLast();
    for (const QByteArray &line : qAsConst(lines)) {
        const QList<QByteArray> words = line.split(' ');
        const int id = words.value(1).toInt();
        QSet<int> &ids = words[0] == "playlist" ? answered.playlists
                         : words[0] == "filled" ? answered.filled
                                                : answered.liked;
        ids.insert(id);
    }
    return answered;
}

} // namespace

TEST(KillTest, NothingThatWasAnsweredIsLostAtAKillOfTwenty)
{
    constexpr int kRounds = 20;
    constexpr int kMostAnswers = 60;
    std::mt19937 random(std::random_device{}());
    QTemporaryDir data;
    Answered all;
    for (int round = 0; round < kRounds; ++round) {
        const int answers = std::uniform_int_distribution<int>(1, kMostAnswers)(random);
        SCOPED_TRACE(testing::Message() << "round " << round << ", killed after " << answers);
        const Answered answered = changeUntilKilled(data.path(), answers);
        all.playlists += answered.playlists;
        all.filled += answered.filled;
        all.liked += answered.liked;

        // A file that is not whole is told as a warning, and that is a failure of the test.
        const DataFolder places(data.path());
        Database database(places, ServerConfiguration());
        ASSERT_TRUE(database.open());
        const MusicLibrary music(database);
        QSet<int> present;
        const QVector<PlaylistRecord> playlists = music.playlists();
        for (const PlaylistRecord &playlist : playlists)
            present.insert(playlist.idPlayList);
        EXPECT_TRUE(present.contains(all.playlists));
        ListRequest one;
        one.end = 1;
        for (const int id : qAsConst(all.filled))
            EXPECT_EQ(music.playlistSongs(id, one).total, 1);
        for (const int id : qAsConst(all.liked))
            EXPECT_TRUE(music.song(id).liked);
        // Each folder was stored as a whole or not at all.
        EXPECT_EQ((music.songs(one).total - 50) % 20, 0);
        EXPECT_TRUE(QDir(data.path()).entryList({"*.damaged-*"}, QDir::Files).isEmpty());
    }
    EXPECT_FALSE(all.filled.isEmpty());
}
