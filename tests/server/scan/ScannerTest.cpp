#include "ScanBench.h"

#include "support/Eventually.h"
#include "support/SampleClips.h"
#include "support/TestLog.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <taglib/mpegfile.h>

namespace {

void setTitle(const QString &path, const char *title)
{
    TagLib::MPEG::File file(path.toUtf8().constData());
    file.ID3v2Tag(true);
    file.tag()->setTitle(title);
    ASSERT_TRUE(file.save());
}

class ScannerTest : public testing::Test {
protected:
    ScanBench m_bench;
    FakeStore &m_store{m_bench.store};
};

TEST_F(ScannerTest, StoresTheSongsOfATree)
{
    m_bench.sound("A/one.mp3");
    m_bench.sound("A/B/two.flac", "flac");
    SampleClips::write(m_bench.path("A/notes.txt"), "text");
    m_bench.scanMusic();
    ASSERT_EQ(m_store.songs().size(), 2);
    const ScannedSong song = m_store.song(m_bench.path("A/B/two.flac"));
    EXPECT_EQ(song.title, "Tone");
    EXPECT_EQ(song.artist, "Player");
    EXPECT_EQ(song.albumArtist, "Several");
    EXPECT_EQ(song.suffix, "flac");
    EXPECT_EQ(song.track, -1);
    EXPECT_EQ(song.trackNumber, 3);
    EXPECT_NEAR(song.runtimeMs, 400, 120);
    EXPECT_EQ(song.stamp.size, QFileInfo(song.path).size());
    EXPECT_EQ(m_store.finishedScans(), 1);
}

TEST_F(ScannerTest, FoldersOfFurtherPicturesHoldNoSongs)
{
    m_bench.sound("Band/Album/one.mp3");
    m_bench.sound("Band/extrafanart/two.mp3");
    m_bench.sound("Band/Album/ExtraThumbs/deep/three.mp3");
    m_bench.scanMusic();
    ASSERT_EQ(m_store.songs().size(), 1);
    EXPECT_EQ(m_store.songs().first().path, m_bench.path("Band/Album/one.mp3"));
}

TEST_F(ScannerTest, ANewPictureAmongTheFurtherOnesOfAFilmIsSeen)
{
    SampleClips::write(m_bench.path("Film (2010)/Film (2010).iso"), "disc");
    SampleClips::write(m_bench.path("Film (2010)/extrafanart/b.jpg"), "picture");
    m_bench.scanVideo();
    ASSERT_EQ(m_store.videos().size(), 1);
    EXPECT_EQ(m_store.videos().first().description.backdrop, m_bench.path("Film (2010)/extrafanart/b.jpg"));
    SampleClips::write(m_bench.path("Film (2010)/extrafanart/a.jpg"), "picture");
    m_bench.scanVideo();
    EXPECT_EQ(m_store.videos().first().description.backdrop, m_bench.path("Film (2010)/extrafanart/a.jpg"));
}

TEST_F(ScannerTest, OpensNothingWhereNothingChanged)
{
    m_bench.sound("A/one.mp3");
    m_bench.sound("B/two.mp3");
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.reader->takeOpened().size(), 2);
    const int stored = m_store.storedFolders();
    m_bench.scanMusic();
    EXPECT_TRUE(m_bench.reader->takeOpened().isEmpty());
    EXPECT_EQ(m_store.storedFolders(), stored);
    EXPECT_EQ(m_store.songs().size(), 2);
}

TEST_F(ScannerTest, OpensTheChangedFileAlone)
{
    m_bench.sound("A/one.mp3");
    m_bench.sound("A/two.mp3");
    m_bench.scanMusic();
    (void)m_bench.reader->takeOpened();
    setTitle(m_bench.path("A/two.mp3"), "A title that makes the file longer");
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.reader->takeOpened(), QStringList(m_bench.path("A/two.mp3")));
    EXPECT_EQ(m_store.song(m_bench.path("A/two.mp3")).title, "A title that makes the file longer");
    EXPECT_EQ(m_store.song(m_bench.path("A/one.mp3")).title, "Tone");
}

TEST_F(ScannerTest, TakesANewCoverWithoutOpeningTheSongs)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    EXPECT_EQ(m_store.song(m_bench.path("A/one.mp3")).poster, "");
    (void)m_bench.reader->takeOpened();
    SampleClips::write(m_bench.path("A/Folder.JPG"), "\xFF\xD8\xFF");
    m_bench.scanMusic();
    EXPECT_TRUE(m_bench.reader->takeOpened().isEmpty());
    EXPECT_EQ(m_store.song(m_bench.path("A/one.mp3")).poster, m_bench.path("A/Folder.JPG"));
    ASSERT_TRUE(QFile::remove(m_bench.path("A/Folder.JPG")));
    m_bench.scanMusic();
    EXPECT_EQ(m_store.song(m_bench.path("A/one.mp3")).poster, "");
}

