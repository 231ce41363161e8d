#include "player/PlaySourcePath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

PlaySourcePath plain()
{
    return {[](const QString &path) { return path; }, [](const QString &) { return QString(); }};
}

bool driveLettersRule()
{
    return QSysInfo::kernelType() == QLatin1String("winnt");
}

TEST(PlaySourcePath, DriveRootsReduceToTheirLetterInTheCaseTheyCame)
{
    const struct {
        const char *path;
        const char *reduced;
    } rows[] = {
        {"d:\\", "d"}, {"D:", "D"},      {"D:/", "D"},       {"D:\\\\", "D"},          {"d://", "d"},
        {"D", "D"},    {"D:/a", "D:/a"}, {"D:///", "D:///"}, {"D:/film/", "D:/film/"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(PlaySourcePath::reducedDriveRoot(row.path), row.reduced) << row.path;
}

TEST(PlaySourcePath, AShortFolderIsNoDriveOnASystemWithoutDriveLetters)
{
    if (driveLettersRule())
        GTEST_SKIP() << "drive letters rule here";
    for (const char *path : {"/tm/", "/a/", "a/", "ab:", "1:/", "//"})
        EXPECT_EQ(PlaySourcePath::reducedDriveRoot(path), path);
}

TEST(PlaySourcePath, NetworkSchemesGoInExactlyTheirCase)
{
    EXPECT_EQ(PlaySourcePath::withoutNetworkScheme("smb://server/a.mkv"), "//server/a.mkv");
    EXPECT_EQ(PlaySourcePath::withoutNetworkScheme("nfs:/export/a.mkv"), "/export/a.mkv");
    EXPECT_EQ(PlaySourcePath::withoutNetworkScheme("SMB://server/a.mkv"), "SMB://server/a.mkv");
    EXPECT_EQ(PlaySourcePath::withoutNetworkScheme("http://server/a.mkv"), "http://server/a.mkv");
}

TEST(PlaySourcePath, ACuePathCarriesItsTitleInFront)
{
    const struct {
        const char *path;
        const char *rest;
        int title;
    } rows[] = {
        {"3_/music/album.cue", "/music/album.cue", 3},
        {"12_/music/ALBUM.CUE", "/music/ALBUM.CUE", 12},
        {"_/music/album.cue", "_/music/album.cue", 0},
        {"/music/album.cue", "/music/album.cue", 0},
        // What stands before the first underscore is lost.
        {"/music/my_album.cue", "album.cue", 0},
        {"x_y_z.cue", "y_z.cue", 0},
        {"3_/films/a.mkv", "3_/films/a.mkv", -1},
        {"3_/music/cue", "3_/music/cue", -1},
    };
    for (const auto &row : rows) {
        QString path = row.path;
        EXPECT_EQ(PlaySourcePath::takeCueTitle(&path), row.title) << row.path;
        EXPECT_EQ(path, row.rest) << row.path;
    }
}

TEST(PlaySourcePath, AFileIsAFileUnderItsName)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("Film (2020).mkv");
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    const PlaySource source = plain().resolve(path);
    EXPECT_EQ(source.kind, PlaySource::File);
    EXPECT_EQ(source.path, path);
    EXPECT_EQ(source.displayName, "Film (2020).mkv");
    EXPECT_EQ(source.cueTitle, -1);
}

TEST(PlaySourcePath, AFolderIsAFolderUnderItsName)
{
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("Disc");
    for (const char *suffix : {"", "/"}) {
        const PlaySource source = plain().resolve(folder.filePath("Disc") + suffix);
        EXPECT_EQ(source.kind, PlaySource::Folder);
        EXPECT_EQ(source.displayName, "Disc");
    }
}

TEST(PlaySourcePath, AMissingPathIsNotTestedAhead)
{
    const PlaySource source = plain().resolve("/no/such/film.mkv");
    EXPECT_EQ(source.kind, PlaySource::Folder);
    EXPECT_EQ(source.displayName, "film.mkv");
}

TEST(PlaySourcePath, ABareLetterIsADiscNamedByItsDisc)
{
    const PlaySourcePath named(
        [](const QString &path) { return path; },
        [](const QString &drive) { return drive == "D" ? QString("HOLIDAY") : QString(); });
    const PlaySource known = named.resolve("D:/");
    EXPECT_EQ(known.kind, PlaySource::Disc);
    EXPECT_EQ(known.path, "D");
    EXPECT_EQ(known.displayName, "HOLIDAY");
    EXPECT_EQ(named.resolve("E:").displayName, "E");
}

TEST(PlaySourcePath, TheLibrarysFormOfThePathIsTakenBeforeTheCueRule)
{
    const PlaySourcePath library([](const QString &path) { return path + "/5_track.cue"; }, nullptr);
    const PlaySource source = library.resolve("smb:/share");
    EXPECT_EQ(source.path, "track.cue");
    EXPECT_EQ(source.cueTitle, 0);
}

TEST(PlaySourcePath, EmptyAndOneCharacterPathsAreHarmless)
{
    EXPECT_EQ(PlaySourcePath::reducedDriveRoot(QString()), QString());
    EXPECT_EQ(PlaySourcePath::reducedDriveRoot(":"), ":");
    EXPECT_EQ(plain().resolve(QString()).path, QString());
}

} // namespace
