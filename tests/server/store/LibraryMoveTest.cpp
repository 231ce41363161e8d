// Files that look the same, with one size and one time, and change their places together.
#include "StoreFixture.h"

#include "store/MovedFiles.h"

#include <functional>

namespace {

constexpr qint64 kDayMs = 24LL * 60 * 60 * 1000;

struct Song {
    const char *name;
    const char *title;
};

class LibraryMoveTest : public StoreFixture {
protected:
    using Folders = QVector<ScannedFolder>;
    struct Way {
        const char *how;
        std::function<bool(LibraryMoveTest &, const ScannedFolder &, const ScannedFolder &)> move;
    };

    // How a scan may come upon a move: from and to are the folders as they are found now.
    static const QVector<Way> &ways()
    {
        static const QVector<Way> all{
            {"in one call",
             [](LibraryMoveTest &test, const ScannedFolder &from, const ScannedFolder &to) {
                 return test.scans->store({from, to});
             }},
            {"the old place first",
             [](LibraryMoveTest &test, const ScannedFolder &from, const ScannedFolder &to) {
                 return test.store(from) && test.store(to);
             }},
            {"the new place first",
             [](LibraryMoveTest &test, const ScannedFolder &from, const ScannedFolder &to) {
                 return test.store(to) && test.store(from);
             }},
            {"the new place first, then the old folder is gone",
             [](LibraryMoveTest &test, const ScannedFolder &from, const ScannedFolder &to) {
                 return test.store(to) && test.scans->forgetFolders(from.pathId, {from.path});
             }},
        };
        return all;
    }

    ScannedFolder songs(const QString &path, const QVector<Song> &found) const
    {
        ScannedFolder result = folder(musicRoot, path);
        for (const Song &one : found) {
            result.songs << song(path + "/" + one.name, one.title, "Artist", "Album");
            result.songs.last().stamp = {4096, 1600000000000};
        }
        return result;
    }

    // The ids by title; a title that stands twice fails.
    QHash<QString, int> ids() const
    {
        QHash<QString, int> result;
        const QVector<SongRecord> rows = music->songs(everything()).rows;
        for (const SongRecord &row : rows) {
            EXPECT_FALSE(result.contains(row.title)) << qPrintable(row.title);
            result.insert(row.title, row.idFile);
        }
        return result;
    }
};

} // namespace

TEST_F(LibraryMoveTest, SongsOfOneSizeAndTimeAreKnownByNameOrTags)
{
    const struct {
        const char *how;
        QVector<Song> from;
        QVector<Song> to;
        QStringList kept; // titles that keep their ids
    } rows[] = {
        {"names are kept",
         {{"1.mp3", "One"}, {"2.mp3", "Two"}},
         {{"1.mp3", "One"}, {"2.mp3", "Two"}},
         {"One", "Two"}},
        {"names are exchanged, tags tell",
         {{"1.mp3", "One"}, {"2.mp3", "Two"}},
         {{"1.mp3", "Two"}, {"2.mp3", "One"}},
         {"One", "Two"}},
        {"names are new, tags tell",
         {{"1.mp3", "One"}, {"2.mp3", "Two"}},
         {{"eins.mp3", "One"}, {"zwei.mp3", "Two"}},
         {"One", "Two"}},
        {"one of two was deleted", {{"1.mp3", "One"}, {"2.mp3", "Two"}}, {{"2.mp3", "Two"}}, {"Two"}},
        {"one of two was deleted, the other renamed",
         {{"1.mp3", "One"}, {"2.mp3", "Two"}},
         {{"zwei.mp3", "Two"}},
         {"Two"}},
        {"a stranger under a known name", {{"1.mp3", "One"}, {"2.mp3", "Two"}}, {{"1.mp3", "Three"}}, {}},
        {"a stranger beside a moved one",
         {{"1.mp3", "One"}, {"2.mp3", "Two"}},
         {{"1.mp3", "One"}, {"3.mp3", "Three"}},
         {"One"}},
    };
    int serial = 0;
    for (const auto &row : rows) {
        for (const Way &way : ways()) {
            SCOPED_TRACE(testing::Message() << row.how << ", " << way.how);
            const QString place = QString("/music/%1").arg(++serial);
            ASSERT_TRUE(store(songs(place, row.from)));
            const QHash<QString, int> before = ids();
            ASSERT_EQ(before.size(), row.from.size());
            for (const int id : before)
                ASSERT_TRUE(music->setLiked(id, true));
            now += kDayMs;
            const ScannedFolder target = songs(place + "x", row.to);
            EXPECT_TRUE(way.move(*this, folder(musicRoot, place), target));
            const QHash<QString, int> after = ids();
            EXPECT_EQ(after.size(), row.to.size());
            for (auto song = after.begin(); song != after.end(); ++song) {
                SCOPED_TRACE(qPrintable(song.key()));
                const bool isKept = row.kept.contains(song.key());
                if (isKept)
                    EXPECT_EQ(song.value(), before.value(song.key()));
                else
                    EXPECT_FALSE(before.values().contains(song.value()));
                EXPECT_EQ(music->song(song.value()).liked, isKept);
                EXPECT_TRUE(music->song(song.value()).path.startsWith(place + "x/"));
            }
            // What is missing for too long is dropped, so that the rows of the table don't meet.
            ASSERT_TRUE(scans->forgetFolders(musicRoot, {target.path}));
            now += 31 * kDayMs;
            scans->finishScan(musicRoot);
        }
    }
}