TEST_F(ScannerTest, FilesAreReadBehindAllThatSomebodyWaitsFor)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    EXPECT_GT(m_bench.reader->takenNice(), ::getpriority(PRIO_PROCESS, 0));
}

TEST(ScannerPoolTest, AFolderOfMoreFilesThanTheQueueTakesIsReadToItsEnd)
{
    constexpr int kFiles = 1100;
    ProbePool::Limits limits;
    limits.workers = 1;
    ScanBench bench(limits);
    for (int number = 0; number < kFiles; ++number)
        SampleClips::write(bench.path(QString("A/%1.mp3").arg(number)), "no tags");
    SampleClips::write(bench.path("B/last.mp3"), "no tags");
    bench.scanMusic();
    EXPECT_EQ(bench.reader->takeOpened().size(), kFiles + 1);
    EXPECT_EQ(bench.store.songs().size(), kFiles + 1);
}

TEST_F(ScannerTest, ForgetsAFolderThatIsGone)
{
    m_bench.sound("A/one.mp3");
    m_bench.sound("B/two.mp3");
    m_bench.scanMusic();
    ASSERT_TRUE(QDir(m_bench.path("B")).removeRecursively());
    m_bench.scanMusic();
    EXPECT_EQ(m_store.forgotten(), QStringList(m_bench.path("B")));
    EXPECT_EQ(m_store.songs().size(), 1);
}

TEST_F(ScannerTest, TellsAMovedFolderUnderItsNewPath)
{
    m_bench.sound("A/one.mp3");
    m_bench.sound("C/two.mp3");
    m_bench.scanMusic();
    const ScannedSong before = m_store.song(m_bench.path("A/one.mp3"));
    ASSERT_TRUE(QDir().rename(m_bench.path("A"), m_bench.path("B")));
    m_bench.scanMusic();
    EXPECT_EQ(m_store.forgotten(), QStringList(m_bench.path("A")));
    EXPECT_EQ(m_store.song(m_bench.path("B/one.mp3")).stamp, before.stamp);
}

TEST_F(ScannerTest, KeepsAllOfARootThatIsGone)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    const QString root = m_bench.root();
    ASSERT_TRUE(QDir().rename(root, root + "-gone"));
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.lastResult, RootScan::Result::Offline);
    EXPECT_FALSE(m_store.isOnline(m_bench.musicRoot));
    EXPECT_EQ(m_store.songs().size(), 1);
    EXPECT_TRUE(m_store.forgotten().isEmpty());
    ASSERT_TRUE(QDir().rename(root + "-gone", root));
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.lastResult, RootScan::Result::Complete);
    EXPECT_TRUE(m_store.isOnline(m_bench.musicRoot));
}

TEST_F(ScannerTest, KeepsAllOfARootThatGoesDuringItsScan)
{
    m_bench.sound("A/one.mp3");
    m_bench.sound("B/two.mp3");
    m_bench.scanMusic();
    const QString root = m_bench.root();
    m_bench.onEnter = [&root](const QString &folder) {
        if (folder != root)
            QDir().rename(root, root + "-gone");
    };
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.lastResult, RootScan::Result::Offline);
    EXPECT_FALSE(m_store.isOnline(m_bench.musicRoot));
    EXPECT_EQ(m_store.songs().size(), 2);
    EXPECT_TRUE(m_store.forgotten().isEmpty());
    m_bench.onEnter = {};
    ASSERT_TRUE(QDir().rename(root + "-gone", root));
}

TEST_F(ScannerTest, KeepsAllOfARootThatIsSuddenlyEmpty)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    ASSERT_TRUE(QDir(m_bench.path("A")).removeRecursively());
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.lastResult, RootScan::Result::Offline);
    EXPECT_FALSE(m_store.isOnline(m_bench.musicRoot));
    EXPECT_EQ(m_store.songs().size(), 1);
}

TEST_F(ScannerTest, TakesAnEmptyRootThatWasAlwaysEmpty)
{
    m_bench.scanMusic();
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.lastResult, RootScan::Result::Complete);
    EXPECT_TRUE(m_store.isOnline(m_bench.musicRoot));
}

TEST_F(ScannerTest, EndsOverDamagedFilesAndPipes)
{
    constexpr unsigned Damaged = 40;
    const QStringList formats = SampleClips::soundFormats();
    for (unsigned seed = 0; seed < Damaged; ++seed) {
        const QString format = formats.at(int(seed) % formats.size());
        SampleClips::write(m_bench.path(QString("A/%1.%2").arg(seed).arg(format)),
                           SampleClips::damaged(SampleClips::bytes(format), seed));
    }
    ASSERT_EQ(::mkfifo(m_bench.path("A/pipe.mp3").toUtf8().constData(), 0600), 0);
    m_bench.scanMusic();
    EXPECT_EQ(m_store.songs().size(), int(Damaged));
    for (const ScannedSong &song : m_store.songs())
        EXPECT_FALSE(song.title.isEmpty());
}

