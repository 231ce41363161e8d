#include "MemoryFolders.h"

#include "sidecars/ArtworkFiles.h"

#include <gtest/gtest.h>

namespace {

ArtworkFiles filesOf(const QStringList &names)
{
    QVector<FolderEntry> entries;
    for (const QString &name : names)
        entries.append({name, {1, 1}, name.endsWith('/')});
    return ArtworkFiles("/f", entries);
}

struct FolderRow {
    const char *file;
    const char *poster;
    const char *backdrop;
    const char *thumb;
};

TEST(ArtworkFilesTest, NamesTellTheUseInAFilmsFolder)
{
    const FolderRow rows[] = {
        {"poster.jpg", "/f/poster.jpg", "", ""},
        {"Folder.JPG", "/f/Folder.JPG", "", ""},
        {"cover.png", "/f/cover.png", "", ""},
        {"default.jpg", "/f/default.jpg", "", ""},
        {"movie.jpg", "/f/movie.jpg", "", ""},
        {"fanart.jpg", "", "/f/fanart.jpg", ""},
        {"backdrop.webp", "", "/f/backdrop.webp", ""},
        {"fanart2.jpg", "", "/f/fanart2.jpg", ""},
        {"backdrop-1.jpg", "", "/f/backdrop-1.jpg", ""},
        {"background.jpg", "", "/f/background.jpg", ""},
        {"landscape.jpg", "", "", "/f/landscape.jpg"},
        {"thumb.jpg", "", "", "/f/thumb.jpg"},
        {"poster.txt", "", "", ""},
        {"poster", "", "", ""},
        {"other.jpg", "", "", ""},
    };
    for (const FolderRow &row : rows) {
        const Artwork artwork = filesOf({row.file}).ofFolder();
        EXPECT_EQ(artwork.poster, row.poster) << row.file;
        EXPECT_EQ(artwork.backdrop, row.backdrop) << row.file;
        EXPECT_EQ(artwork.thumb, row.thumb) << row.file;
    }
}

TEST(ArtworkFilesTest, TheBetterNameAndTheJpegComeFirst)
{
    EXPECT_EQ(filesOf({"folder.jpg", "poster.png", "poster.jpg"}).ofFolder().poster, "/f/poster.jpg");
    EXPECT_EQ(filesOf({"fanart2.jpg", "fanart.jpg"}).ofFolder().backdrop, "/f/fanart.jpg");
}

TEST(ArtworkFilesTest, PicturesOfAFileBearItsName)
{
    const ArtworkFiles files =
        filesOf({"Film-Poster.jpg", "film-thumb.jpg", "Film-fanart.jpg", "Other.jpg", "poster.jpg"});
    EXPECT_EQ(files.ofFile("Film").poster, "/f/Film-Poster.jpg");
    EXPECT_EQ(files.ofFile("Film").thumb, "/f/film-thumb.jpg");
    EXPECT_EQ(files.ofFile("Film").backdrop, "/f/Film-fanart.jpg");
    EXPECT_EQ(files.ofFile("Other").poster, "/f/Other.jpg");
    EXPECT_EQ(files.ofFile("None").poster, "");
}

TEST(ArtworkFilesTest, SeasonsHavePicturesInTheirShowsFolder)
{
    const ArtworkFiles files = filesOf({"season01-poster.jpg", "season2.jpg", "season-specials-poster.jpg",
                                        "season-all-poster.jpg", "season01-fanart.jpg"});
    EXPECT_EQ(files.ofSeason(1).poster, "/f/season01-poster.jpg");
    EXPECT_EQ(files.ofSeason(1).backdrop, "/f/season01-fanart.jpg");
    EXPECT_EQ(files.ofSeason(2).poster, "/f/season2.jpg");
    EXPECT_EQ(files.ofSeason(0).poster, "/f/season-specials-poster.jpg");
    EXPECT_EQ(files.ofSeason(7).poster, "/f/season-all-poster.jpg");
}

TEST(ArtworkFilesTest, AFolderOfFurtherPicturesGivesTheBackdropWhereNothingElseDoes)
{
    const struct {
        QStringList files;
        const char *backdrop;
    } rows[] = {
        {{"extrafanart/fanart2.jpg", "extrafanart/fanart1.jpg"}, "/f/extrafanart/fanart1.jpg"},
        {{"ExtraFanArt/any name.png", "ExtraFanArt/a.txt"}, "/f/ExtraFanArt/any name.png"},
        {{"extrafanart/a.jpg", "backdrop-3.jpg"}, "/f/backdrop-3.jpg"},
        {{"extrafanart/a.mkv", "extrafanart/b.mp3"}, ""},
        {{"extrafanart/"}, ""},
        {{"extrafanart/deep/a.jpg"}, ""},
        {{"extrafanart.jpg"}, ""},
        {{"extrathumbs/thumb1.jpg"}, ""},
        {{"art work/a.jpg"}, ""},
    };
    for (const auto &row : rows) {
        MemoryFolders folders;
        for (const QString &file : row.files)
            folders.add("/f/" + file);
        EXPECT_EQ(ArtworkFiles("/f", folders.list("/f"), &folders).ofFolder().backdrop, row.backdrop)
            << qPrintable(row.files.first());
        EXPECT_EQ(ArtworkFiles("/f", folders.list("/f"), &folders).ofFolder().poster, "");
    }
}

TEST(ArtworkFilesTest, AlbumsAndArtists)
{
    EXPECT_EQ(filesOf({"Cover.jpg", "folder.jpg"}).albumCover(), "/f/Cover.jpg");
    EXPECT_EQ(filesOf({"FOLDER.JPEG"}).albumCover(), "/f/FOLDER.JPEG");
    EXPECT_EQ(filesOf({"back.jpg"}).albumCover(), "");
    EXPECT_EQ(filesOf({"artist.jpg", "folder.jpg"}).artistPicture(), "/f/artist.jpg");
}

TEST(ArtworkFilesTest, AFolderIsNoPicture)
{
    const ArtworkFiles files("/f", {{"poster.jpg", {}, true}});
    EXPECT_EQ(files.ofFolder().poster, "");
    EXPECT_FALSE(files.hasFilmArtwork());
    EXPECT_FALSE(filesOf({"folder.jpg"}).hasFilmArtwork());
    EXPECT_TRUE(filesOf({"fanart.jpg"}).hasFilmArtwork());
}

} // namespace
