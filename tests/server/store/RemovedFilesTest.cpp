// Files that a user took out of the library, with and without the file itself.
#include "StoreFixture.h"

#include <QFile>

#include <functional>

namespace {

class RemovedFilesTest : public StoreFixture {
protected:
    ScannedFolder films(const QStringList &titles, const QString &path = "/films") const
    {
        ScannedFolder result = folder(videoRoot, path);
        for (const QString &title : titles)
            result.videos << film(path + "/" + title + ".mkv", title);
        return result;
    }

    void takeOut(const QString &title, Removal removal = Removal::FromLibrary)
    {
        ASSERT_TRUE(videos->remove(idOfFilm(title), removal));
        ASSERT_FALSE(titles(Role::Movies).contains(title));
    }
};

} // namespace

TEST_F(RemovedFilesTest, AFileThatWasDeletedAndComesBackFromACopyIsTaken)
{
    ASSERT_TRUE(store(films({"A", "B"})));
    takeOut("A", Removal::WithFile);
    ASSERT_TRUE(store(films({"A", "B"})));
    EXPECT_EQ(titles(Role::Movies), QStringList({"A", "B"}));
}

TEST_F(RemovedFilesTest, AFileThatAScanNoLongerSawIsTakenAgain)
{
    const struct {
        const char *how;
        std::function<bool()> pass;
        bool isTaken;
    } rows[] = {
        {"seen all the time",
         [this] {
             return store(films({"A", "B"}, "/films/x"));
         },
         false},
        {"its folder without it", [this] { return store(films({"B"}, "/films/x")); }, true},
        {"its folder empty", [this] { return store(folder(videoRoot, "/films/x")); }, true},
        {"its folder gone", [this] { return scans->forgetFolders(videoRoot, {"/films/x"}); }, true},
        {"the folder above gone", [this] { return scans->forgetFolders(videoRoot, {"/films"}); }, true},
        {"another folder", [this] { return store(folder(videoRoot, "/films")); }, false},
        {"another folder gone", [this] { return scans->forgetFolders(videoRoot, {"/films/xy"}); }, false},
        {"songs in its folder", [this] { return store(folder(musicRoot, "/films/x")); }, false},
        {"folder of songs gone", [this] { return scans->forgetFolders(musicRoot, {"/films/x"}); }, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.how);
        ASSERT_TRUE(store(films({"A", "B"}, "/films/x")));
        takeOut("A");
        ASSERT_TRUE(row.pass());
        ASSERT_TRUE(store(films({"A", "B"}, "/films/x")));
        EXPECT_EQ(titles(Role::Movies).contains("A"), row.isTaken);
        // The next row begins anew.
        ASSERT_TRUE(store(folder(videoRoot, "/films/x")));
    }
}

TEST_F(RemovedFilesTest, ATrackOfASheetThatStaysOnDiskStaysOut)
{
    const QString path = data.filePath("disc.cue");
    QFile sheet(path);
    ASSERT_TRUE(sheet.open(QIODevice::WriteOnly));
    sheet.close();
    ScannedFolder both = folder(musicRoot, data.path());
    for (int track = 1; track <= 2; ++track) {
        both.songs << song(path, QString("Track %1").arg(track));
        both.songs.last().track = track;
    }
    ASSERT_TRUE(store(both));
    ASSERT_TRUE(music->removeSongs({idOfSong("Track 1")}, Removal::WithFile));
    ASSERT_TRUE(store(both));
    EXPECT_EQ(songTitles(), QStringList("Track 2"));
}
