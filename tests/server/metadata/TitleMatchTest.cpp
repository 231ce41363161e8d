#include "metadata/TitleMatch.h"
#include "metadata/MediaId.h"

#include <gtest/gtest.h>

namespace {

TEST(TitleMatchTest, TitlesAreComparedWithoutCaseAccentsAndPunctuation)
{
    const struct {
        const char *one;
        const char *other;
        bool same;
    } rows[] = {{"Stalker", "STALKER", true},
                {"Amélie", "Amelie", true},
                {"Spider-Man: No Way Home", "Spider Man - No Way Home", true},
                {"Don't Look Now", "Don’t look now!", true},
                {"Fast & Furious", "Fast and Furious", true},
                {"WALL·E", "WALL-E", true},
                {"Ёлки", "Елки", true},
                {"  The   Thing ", "The Thing", true},
                {"２００１", "2001", true},
                {"Alien", "Aliens", false},
                {"Alien", "Alien 3", false},
                {"The Thing", "Thing", false},
                {"がら", "から", false},
                {"...", "???", false},
                {"...", "...", true},
                {"𝒜", "ℬ", false}};
    for (const auto &row : rows) {
        const bool same = TitleMatch::folded(QString::fromUtf8(row.one))
                          == TitleMatch::folded(QString::fromUtf8(row.other));
        EXPECT_EQ(same, row.same) << row.one << " / " << row.other;
    }
}

QVector<ProviderMatch> matchesOf(const QVector<QPair<QString, int>> &rows)
{
    QVector<ProviderMatch> matches;
    for (const auto &row : rows) {
        ProviderMatch match;
        match.id = QString::number(matches.size() + 1);
        match.title = row.first;
        match.year = row.second;
        matches << match;
    }
    return matches;
}

TEST(TitleMatchTest, OnlyTheSameTitleWithinAYearIsTaken)
{
    const struct {
        const char *name;
        QVector<QPair<QString, int>> proposals;
        int year;
        const char *id; // empty for none
    } rows[] = {{"exact", {{"Heat", 1995}}, 1995, "1"},
                {"a year later", {{"Heat", 1996}}, 1995, "1"},
                {"a year before", {{"Heat", 1994}}, 1995, "1"},
                {"two years", {{"Heat", 1997}}, 1995, ""},
                {"exact before neighbour", {{"Heat", 1996}, {"Heat", 1995}}, 1995, "2"},
                {"another title first", {{"The Heat", 1995}, {"HEAT!", 1995}}, 1995, "2"},
                {"first of two alike", {{"Heat", 1995}, {"Heat", 1995}}, 1995, "1"},
                {"no year known, one", {{"Heat", 1995}, {"Heat 2", 1996}}, 0, "1"},
                {"no year known, two", {{"Heat", 1995}, {"Heat", 1972}}, 0, ""},
                {"the proposal has no year", {{"Heat", 0}}, 1995, ""},
                {"year 1 and none", {{"Heat", 0}}, 1, ""},
                {"nothing proposed", {}, 1995, ""}};
    for (const auto &row : rows) {
        Description known;
        known.title = QStringLiteral("Heat");
        known.year = row.year;
        const auto match = TitleMatch::pick(matchesOf(row.proposals), known);
        EXPECT_EQ(match ? match->id : QString(), row.id) << row.name;
    }
}

TEST(TitleMatchTest, AnOriginalTitleAgreesToo)
{
    QVector<ProviderMatch> matches = matchesOf({{QStringLiteral("The Lives of Others"), 2006}});
    matches[0].originalTitle = QStringLiteral("Das Leben der Anderen");
    Description known;
    known.title = QStringLiteral("Das Leben der anderen");
    known.year = 2006;
    EXPECT_TRUE(TitleMatch::pick(matches, known));
    known.title.clear();
    EXPECT_FALSE(TitleMatch::pick(matches, known)) << "an empty title agrees with nothing";
}

TEST(MediaIdTest, IdsSayWhatTheyStandFor)
{
    using Kind = MediaId::Kind;
    const struct {
        QString text;
        Kind kind;
        int record;
        const char *title;
        int year;
    } rows[] = {{"603", Kind::Provider, 0, "", 0},
                {"local:12", Kind::Item, 12, "", 0},
                {"localshow:7", Kind::Show, 7, "", 0},
                {"name:Stalker|1979", Kind::Name, 0, "Stalker", 1979},
                {"name:Stalker|", Kind::Name, 0, "Stalker", 0},
                {"name:Stalker", Kind::Name, 0, "Stalker", 0},
                {"name:A|B|1979", Kind::Name, 0, "A|B", 1979},
                {"name:|1979", Kind::None, 0, "", 1979},
                {"name:", Kind::None, 0, "", 0},
                {"local:", Kind::None, 0, "", 0},
                {"local:0", Kind::None, 0, "", 0},
                {"local:-3", Kind::None, -3, "", 0},
                {"local:99999999999", Kind::None, 0, "", 0},
                {"", Kind::None, 0, "", 0},
                {"603\n", Kind::None, 0, "", 0},
                {"../603", Kind::None, 0, "", 0},
                {"12345678901", Kind::None, 0, "", 0},
                {"name:" + QString(5000, 'x'), Kind::None, 0, "", 0}};
    for (const auto &row : rows) {
        const MediaId id = MediaId::parse(row.text);
        EXPECT_EQ(id.kind, row.kind) << qPrintable(row.text);
        EXPECT_EQ(id.record, row.record) << qPrintable(row.text);
        EXPECT_EQ(id.title, row.title) << qPrintable(row.text);
        EXPECT_EQ(id.year, row.year) << qPrintable(row.text);
    }
    EXPECT_EQ(MediaId::parse(MediaId::ofItem(5)).record, 5);
    EXPECT_EQ(MediaId::parse(MediaId::ofShow(6)).kind, Kind::Show);
    EXPECT_EQ(MediaId::parse(MediaId::ofName("A|1", 0)).title, "A|1");
}

} // namespace
