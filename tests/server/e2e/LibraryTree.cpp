#include "LibraryTree.h"

#include "support/SampleClips.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

constexpr char AlphaNfo[] = R"(<movie><title>Alpha Told</title><year>2001</year><rating>7.5</rating>
<runtime>95</runtime><director>Dora Director</director><actor><name>Ann Actor</name></actor>
<actor><name>Bob Actor</name></actor><genre>Drama</genre><genre>Comedy</genre><country>France</country>
<plot>What happens in it.</plot><set><name>Greek Saga</name><overview>All of them.</overview></set></movie>)";
constexpr char BetaNfo[] = R"(<movie><title>Beta</title><year>2002</year><rating>9.1</rating>
<genre>Drama</genre><country>Japan</country><set>Greek Saga</set></movie>)";
constexpr char ShowNfo[] = R"(<tvshow><title>Foo Told</title><year>2010</year><rating>8.2</rating>
<genre>Crime</genre><director>Sam Shower</director><actor><name>Eve Actor</name></actor>
<country>Norway</country><plot>About the show.</plot></tvshow>)";
constexpr char EpisodeNfo[] = R"(<episodedetails><title>The First</title><season>1</season>
<episode>1</episode><director>Eli Episode</director><actor><name>Guy Guest</name></actor>
<plot>How it begins.</plot><aired>2010-09-01</aired></episodedetails>)";
constexpr char LiveCue[] = R"(PERFORMER "The Stage"
TITLE "Live at Home"
REM GENRE Folk
REM DATE 1977
FILE "live.flac" WAVE
  TRACK 01 AUDIO
    TITLE "Opening"
    INDEX 01 00:00:00
  TRACK 02 AUDIO
    TITLE "Middle"
    INDEX 01 00:00:10
  TRACK 03 AUDIO
    TITLE "Closing"
    PERFORMER "The Guest"
    INDEX 01 00:00:20
)";

} // namespace

LibraryTree::~LibraryTree()
{
    // QTemporaryDir leaves behind what has no name in its own encoding.
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(m_folder.path().toStdString(), error))
        std::filesystem::remove_all(entry.path(), error);
    EXPECT_FALSE(error) << error.message();
}

void LibraryTree::clip(const QString &path) const
{
    SampleClips::copy(QFileInfo(path).suffix(), full(path));
}

void LibraryTree::text(const QString &path, const QByteArray &content) const
{
    SampleClips::write(full(path), content);
}

void LibraryTree::picture(const QString &path, unsigned int colour) const
{
    text(path, SampleClips::png(colour));
}

void LibraryTree::sound(const QString &path, const SoundFile &tags) const
{
    tags.write(full(path));
}

bool LibraryTree::rename(const QString &from, const QString &to) const
{
    return QDir().mkpath(QFileInfo(full(to)).path()) && QFile::rename(full(from), full(to));
}

void LibraryTree::makeFilms() const
{
    for (const char *path : {"Alpha (2001)/Alpha (2001).mkv", "Beta (2002)/Beta (2002).mp4",
                             "Gamma (2003)/Gamma (2003) - 1080p.mkv", "Gamma (2003)/Gamma (2003) - 720p.mkv",
                             "Delta (2004)/Delta cd1.avi", "Delta (2004)/Delta cd2.avi",
                             "Epsilon (2005)/Epsilon (2005).mkv", "Epsilon (2005)/Epsilon (2005)-trailer.mkv",
                             "Epsilon (2005)/sample.mkv", "Epsilon (2005)/extras/making of.mkv"})
        clip(QStringLiteral("films/") + path);
    text("films/Alpha (2001)/movie.nfo", AlphaNfo);
    text("films/Beta (2002)/Beta (2002).nfo", BetaNfo);
    picture("films/Alpha (2001)/poster.png", 0xff0000);
    picture("films/Alpha (2001)/fanart.png", 0x00ff00);
    text("films/Zeta (2006).iso", QByteArray(4096, '\0'));
    text("films/Eta (2007)/VIDEO_TS/VIDEO_TS.IFO", "DVDVIDEO-VMG");
    text("films/Eta (2007)/VIDEO_TS/VTS_01_1.VOB", QByteArray(2048, '\0'));
    text("films/Theta (2008)/BDMV/index.bdmv", "INDX0200");
    text("films/Theta (2008)/BDMV/STREAM/00000.m2ts", QByteArray(2048, '\0'));
}

void LibraryTree::makeShows() const
{
    for (const char *path : {"Foo (2010)/Season 01/Foo S01E01.mkv", "Foo (2010)/Season 01/Foo S01E02-E03.mkv",
                             "Foo (2010)/Season 02/Foo S02E01 - Again.mkv",
                             "Foo (2010)/Specials/Foo S00E01.mkv", "Talk/Season 2012/Talk 2012-05-12.mkv"})
        clip(QStringLiteral("shows/") + path);
    text("shows/Foo (2010)/tvshow.nfo", ShowNfo);
    text("shows/Foo (2010)/Season 01/Foo S01E01.nfo", EpisodeNfo);
    picture("shows/Foo (2010)/poster.png", 0x0000ff);
    picture("shows/Foo (2010)/fanart.png", 0x00ffff);
    picture("shows/Foo (2010)/season01-poster.png", 0x80ffff);
    picture("shows/Foo (2010)/Season 01/Foo S01E01-thumb.png", 0x808080);
}

void LibraryTree::makeHome() const
{
    clip("home/IMG_1234.mp4");
    clip("home/Cats/Playing cats.mkv");
}

void LibraryTree::makeAdult() const
{
    clip("adult/Film (2010).mkv");
    clip("adult/Foo S01E02.mkv");
}

void LibraryTree::makeMusic() const
{
    const QByteArray cover = SampleClips::png(0x123456);
    sound("music/Band/First/01.mp3", {"One", "Band", "First", {}, "Rock", 1999, 1, cover});
    sound("music/Band/First/02.mp3", {"Two", "Band", "First", {}, "Rock", 1999, 2, cover});
    sound("music/Band/First/03.mp3", {"Three", "Band", "First", {}, "Pop", 1999, 3, {}});
    sound("music/Other/Second/a.flac", {"Alone", "Other", "Second", {}, "Jazz", 2005, 1, {}});
    picture("music/Other/Second/folder.png", 0x654321);
    const QString various = "Various Artists";
    sound("music/Mix/1.ogg", {"From X", "X", "Mix", various, "Pop", 2010, 1, {}});
    sound("music/Mix/2.m4a", {"From Y", "Y", "Mix", various, "Pop", 2010, 2, {}});
    SoundFile().write(full("music/Live/live.flac"));
    text("music/Live/live.cue", LiveCue);
    SoundFile().write(full("music/Loose/untagged.mp3"));
}
