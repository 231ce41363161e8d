#include "playcontrol/DropRule.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A disk of names: what is not in it does not exist.
struct ScriptedDisk {
    QMap<QString, DropRule::Found> entries;
    QMap<QString, DropRule::Listing> folders;
    QStringList discs;
    int looks{0};

    void file(const QString &path, bool isReadable = true)
    {
        entries.insert(path, {DropRule::Kind::File, isReadable});
    }
    void folder(const QString &path, const DropRule::Listing &listing, bool isReadable = true)
    {
        entries.insert(path, {DropRule::Kind::Folder, isReadable});
        folders.insert(path, listing);
    }
    [[nodiscard]] DropRule::Disk disk()
    {
        return {
            [this](const QString &path) {
                ++looks;
                return entries.value(path);
            },
            [this](const QString &path) { return discs.contains(path); },
            [this](const QString &folder, const std::function<bool()> &) { return folders.value(folder); }};
    }
};

QList<QUrl> urlsOf(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    return urls;
}

class DropRuleTest : public testing::Test {
protected:
    [[nodiscard]] DropRule::Outcome decide(const QStringList &paths, bool isPlaying = false)
    {
        return rule().decide(urlsOf(paths), isPlaying);
    }
    [[nodiscard]] DropRule rule(int most = DropRule::Most) { return DropRule(m_disk.disk(), most); }

    ScriptedDisk m_disk;
};

// Files and folders of the machine's own disk.
class DropRuleOnDiskTest : public testing::Test {
protected:
    QString file(const QString &name)
    {
        const QString path = m_folder.filePath(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        return path;
    }
    QString folder(const QString &name)
    {
        EXPECT_TRUE(QDir(m_folder.path()).mkpath(name));
        return m_folder.filePath(name);
    }
    [[nodiscard]] static DropRule::Outcome decide(const QStringList &paths, bool isPlaying = false)
    {
        return DropRule().decide(urlsOf(paths), isPlaying);
    }

    QTemporaryDir m_folder;
};

} // namespace

// ---- while dragging

TEST_F(DropRuleTest, MediaIsAcceptedByItsNameAlone)
{
    for (const char *name : {"/a.mkv", "/a.MP3", "/a.iso", "/a.m2ts"}) {
        EXPECT_TRUE(rule().accepts(urlsOf({QString::fromLatin1(name)}), false)) << name;
    }
    EXPECT_EQ(m_disk.looks, 0);
}

TEST_F(DropRuleTest, SubtitleIsAcceptedOnlyWhileSomethingPlays)
{
    for (const char *name : {"/a.srt", "/a.ASS", "/a.ssa", "/a.idx", "/a.sub", "/a.pgs"}) {
        EXPECT_TRUE(rule().accepts(urlsOf({QString::fromLatin1(name)}), true)) << name;
        EXPECT_FALSE(rule().accepts(urlsOf({QString::fromLatin1(name)}), false)) << name;
    }
}

TEST_F(DropRuleTest, FolderIsAccepted)
{
    m_disk.folder("/films", {});
    EXPECT_TRUE(rule().accepts(urlsOf({"/films"}), false));
}

TEST_F(DropRuleTest, LinksAndOtherFilesAreNotAccepted)
{
    m_disk.file("/a.txt");
    EXPECT_FALSE(
        rule().accepts({QUrl("http://example.org/film.mkv"), QUrl("ftp://example.org/a.mkv")}, true));
    EXPECT_FALSE(rule().accepts(urlsOf({"/a.txt", "/gone"}), true));
    EXPECT_FALSE(rule().accepts({}, true));
    EXPECT_FALSE(rule().accepts({QUrl()}, true));
}

TEST_F(DropRuleTest, DraggingTenThousandFilesLooksAtFewOfThem)
{
    QStringList paths;
    for (int i = 0; i < 10000; ++i)
        paths << QStringLiteral("/pictures/%1.jpg").arg(i);
    EXPECT_FALSE(rule().accepts(urlsOf(paths), true));
    EXPECT_LE(m_disk.looks, DropRule::MostLooks);
    m_disk.looks = 0;
    paths << "/pictures/film.mkv";
    EXPECT_TRUE(rule().accepts(urlsOf(paths), true));
    EXPECT_EQ(m_disk.looks, 0);
}