TEST_F(ScannerTest, ReadsTheLengthOfVideosOnce)
{
    SampleClips::copy("mkv", m_bench.path("A/film.mkv"));
    m_bench.scanVideo();
    ASSERT_EQ(m_store.videos().size(), 1);
    EXPECT_EQ(m_bench.reader->takeOpened().size(), 1);
    SampleClips::write(m_bench.path("A/film.txt"), "changes the folder");
    m_bench.scanVideo();
    EXPECT_TRUE(m_bench.reader->takeOpened().isEmpty());
    EXPECT_EQ(m_store.videos().size(), 1);
}

TEST_F(ScannerTest, RebuildsFromNothing)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    (void)m_bench.reader->takeOpened();
    m_bench.sound("A/stuck.mp3");
    m_bench.finished = 0;
    m_bench.scanner->rebuild(m_bench.music());
    ASSERT_EVENTUALLY(m_bench.reader->held() == 1);
    EXPECT_FALSE(m_bench.scanner->isIdle());
    m_bench.reader->release();
    ASSERT_TRUE(m_bench.waitForEnd());
    EXPECT_EQ(m_store.clears(), 1);
    EXPECT_EQ(m_bench.reader->takeOpened().size(), 2);
    EXPECT_EQ(m_store.songs().size(), 2);
}

TEST_F(ScannerTest, ARebuildKeepsAllOfARootThatIsNotThere)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    const QString root = m_bench.root();
    ASSERT_TRUE(QDir().rename(root, root + "-gone"));
    const auto rebuild = [this] {
        m_bench.finished = 0;
        m_bench.scanner->rebuild(m_bench.music());
        ASSERT_TRUE(m_bench.waitForEnd());
        EXPECT_EQ(m_bench.lastResult, RootScan::Result::Offline);
        EXPECT_EQ(m_store.clears(), 0);
        EXPECT_EQ(m_store.songs().size(), 1);
    };
    rebuild();
    // A mount point that nothing is mounted on.
    ASSERT_TRUE(QDir().mkpath(root));
    rebuild();
    ASSERT_TRUE(QDir().rmdir(root));
    ASSERT_TRUE(QDir().rename(root + "-gone", root));
}

TEST_F(ScannerTest, ARootThatEmptiesAfterItsRebuildIsNotTakenForEmpty)
{
    m_bench.sound("A/one.mp3");
    m_bench.scanMusic();
    ASSERT_TRUE(m_store.clearForRebuild(m_bench.musicRoot));
    ASSERT_TRUE(QDir(m_bench.path("A")).removeRecursively());
    m_bench.scanMusic();
    EXPECT_EQ(m_bench.lastResult, RootScan::Result::Offline);
}

TEST(ScannerPoolTest, GoesOnPastAFileThatIsNeverReadToItsEnd)
{
    TestLog::expectWarning(QRegularExpression("\\[scan\\] given up:"));
    ProbePool::Limits limits;
    limits.workers = 1;
    limits.perFile = std::chrono::milliseconds(50);
    limits.grace = std::chrono::milliseconds(50);
    ScanBench bench(limits);
    bench.sound("A/stuck.mp3");
    bench.sound("B/fine.mp3");
    bench.scanMusic();
    EXPECT_EQ(bench.lastResult, RootScan::Result::Complete);
    EXPECT_EQ(bench.store.song(bench.path("A/stuck.mp3")).title, "stuck");
    EXPECT_EQ(bench.store.song(bench.path("B/fine.mp3")).title, "Tone");
    EXPECT_EQ(bench.scanner->counts().stuckFiles, 1);
}

TEST(ScannerPoolTest, TakesARootThatNeverAnswersForOffline)
{
    TestLog::expectWarning(QRegularExpression("\\[scan\\] given up:|does not answer"));
    ProbePool::Limits limits;
    limits.workers = 8;
    limits.perFile = std::chrono::milliseconds(20);
    limits.grace = std::chrono::milliseconds(20);
    ScanBench bench(limits);
    for (int i = 0; i < 40; ++i)
        bench.sound(QString("A/stuck%1.mp3").arg(i));
    bench.scanMusic();
    EXPECT_EQ(bench.lastResult, RootScan::Result::Offline);
    EXPECT_FALSE(bench.store.isOnline(bench.musicRoot));
    EXPECT_TRUE(bench.store.songs().isEmpty());
}

