// What becomes of versions and parts when the file that stood for them goes, and when it comes.
#include "StoreFixture.h"

namespace {

constexpr qint64 kDayMs = 24LL * 60 * 60 * 1000;

class LibraryLeadTest : public StoreFixture {
protected:
    // The file and those that stand behind it, each of another size; the folder is that of the lead.
    ScannedFolder versions(const QStringList &names) const
    {
        ScannedFolder result = folder(videoRoot, "/films/a");
        for (const QString &name : names) {
            result.videos << film("/films/a/" + name + ".mkv", "A");
            result.videos.last().stamp.size += name.chopped(1).toInt();
            if (name != names.first())
                result.videos.last().leadPath = result.videos.first().path;
        }
        return result;
    }

    ScannedFolder disc(int number, bool isBehindFirst) const
    {
        const QString path = QString("/films/f/Disc %1").arg(number);
        ScannedFolder result = folder(videoRoot, path);
        result.videos << film(path + "/folder.ifo", "F");
        result.videos.last().realPath = path + "/VIDEO_TS";
        result.videos.last().stamp.size += number;
        if (isBehindFirst)
            result.videos.last().leadPath = "/films/f/Disc 1/folder.ifo";
        return result;
    }

    void choose(const QString &title, const QString &chosen)
    {
        Description description;
        description.title = chosen;
        ASSERT_TRUE(videos->matchMovie(idOfFilm(title), description, {}));
    }

    QString pathOf(const QString &title) const { return videos->movie(idOfFilm(title)).path; }
};

} // namespace

TEST_F(LibraryLeadTest, WhatAUserChoseStaysWithTheFilmWhenItsFirstVersionGoes)
{
    const QStringList rows[] = {{"720p"}, {"720p", "480p"}};
    for (const QStringList &left : rows) {
        ASSERT_TRUE(store(versions(QStringList("1080p") + left)));
        choose(titles(Role::Movies).first(), "Chosen");
        now += kDayMs;
        ASSERT_TRUE(store(versions(left)));
        EXPECT_EQ(titles(Role::Movies), QStringList("Chosen"));
        EXPECT_EQ(pathOf("Chosen"), QString("/films/a/720p.mkv"));
        // It comes back, is matched anew and goes again.
        now += kDayMs;
        ASSERT_TRUE(store(versions(QStringList("1080p") + left)));
        EXPECT_EQ(titles(Role::Movies), QStringList("Chosen"));
        EXPECT_EQ(pathOf("Chosen"), QString("/films/a/1080p.mkv"));
        choose("Chosen", "Chosen anew");
        now += kDayMs;
        ASSERT_TRUE(store(versions(left)));
        EXPECT_EQ(titles(Role::Movies), QStringList("Chosen anew"));
        ASSERT_TRUE(store(versions({})));
        now += 31 * kDayMs;
        scans->finishScan(videoRoot);
    }
}

TEST_F(LibraryLeadTest, ALeadThatIsMovedAwayKeepsItsMatchToo)
{
    ASSERT_TRUE(store(versions({"1080p", "720p"})));
    choose("A", "Chosen");
    const int id = idOfFilm("Chosen");
    now += kDayMs;
    ASSERT_TRUE(store(versions({"720p"})));
    now += kDayMs;
    ScannedFolder elsewhere = folder(videoRoot, "/films/b");
    elsewhere.videos << versions({"1080p"}).videos;
    elsewhere.videos[0].path = elsewhere.videos[0].realPath = "/films/b/1080p.mkv";
    ASSERT_TRUE(store(elsewhere));
    EXPECT_EQ(titles(Role::Movies), QStringList({"Chosen", "Chosen"}));
    EXPECT_EQ(videos->movie(id).path, QString("/films/b/1080p.mkv"));
}

TEST_F(LibraryLeadTest, ALaterPartStandsForTheFilmWhenTheFirstPartGoes)
{
    const struct {
        const char *how;
        QVector<ScannedFolder> later; // parts behind the first
        bool areReadAgain;            // by the same scan, before it misses the first part
    } rows[] = {
        {"unread", {disc(2, true), disc(3, true)}, false},
        {"read again", {disc(2, true)}, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.how);
        const QVector<ScannedFolder> all = QVector<ScannedFolder>{disc(1, false)} + row.later;
        ASSERT_TRUE(scans->store(all));
        ASSERT_EQ(videos->movies(Role::Movies, everything()).total, 1);
        choose(titles(Role::Movies).first(), "Chosen");
        now += kDayMs;
        if (row.areReadAgain) {
            ASSERT_TRUE(store(disc(2, false)));
        }
        ASSERT_TRUE(scans->forgetFolders(videoRoot, {"/films/f/Disc 1"}));
        EXPECT_EQ(titles(Role::Movies), QStringList("Chosen"));
        EXPECT_EQ(pathOf("Chosen"), QString("/films/f/Disc 2/folder.ifo"));
        EXPECT_EQ(videos->filesOf(idOfFilm("Chosen")).size(), row.later.size());
        // And behind it again.
        now += kDayMs;
        ASSERT_TRUE(scans->store(all));
        EXPECT_EQ(titles(Role::Movies), QStringList("Chosen"));
        EXPECT_EQ(pathOf("Chosen"), QString("/films/f/Disc 1/folder.ifo"));
        ASSERT_TRUE(scans->forgetFolders(videoRoot, {"/films/f"}));
        now += 31 * kDayMs;
        scans->finishScan(videoRoot);
    }
}

TEST_F(LibraryLeadTest, AVersionThatBecomesAFilmOfItsOwnTakesNothingAlong)
{
    ASSERT_TRUE(store(versions({"1080p", "720p"})));
    choose("A", "Chosen");
    now += kDayMs;
    ScannedFolder apart = versions({"1080p", "720p"});
    apart.videos[1].leadPath.clear();
    ASSERT_TRUE(store(apart));
    EXPECT_EQ(titles(Role::Movies), QStringList({"A", "Chosen"}));
}