// ---- the outcome

TEST_F(DropRuleTest, FirstIsPlayedAndTheRestIsQueuedAsDropped)
{
    for (const char *path : {"/b.mkv", "/a.mp3", "/c.iso"})
        m_disk.file(path);
    const DropRule::Outcome outcome = decide({"/b.mkv", "/a.mp3", "/c.iso"});
    EXPECT_EQ(outcome.first, "/b.mkv");
    EXPECT_EQ(outcome.queue, QStringList({"/a.mp3", "/c.iso"}));
    EXPECT_TRUE(outcome.subtitles.isEmpty());
    EXPECT_TRUE(outcome.messages.isEmpty());
}

TEST_F(DropRuleTest, SubtitleAloneIsAddedToWhatPlays)
{
    m_disk.file("/a.srt");
    const DropRule::Outcome outcome = decide({"/a.srt"}, true);
    EXPECT_TRUE(outcome.first.isEmpty());
    EXPECT_EQ(outcome.subtitles, QStringList("/a.srt"));
    EXPECT_TRUE(outcome.messages.isEmpty());
}

TEST_F(DropRuleTest, SubtitleAloneIsRefusedWhileNothingPlays)
{
    m_disk.file("/a.srt");
    const DropRule::Outcome outcome = decide({"/a.srt"});
    EXPECT_TRUE(outcome.subtitles.isEmpty());
    EXPECT_EQ(outcome.messages, QStringList("The subtitle file \"a.srt\" can be added while a film plays."));
}

TEST_F(DropRuleTest, SubtitleBesideAFilmGoesWithIt)
{
    m_disk.file("/a.srt");
    m_disk.file("/film.mkv");
    m_disk.file("/cover.jpg");
    const DropRule::Outcome outcome = decide({"/a.srt", "/cover.jpg", "/film.mkv"});
    EXPECT_EQ(outcome.first, "/film.mkv");
    EXPECT_TRUE(outcome.queue.isEmpty());
    EXPECT_EQ(outcome.subtitles, QStringList("/a.srt"));
    // The picture beside the film is nobody's concern.
    EXPECT_TRUE(outcome.messages.isEmpty());
}

TEST_F(DropRuleTest, MissingFileIsNamed)
{
    EXPECT_EQ(decide({"/films/gone.mkv"}).messages, QStringList("The file \"gone.mkv\" does not exist."));
    EXPECT_EQ(decide({"/gone.mkv", "/too.mkv"}).messages,
              QStringList("2 files do not exist, the first is \"gone.mkv\"."));
}

TEST_F(DropRuleTest, UnreadableFileIsNamedAndTheOthersPlay)
{
    m_disk.file("/shut.mkv", false);
    m_disk.file("/open.mkv");
    const DropRule::Outcome outcome = decide({"/shut.mkv", "/open.mkv"});
    EXPECT_EQ(outcome.first, "/open.mkv");
    EXPECT_EQ(outcome.messages, QStringList("The file \"shut.mkv\" can't be read."));
}

TEST_F(DropRuleTest, UnreadableFolderIsNamed)
{
    m_disk.folder("/shut", {}, false);
    const DropRule::Outcome outcome = decide({"/shut"});
    EXPECT_TRUE(outcome.first.isEmpty());
    EXPECT_EQ(outcome.messages, QStringList("The folder \"shut\" can't be read."));
}

TEST_F(DropRuleTest, LinksAreRefusedByName)
{
    const DropRule::Outcome outcome = rule().decide({QUrl("http://example.org/film.mkv")}, false);
    EXPECT_TRUE(outcome.first.isEmpty());
    EXPECT_EQ(outcome.messages,
              QStringList("\"http://example.org/film.mkv\" is not a file on this computer."));
}

TEST_F(DropRuleTest, NameWithPlaceholdersStaysAsItIs)
{
    EXPECT_EQ(decide({"/100%1 %2.mkv"}).messages, QStringList("The file \"100%1 %2.mkv\" does not exist."));
    EXPECT_EQ(decide({"/%1 %2.mkv", "/b.mkv"}).messages,
              QStringList("2 files do not exist, the first is \"%1 %2.mkv\"."));
}