TEST(ScannerPoolTest, IsCancelledWhileAFileIsRead)
{
    ProbePool::Limits limits;
    limits.workers = 1;
    ScanBench bench(limits);
    bench.sound("A/first.mp3");
    bench.sound("B/stuck.mp3");
    bench.sound("C/third.mp3");
    bench.scanner->scan(bench.music());
    ASSERT_EVENTUALLY(bench.reader->held() == 1);
    bench.scanner->cancel();
    ASSERT_TRUE(bench.waitForEnd());
    EXPECT_EQ(bench.reader->held(), 1);
    EXPECT_EQ(bench.lastResult, RootScan::Result::Cancelled);
    EXPECT_EQ(bench.store.finishedScans(), 0);
    EXPECT_EQ(bench.store.song(bench.path("B/stuck.mp3")).path, "");
    // What is left is taken up by the next scan.
    bench.reader->release();
    bench.scanMusic();
    EXPECT_EQ(bench.store.songs().size(), 3);
    EXPECT_EQ(bench.store.finishedScans(), 1);
}

TEST(ScannerPoolTest, QueuesAFolderOnce)
{
    ProbePool::Limits limits;
    limits.workers = 1;
    ScanBench bench(limits);
    bench.sound("A/stuck.mp3");
    bench.scanner->scan(bench.music());
    ASSERT_EVENTUALLY(bench.reader->held() == 1);
    bench.scanner->scan(bench.music());
    bench.scanner->scan(bench.music());
    bench.reader->release();
    ASSERT_TRUE(bench.waitForEnd());
    EXPECT_EQ(bench.store.finishedScans(), 2);
}

TEST(ScannerPoolTest, AFolderThatChangesItsKindDuringItsScanIsReadAnewByThatKind)
{
    ProbePool::Limits limits;
    limits.workers = 1;
    ScanBench bench(limits);
    SampleClips::write(bench.path("A/stuck.mkv"), "film");
    QVector<Scanner::Target> targets{{bench.store.root(bench.videoRoot), false}};
    bench.scanner->scan(targets);
    ASSERT_EVENTUALLY(bench.reader->held() == 1);
    // An update waits when the kind changes, and it is the last that is asked for.
    bench.scanner->scan(targets);
    targets.first().root.scraperType = "avScraper";
    bench.scanner->scan(targets);
    bench.reader->release();
    ASSERT_TRUE(bench.waitForEnd());
    EXPECT_EQ(bench.store.finishedScans(), 2);
    ASSERT_EQ(bench.store.videos().size(), 1);
    EXPECT_EQ(bench.store.videos().first().kind, ScannedVideo::Kind::Adult);
}

TEST(ScannerPoolTest, DropsAFolderThatLeftTheLibrary)
{
    ProbePool::Limits limits;
    limits.workers = 1;
    ScanBench bench(limits);
    bench.sound("A/stuck.mp3");
    bench.scanner->scan(bench.music());
    ASSERT_EVENTUALLY(bench.reader->held() == 1);
    bench.scanner->keepOnly({bench.videoRoot});
    ASSERT_TRUE(bench.waitForEnd());
    EXPECT_EQ(bench.lastResult, RootScan::Result::Cancelled);
}

constexpr char TwoTracks[] = R"(TITLE "Live"
PERFORMER "Band"
FILE "ALBUM.wav" WAVE
  TRACK 01 AUDIO
    TITLE "One"
    INDEX 01 00:00:00
  TRACK 02 AUDIO
    PERFORMER "Guest"
    INDEX 01 00:00:15
)";

TEST(ScannerCueTest, ListsTheTracksOfASheetInsteadOfItsSoundFile)
{
    ScanBench bench;
    bench.sound("A/album.flac", "flac");
    bench.sound("A/other.mp3");
    SampleClips::write(bench.path("A/album.cue"), TwoTracks);
    SampleClips::write(bench.path("A/broken.cue"), "no sheet");
    bench.scanMusic();
    const QVector<ScannedSong> songs = bench.store.songs();
    ASSERT_EQ(songs.size(), 3);
    EXPECT_EQ(songs[0].path, bench.path("A/album.cue"));
    EXPECT_EQ(songs[0].cuePath, bench.path("A/album.flac"));
    EXPECT_EQ(songs[0].track, 1);
    EXPECT_EQ(songs[0].title, "One");
    EXPECT_EQ(songs[0].artist, "Band");
    EXPECT_EQ(songs[0].runtimeMs, 200);
    EXPECT_EQ(songs[1].track, 2);
    EXPECT_EQ(songs[1].title, "02");
    EXPECT_EQ(songs[1].artist, "Guest");
    EXPECT_EQ(songs[1].album, "Live");
    EXPECT_EQ(songs[1].genre, "Rock");
    EXPECT_NEAR(songs[1].runtimeMs, 200, 120);
    EXPECT_EQ(songs[2].path, bench.path("A/other.mp3"));
    EXPECT_EQ(bench.reader->takeOpened().size(), 2);
}

} // namespace
