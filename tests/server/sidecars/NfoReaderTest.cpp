#include "sidecars/NfoReader.h"

#include <gtest/gtest.h>

namespace {

using Kind = NfoRecord::Kind;

const QByteArray film =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<movie><title>First</title><title>Northern Light</title><originaltitle>Nordlicht</originaltitle>"
    "<sorttitle>Light</sorttitle><year>2010</year><premiered>2010-05-12</premiered>"
    "<runtime>123</runtime><plot>A plot &amp; more</plot><genre>Drama</genre><genre>War / Crime</genre>"
    "<country>Norway</country><director>A. One</director><director>B. Two</director>"
    "<actor><name>C. Three</name><role>X</role></actor><actor><name>D. Four</name></actor>"
    "<ratings><rating name=\"a\"><value>5</value></rating>"
    "<rating name=\"b\" default=\"true\"><value>7.4</value></rating></ratings>"
    "<uniqueid type=\"imdb\" default=\"true\">tt0123456</uniqueid><uniqueid type=\"tmdb\">77</uniqueid>"
    "<set><name>Saga</name><overview>All of it</overview></set></movie>";

NfoRecord only(const QByteArray &data)
{
    const QVector<NfoRecord> records = NfoReader::read(data);
    EXPECT_EQ(records.size(), 1);
    return records.value(0);
}

TEST(NfoReaderTest, AFilmIsReadWhole)
{
    const NfoRecord record = only(film);
    EXPECT_EQ(int(record.kind), int(Kind::Movie));
    const Description &told = record.description;
    EXPECT_EQ(told.title, "Northern Light"); // the last of repeated tags
    EXPECT_EQ(told.originalTitle, "Nordlicht");
    EXPECT_EQ(told.sortTitle, "Light");
    EXPECT_EQ(told.year, 2010);
    EXPECT_EQ(told.releaseDate, "2010-05-12");
    EXPECT_EQ(told.runtimeMinutes, 123);
    EXPECT_EQ(told.overview, "A plot & more");
    EXPECT_EQ(told.genre, "Drama, War, Crime");
    EXPECT_EQ(told.country, "Norway");
    EXPECT_EQ(told.director, "A. One, B. Two");
    EXPECT_EQ(told.cast, "C. Three, D. Four");
    EXPECT_EQ(told.rating, "7.4");
    EXPECT_EQ(told.identities.value("imdb"), "tt0123456");
    EXPECT_EQ(told.identities.value("tmdb"), "77");
    EXPECT_EQ(record.collection, "Saga");
    EXPECT_EQ(record.collectionOverview, "All of it");
}

TEST(NfoReaderTest, EveryCutKeepsWhatWasRead)
{
    int previous = 0;
    for (int length = 0; length <= film.size(); ++length) {
        const QVector<NfoRecord> records = NfoReader::read(film.left(length));
        const int told = records.isEmpty() ? 0 : records.first().description.identities.size();
        EXPECT_GE(told, previous) << length;
        previous = told;
    }
    EXPECT_EQ(previous, 2);
}

TEST(NfoReaderTest, WrongFormsAreRead)
{
    const QByteArray cases[] = {
        "\xef\xbb\xbf<movie><title>T\xc3\xa4</title></movie>",
        "<?xml version='1.0' encoding='UTF-16'?><movie><title>T\xc3\xa4</title></movie>",
        "<?xml version='1.0' encoding='utf-8'?><movie><title>T\xe4</title></movie>",
        "<?xml version='1.0' encoding='iso-8859-1'?><movie><title>T\xe4</title></movie>",
        "<?xml version='1.0' encoding='nonsense'?><movie><title>T\xc3\xa4</title></movie>",
        "\n\n  <?xml version='1.0'?>\n<movie><title>T\xc3\xa4</title></movie>",
        "<movie><title>T\xc3\xa4</title></movie>\nhttps://www.imdb.com/title/tt0123456/?a=1&b=2",
        "<movie><title>T\xc3\xa4</title><plot>never closed",
        "<movie><title>T\xc3\xa4</title><plot>x</movie>",
        "<movie><title>T\xc3\xa4</title>",
        "<MOVIE><Title>T\xc3\xa4</Title></MOVIE>",
        "<movie><title>T&auml;</title><plot>Tom & Jerry</plot></movie>",
        "<movie><title>T\xc3\xa4\x01</title></movie>",
        "<!DOCTYPE movie [<!ENTITY a 'x'>]><movie><title>T\xc3\xa4</title></movie>",
        "<movie>text<title>T\xc3\xa4</title>text</movie>",
        "<movie><title><![CDATA[T\xc3\xa4]]></title></movie>",
    };
    for (const QByteArray &text : cases) {
        const NfoRecord record = only(text);
        EXPECT_EQ(int(record.kind), int(Kind::Movie)) << text.constData();
        EXPECT_EQ(record.description.title.trimmed(), QString::fromUtf8("T\xc3\xa4")) << text.constData();
    }
    const QString text = QString::fromUtf8("<movie><title>T\xc3\xa4</title></movie>");
    const QByteArray wide =
        "\xff\xfe" + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    EXPECT_EQ(only(wide).description.title, QString::fromUtf8("T\xc3\xa4"));
}

TEST(NfoReaderTest, SeveralRootsAreSeveralEpisodes)
{
    const QVector<NfoRecord> records = NfoReader::read(
        "<?xml version=\"1.0\"?><episodedetails><title>One</title><season>2</season><episode>3</episode>"
        "<showtitle>Foo</showtitle></episodedetails>\n<?xml "
        "version=\"1.0\"?><episodedetails><title>Two</title>"
        "<season>2</season><episode>4</episode></episodedetails>");
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records.at(0).showTitle, "Foo");
    EXPECT_EQ(records.at(0).season, 2);
    EXPECT_EQ(records.at(1).episode, 4);
    EXPECT_EQ(records.at(1).description.title, "Two");
}