TEST_F(LibraryMoveTest, WhatIsLeftOverOfOneLookIsNotTakenForEachOther)
{
    ASSERT_TRUE(store(songs("/music/a", {{"1.mp3", "One"}, {"2.mp3", "Two"}})));
    const QHash<QString, int> before = ids();
    now += kDayMs;
    ASSERT_TRUE(store(folder(musicRoot, "/music/a")));
    ASSERT_TRUE(store(songs("/music/b", {{"1.mp3", "One"}})));
    ASSERT_TRUE(store(songs("/music/c", {{"3.mp3", "Three"}})));
    EXPECT_EQ(ids().value("One"), before.value("One"));
    EXPECT_NE(ids().value("Three"), before.value("Two"));
    ASSERT_TRUE(store(songs("/music/d", {{"2.mp3", "Two"}})));
    EXPECT_EQ(ids().value("Two"), before.value("Two"));
}

TEST_F(LibraryMoveTest, SongsThatAreAlikeInEverythingAreTakenForNew)
{
    int serial = 0;
    for (const Way &way : ways()) {
        SCOPED_TRACE(way.how);
        const QString place = QString("/music/%1").arg(++serial);
        ScannedFolder from = songs(place, {{"1.mp3", "Same"}, {"2.mp3", "Same"}});
        ASSERT_TRUE(store(from));
        QVector<int> before;
        for (const SongRecord &row : music->songs(everything()).rows)
            before << row.idFile;
        ASSERT_EQ(before.size(), 2);
        now += kDayMs;
        const ScannedFolder target = songs(place + "x", {{"a.mp3", "Same"}, {"b.mp3", "Same"}});
        EXPECT_TRUE(way.move(*this, folder(musicRoot, place), target));
        const QVector<SongRecord> after = music->songs(everything()).rows;
        EXPECT_EQ(after.size(), 2);
        for (const SongRecord &row : after)
            EXPECT_FALSE(before.contains(row.idFile));
        ASSERT_TRUE(scans->forgetFolders(musicRoot, {target.path}));
        now += 31 * kDayMs;
        scans->finishScan(musicRoot);
    }
}

TEST_F(LibraryMoveTest, SongsOfOneNameFromSeveralFoldersAreKnownByTheirTags)
{
    ASSERT_TRUE(
        scans->store({songs("/music/a", {{"01.mp3", "One"}}), songs("/music/b", {{"01.mp3", "Two"}})}));
    const QHash<QString, int> before = ids();
    now += kDayMs;
    ASSERT_TRUE(
        scans->store({folder(musicRoot, "/music/a"), folder(musicRoot, "/music/b"),
                      songs("/music/c", {{"01.mp3", "Two"}}), songs("/music/d", {{"01.mp3", "One"}})}));
    EXPECT_EQ(ids(), before);
    EXPECT_EQ(music->song(before.value("One")).path, QString("/music/d/01.mp3"));
}

TEST_F(LibraryMoveTest, ASongMovedTwiceByScansWithoutAnEndIsKnownAmongOthersOfItsLook)
{
    ASSERT_TRUE(store(songs("/music/a", {{"1.mp3", "One"}, {"2.mp3", "Two"}})));
    const QHash<QString, int> before = ids();
    ASSERT_TRUE(music->setLiked(before.value("Two"), true));
    now += kDayMs;
    ASSERT_TRUE(store(songs("/music/b", {{"1.mp3", "One"}, {"2.mp3", "Two"}})));
    now += kDayMs;
    ASSERT_TRUE(store(songs("/music/c", {{"1.mp3", "One"}, {"2.mp3", "Two"}})));
    ASSERT_TRUE(scans->forgetFolders(musicRoot, {"/music/a", "/music/b"}));
    EXPECT_EQ(ids(), before);
    EXPECT_TRUE(music->song(before.value("Two")).liked);
    EXPECT_FALSE(music->song(before.value("One")).liked);
}

