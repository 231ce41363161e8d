#include "media/StreamFacts.h"
#include "support/SampleClips.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

constexpr int SlowestMs = 6000;

class StreamFactsTest : public testing::Test {
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    static StreamFacts read(const QString &path) { return StreamFacts::read(path, MediaDeadline()); }

    QTemporaryDir m_folder;
};

TEST_F(StreamFactsTest, TellsLengthAndSizeOfEachContainer)
{
    for (const QString &format : SampleClips::videoFormats()) {
        SCOPED_TRACE(qPrintable(format));
        const QString file = path("clip." + format);
        SampleClips::copy(format, file);
        const StreamFacts facts = read(file);
        EXPECT_TRUE(facts.wasRead);
        EXPECT_NEAR(double(facts.durationMs), 1000, 150);
        EXPECT_EQ(facts.width, 64);
        EXPECT_EQ(facts.height, 48);
        // The streams of television and of discs have no place for it.
        EXPECT_EQ(facts.title, format == "ts" || format == "mpg" ? "" : "Bars");
    }
}

TEST_F(StreamFactsTest, ReadsNothingButRegularFiles)
{
    ASSERT_EQ(::mkfifo(path("pipe.mkv").toUtf8().constData(), 0600), 0);
    EXPECT_FALSE(read(path("pipe.mkv")).wasRead);
    EXPECT_FALSE(read(m_folder.path()).wasRead);
    EXPECT_FALSE(read(path("missing.mkv")).wasRead);
    EXPECT_FALSE(read("/dev/zero").wasRead);
}

TEST_F(StreamFactsTest, IsDoneWithAHugeSparseFileAtOnce)
{
    QFile file(path("sparse.mkv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64(100) << 30));
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(read(file.fileName()).wasRead);
    EXPECT_LT(timer.elapsed(), SlowestMs);
}

TEST_F(StreamFactsTest, OpensNothingThatAPlaylistNames)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QByteArray address = "http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/a.ts";
    SampleClips::copy("ts", path("a.ts"));
    const struct {
        const char *name;
        QByteArray content;
    } rows[] = {
        {"net.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + address + "\n#EXT-X-ENDLIST\n"},
        {"net.mp4", "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + address + "\n#EXT-X-ENDLIST\n"},
        {"file.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\na.ts\n#EXT-X-ENDLIST\n"},
        {"list.mkv", "ffconcat version 1.0\nfile a.ts\n"},
        {"net.sdp",
         "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\nm=video 5000 RTP/AVP 96\n"},
    };
    for (const auto &row : rows) {
        SampleClips::write(path(row.name), row.content);
        EXPECT_EQ(read(path(row.name)).width, 0) << row.name;
    }
    EXPECT_FALSE(server.waitForNewConnection(0));
}

TEST_F(StreamFactsTest, EndsAtItsDeadline)
{
    SampleClips::copy("mkv", path("a.mkv"));
    EXPECT_FALSE(StreamFacts::read(path("a.mkv"), MediaDeadline(std::chrono::milliseconds(0))).wasRead);
    std::atomic<bool> cancelled{true};
    EXPECT_FALSE(StreamFacts::read(path("a.mkv"), MediaDeadline(MediaDeadline::PerFile, &cancelled)).wasRead);
}

TEST_F(StreamFactsTest, SurvivesDamagedFiles)
{
    constexpr unsigned Rounds = 200;
    const QStringList formats = SampleClips::videoFormats();
    for (unsigned seed = 0; seed < Rounds; ++seed) {
        const QString format = formats.at(int(seed) % formats.size());
        const QString file = path(QString("damaged%1.%2").arg(seed).arg(format));
        SampleClips::write(file, SampleClips::damaged(SampleClips::bytes(format), seed));
        QElapsedTimer timer;
        timer.start();
        EXPECT_GE(read(file).durationMs, 0) << seed;
        EXPECT_LT(timer.elapsed(), SlowestMs) << seed;
    }
}

} // namespace