TEST(NfoReaderTest, OtherRootsAreRead)
{
    EXPECT_EQ(only("<tvshow><title>Foo</title></tvshow>").kind, Kind::Show);
    const NfoRecord season = only("<season><seasonnumber>3</seasonnumber></season>");
    EXPECT_EQ(season.kind, Kind::Season);
    EXPECT_EQ(season.season, 3);
    EXPECT_EQ(only("<artist><name>Band</name><biography>B</biography></artist>").description.title, "Band");
    const NfoRecord album = only("<album><title>Songs</title><artist>Band</artist><year>1999</year></album>");
    EXPECT_EQ(album.artist, "Band");
    EXPECT_EQ(album.description.year, 1999);
    EXPECT_EQ(only("<movie><set>Saga</set></movie>").collection, "Saga");
}

TEST(NfoReaderTest, ALinkAloneGivesItsId)
{
    struct Row {
        const char *text;
        const char *key;
        const char *value;
    };
    const Row rows[] = {
        {"https://www.imdb.com/title/tt0123456/", "imdb", "tt0123456"},
        {"see http://imdb.com/title/tt01234567?ref=1&x=2", "imdb", "tt01234567"},
        {"https://www.themoviedb.org/movie/27205-name", "tmdb", "27205"},
        {"https://www.themoviedb.org/tv/1396", "tmdb", "1396"},
        {"http://thetvdb.com/?tab=series&id=81189&lid=7", "tvdb", "81189"},
    };
    for (const Row &row : rows) {
        const NfoRecord record = only(row.text);
        EXPECT_EQ(record.kind, Kind::Link);
        EXPECT_EQ(record.description.identities.value(row.key), row.value) << row.text;
    }
}

TEST(NfoReaderTest, WhatIsNoNfoGivesNone)
{
    for (const QByteArray &data :
         {QByteArray(), QByteArray("just text"), QByteArray(1000, '\0'), QByteArray("<"),
          QByteArray("<html><body/></html>"), QByteArray("\xff\xfe"), QByteArray("<!DOCTYPE"),
          QByteArray("<movie>") + QByteArray(2 * 1024 * 1024, ' ')})
        EXPECT_TRUE(NfoReader::read(data).isEmpty()) << data.left(20).constData();
}

TEST(NfoReaderTest, DepthNumberAndEntitiesAreBounded)
{
    QByteArray deep = "<movie><title>T</title>";
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    EXPECT_EQ(only(deep).description.title, "T");
    QByteArray wide = "<movie><title>T</title>";
    for (int i = 0; i < 100000; ++i)
        wide += "<genre>g" + QByteArray::number(i) + "</genre>";
    EXPECT_LE(only(wide).description.genre.count(", "), 200);
    QByteArray laughs = "<!DOCTYPE m [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b "
                        "\"&a;&a;&a;&a;&a;&a;\">]><movie><title>&b;</title></movie>";
    EXPECT_EQ(only(laughs).description.title, "&b;");
}

TEST(NfoReaderTest, RuntimesHaveManyForms)
{
    struct Row {
        const char *text;
        int minutes;
    };
    for (const Row &row : {Row{"123", 123},
                           {"123 min", 123},
                           {"2:03", 123},
                           {"02:03:59", 123},
                           {"2h 3m", 123},
                           {"2 h 3 min", 123},
                           {"", 0},
                           {"min", 0},
                           {"99999999999", 0},
                           {"-5", 5},
                           {"99999", 0}})
        EXPECT_EQ(NfoReader::runtimeMinutes(row.text), row.minutes) << row.text;
}

TEST(NfoReaderTest, NumbersThatMakeNoSenseTellNothing)
{
    const Description told =
        only("<movie><title>T</title><year>12</year><rating>nan</rating><runtime>x</runtime>"
             "<premiered>2010-99-99</premiered></movie>")
            .description;
    EXPECT_EQ(told.rating, "");
    EXPECT_EQ(told.runtimeMinutes, 0);
    EXPECT_EQ(told.releaseDate, "");
    EXPECT_EQ(only("<movie><rating>8,4</rating></movie>").description.rating, "8.4");
    EXPECT_EQ(only("<movie><ratings><rating max=\"100\"><value>84</value></rating></ratings></movie>")
                  .description.rating,
              "8.4");
}

} // namespace