TEST_F(DropRuleTest, OtherFileIsNoMediaFile)
{
    m_disk.file("/letter.pdf");
    EXPECT_EQ(decide({"/letter.pdf"}).messages, QStringList("\"letter.pdf\" is not a media file."));
    EXPECT_EQ(decide({"/letter.pdf"}, true).messages, QStringList("\"letter.pdf\" is not a media file."));
}

TEST_F(DropRuleTest, NothingGivesNothing)
{
    const DropRule::Outcome outcome = decide({});
    EXPECT_TRUE(outcome.first.isEmpty());
    EXPECT_TRUE(outcome.messages.isEmpty());
}

TEST_F(DropRuleTest, DiscFolderIsOneSource)
{
    m_disk.folder("/disc", {{"a.mkv"}, {"BDMV"}});
    m_disk.discs << "/disc";
    const DropRule::Outcome outcome = decide({"/disc"});
    EXPECT_EQ(outcome.first, "/disc");
    EXPECT_TRUE(outcome.queue.isEmpty());
}

TEST_F(DropRuleTest, FolderIsItsMediaInNaturalOrder)
{
    m_disk.folder("/show", {{"Part 10.mkv", "part 2.mkv", "Part 1.mkv", "cover.jpg", "Part 1.srt"}, {}});
    const DropRule::Outcome outcome = decide({"/show"});
    EXPECT_EQ(outcome.first, "/show/Part 1.mkv");
    EXPECT_EQ(outcome.queue, QStringList({"/show/part 2.mkv", "/show/Part 10.mkv"}));
    EXPECT_TRUE(outcome.messages.isEmpty());
}

TEST_F(DropRuleTest, FoldersBelowAFolderFollowItsFilesAndThatIsAsDeepAsItGoes)
{
    m_disk.folder("/show", {{"intro.mkv"}, {"Season 10", "Season 2", "Disc"}});
    m_disk.folder("/show/Season 2", {{"E1.mkv"}, {"Extras"}});
    m_disk.folder("/show/Season 10", {{"E2.mkv", "E1.mkv"}, {}});
    m_disk.folder("/show/Season 2/Extras", {{"deep.mkv"}, {}});
    m_disk.folder("/show/Disc", {{}, {"BDMV"}});
    m_disk.discs << "/show/Disc";
    const DropRule::Outcome outcome = decide({"/show"});
    EXPECT_EQ(outcome.first, "/show/intro.mkv");
    EXPECT_EQ(outcome.queue, QStringList({"/show/Disc", "/show/Season 2/E1.mkv", "/show/Season 10/E1.mkv",
                                          "/show/Season 10/E2.mkv"}));
}

TEST_F(DropRuleTest, FolderWithNothingToPlayIsNamed)
{
    m_disk.folder("/docs", {{"a.pdf"}, {"more"}});
    m_disk.folder("/docs/more", {{"b.pdf"}, {}});
    EXPECT_EQ(decide({"/docs"}).messages,
              QStringList("There is nothing in the folder \"docs\" that can be played."));
    m_disk.file("/film.mkv");
    EXPECT_TRUE(decide({"/docs", "/film.mkv"}).messages.isEmpty());
}

TEST_F(DropRuleTest, MoreThanTheBoundIsLeftOutAndTold)
{
    QStringList paths;
    for (int i = 0; i < 5; ++i) {
        paths << QStringLiteral("/%1.mkv").arg(i);
        m_disk.file(paths.last());
    }
    const DropRule::Outcome outcome = rule(3).decide(urlsOf(paths), false);
    EXPECT_EQ(outcome.queue, QStringList({"/1.mkv", "/2.mkv"}));
    EXPECT_EQ(outcome.messages, QStringList("\"3.mkv\" and what follows was left out."));
}