TEST_F(LibraryMoveTest, VideosOfOneSizeAndTimeAreKnownByNameOrTitle)
{
    const struct {
        const char *how;
        QVector<QPair<QString, QString>> to; // path and title
        QStringList kept;
    } rows[] = {
        {"names are kept, titles come from other folders",
         {{"/films/x/one.mkv", "Uno"}, {"/films/x/two.mkv", "Due"}},
         {"/films/x/one.mkv", "/films/x/two.mkv"}},
        {"names are new, titles tell",
         {{"/films/y/a.mkv", "Uno"}, {"/films/y/b.mkv", "Due"}},
         {"/films/y/a.mkv", "/films/y/b.mkv"}},
        {"one of two is another film",
         {{"/films/w/a.mkv", "Uno"}, {"/films/w/c.mkv", "Altro"}},
         {"/films/w/a.mkv"}},
        {"nothing tells", {{"/films/z/e.mkv", "Tre"}, {"/films/z/d.mkv", "Quattro"}}, {}},
    };
    ScannedFolder from = folder(videoRoot, "/films/start");
    from.videos << film("/films/start/one.mkv", "One") << film("/films/start/two.mkv", "Two");
    for (ScannedVideo &video : from.videos)
        video.stamp = {4096, 1600000000000};
    ASSERT_TRUE(store(from));
    QVector<int> before{idOfFilm("One"), idOfFilm("Two")};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.how);
        now += kDayMs;
        ScannedFolder to = folder(videoRoot, QFileInfo(row.to.first().first).path());
        for (const auto &[path, title] : row.to) {
            to.videos << film(path, title);
            to.videos.last().stamp = {4096, 1600000000000};
        }
        ASSERT_TRUE(scans->store({folder(videoRoot, from.path), to}));
        QVector<int> after;
        for (int index = 0; index < row.to.size(); ++index) {
            const int id = idOfFilm(row.to.at(index).second);
            EXPECT_EQ(videos->movie(id).path, row.to.at(index).first);
            if (row.kept.contains(row.to.at(index).first))
                EXPECT_EQ(id, before.at(index));
            else
                EXPECT_FALSE(before.contains(id));
            after << id;
        }
        before = after;
        from = to;
    }
}

TEST_F(LibraryMoveTest, DiscFoldersAreKnownByTheNamesOfTheirFolders)
{
    // As a scan finds them: each in a folder of its own, with the structure as what stands on disk.
    const auto disc = [this](const QString &path, const QString &title) {
        ScannedFolder result = folder(videoRoot, path);
        ScannedVideo video = film(path + "/folder.ifo", title);
        video.realPath = path + "/VIDEO_TS";
        video.stamp = {4096, 1600000000000};
        result.videos << video;
        return result;
    };
    ASSERT_TRUE(scans->store({disc("/films/A", "A"), disc("/films/B", "B")}));
    const int a = idOfFilm("A");
    const int b = idOfFilm("B");
    now += kDayMs;
    ASSERT_TRUE(scans->store({disc("/films/old/B", "B, old"), disc("/films/old/A", "A, old")}));
    ASSERT_TRUE(scans->forgetFolders(videoRoot, {"/films/A", "/films/B"}));
    EXPECT_EQ(idOfFilm("A, old"), a);
    EXPECT_EQ(idOfFilm("B, old"), b);
    // One alone is known under any name.
    now += kDayMs;
    ASSERT_TRUE(scans->forgetFolders(videoRoot, {"/films/old/A"}));
    ASSERT_TRUE(store(disc("/films/C", "C")));
    EXPECT_EQ(idOfFilm("C"), a);
}

TEST(MovedFiles, MoreThanAreToldApartStayUnknown)
{
    const auto rows = [](int count, int firstId) {
        QVector<FileRow> result;
        for (int index = 0; index < count; ++index) {
            FileRow row;
            row.id = firstId + index;
            row.name = QString::number(index);
            row.added = firstId;
            row.seen = firstId;
            result << row;
        }
        return result;
    };
    const MovedFiles moved(MovedFiles::Witness::File);
    const int most = MovedFiles::kMost;
    const auto look = MovedFiles::Look::Rare;
    EXPECT_EQ(moved.find(rows(most, 1), rows(most, 1000), look).size(), most);
    EXPECT_TRUE(moved.find(rows(most + 1, 1), rows(most, 1000), look).isEmpty());
    EXPECT_TRUE(moved.find(rows(most, 1), rows(most + 1, 1000), look).isEmpty());
}