TEST_F(DropRuleTest, ADropThatNobodyWaitsForEndsAtOnce)
{
    QStringList paths;
    for (int i = 0; i < 100; ++i)
        paths << QStringLiteral("/%1.mkv").arg(i);
    int asked = 0;
    (void)rule().decide(urlsOf(paths), false, [&asked] { return ++asked > 3; });
    EXPECT_EQ(m_disk.looks, 3);
}

// ---- on a disk

TEST_F(DropRuleOnDiskTest, BlurayAndDvdFoldersAndImagesAreSources)
{
    for (const char *name : {"bd/BDMV/CLIPINF", "bd/BDMV/PLAYLIST", "bd/BDMV/STREAM", "dvd/VIDEO_TS"})
        folder(name);
    const QString image = file("film.ISO");
    const QString bluray = m_folder.filePath("bd");
    const QString dvd = m_folder.filePath("dvd/VIDEO_TS");
    file("dvd/VIDEO_TS/VIDEO_TS.IFO");
    EXPECT_TRUE(DropRule().accepts(urlsOf({bluray}), false));
    const DropRule::Outcome outcome = decide({bluray, dvd, image});
    EXPECT_EQ(outcome.first, bluray);
    EXPECT_EQ(outcome.queue, QStringList({dvd, image}));
    EXPECT_TRUE(outcome.messages.isEmpty());
}

TEST_F(DropRuleOnDiskTest, MixedListIsSortedOut)
{
    file("show/b 2.mkv");
    file("show/b 10.mkv");
    file("show/.hidden.mkv");
    const DropRule::Outcome outcome = decide({file("notes.pdf"), m_folder.filePath("gone.mkv"),
                                              m_folder.filePath("show"), file("a.srt"), file("z.mp3")});
    EXPECT_EQ(outcome.first, m_folder.filePath("show/b 2.mkv"));
    EXPECT_EQ(outcome.queue, QStringList({m_folder.filePath("show/b 10.mkv"), m_folder.filePath("z.mp3")}));
    EXPECT_EQ(outcome.subtitles, QStringList(m_folder.filePath("a.srt")));
    EXPECT_EQ(outcome.messages, QStringList("The file \"gone.mkv\" does not exist."));
}

TEST_F(DropRuleOnDiskTest, FolderNamedLikeAFilmIsAFolder)
{
    const QString named = folder("film.mkv");
    EXPECT_EQ(decide({named}).messages,
              QStringList("There is nothing in the folder \"film.mkv\" that can be played."));
    file("film.mkv/film.mkv");
    EXPECT_EQ(decide({named}).first, named + "/film.mkv");
}

TEST_F(DropRuleOnDiskTest, LinkedFoldersBelowAFolderAreNotFollowed)
{
    const QString show = folder("show");
    ASSERT_TRUE(QFile::link(show, show + "/again"));
    file("show/a.mkv");
    const DropRule::Outcome outcome = decide({show});
    EXPECT_EQ(outcome.first, show + "/a.mkv");
    EXPECT_TRUE(outcome.queue.isEmpty());
}

TEST_F(DropRuleOnDiskTest, LinkToNothingDoesNotExist)
{
    ASSERT_TRUE(QFile::link(m_folder.filePath("gone.mkv"), m_folder.filePath("link.mkv")));
    EXPECT_EQ(decide({m_folder.filePath("link.mkv")}).messages,
              QStringList("The file \"link.mkv\" does not exist."));
}

TEST_F(DropRuleOnDiskTest, TenThousandFilesAreSortedOutQuickly)
{
    QStringList paths;
    folder("many");
    for (int i = 0; i < 10000; ++i) {
        paths << m_folder.filePath(QStringLiteral("many/%1.mkv").arg(i));
        QFile out(paths.last());
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    }
    QElapsedTimer clock;
    clock.start();
    const DropRule::Outcome files = decide(paths);
    const DropRule::Outcome folder = decide({m_folder.filePath("many")});
    // Far more than it takes, far less than somebody would put up with.
    EXPECT_LT(clock.elapsed(), 5000) << clock.elapsed();
    EXPECT_EQ(files.queue.size(), 9999);
    EXPECT_EQ(folder.queue, files.queue);
    EXPECT_EQ(folder.first, files.first);
}
