#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "playcontrol/DiscEventRule.h"
#include "playcontrol/EndRule.h"
#include "playcontrol/MenuCase.h"
#include "playcontrol/PlayTimeText.h"
#include "playcontrol/StatisticName.h"

#include <gtest/gtest.h>

namespace {

bool always(const QString &)
{
    return true;
}

bool never(const QString &)
{
    return false;
}

} // namespace

TEST(DiscEventRuleTest, OnlyADiscThatGoesAwayStopsItsOwnPlay)
{
    for (int type = 0; type <= 6; ++type)
        EXPECT_EQ(DiscEventRule::stopsPlay('D', type, "D"), type == 2 || type == 4) << type;
    EXPECT_FALSE(DiscEventRule::stopsPlay('E', 2, "D"));
    EXPECT_FALSE(DiscEventRule::stopsPlay('D', 2, "D:/film.mkv"));
    EXPECT_FALSE(DiscEventRule::stopsPlay('D', 2, ""));
}

TEST(DiscEventRuleTest, LettersAreComparedWithoutCase)
{
    EXPECT_TRUE(DiscEventRule::stopsPlay('D', 2, "d"));
    EXPECT_TRUE(DiscEventRule::stopsPlay('d', 4, "D"));
}

TEST(DiscEventRuleTest, ADiscThatCanBeReadIsOpenedWhereNothingPlaysAndTheSettingAllowsIt)
{
    for (int type = 0; type <= 6; ++type) {
        EXPECT_EQ(DiscEventRule::opensPlay(type, true, false), type == 3) << type;
        EXPECT_FALSE(DiscEventRule::opensPlay(type, false, false)) << type;
        EXPECT_FALSE(DiscEventRule::opensPlay(type, true, true)) << type;
        EXPECT_FALSE(DiscEventRule::opensPlay(type, false, true)) << type;
    }
}

TEST(EndRuleTest, CloseAtEndComesBeforeTheQueueIsConsulted)
{
    bool isAsked = false;
    const auto exists = [&isAsked](const QString &) { return isAsked = true; };
    EXPECT_EQ(EndRule::after({true, "/next.mkv"}, exists), EndRule::Next::CloseWindow);
    EXPECT_FALSE(isAsked);
}

TEST(EndRuleTest, ExistingNextEpisodeComesBeforeTheQueue)
{
    EXPECT_EQ(EndRule::after({false, "/next.mkv"}, always), EndRule::Next::PlayNextEpisode);
    EXPECT_EQ(EndRule::after({false, "/next.mkv"}, never), EndRule::Next::AskQueue);
    EXPECT_EQ(EndRule::after({false, ""}, always), EndRule::Next::AskQueue);
}

TEST(MenuCaseTest, EachKindOfDiscFollowsItsOwnSetting)
{
    TestSettings settings;
    const MenuCase::Source bluRay{MenuCase::Disc::BluRay, false, -1};
    const MenuCase::Source dvd{MenuCase::Disc::Dvd, false, -1};
    EXPECT_FALSE(MenuCase::playsByMenu(bluRay, *settings));
    EXPECT_FALSE(MenuCase::playsByMenu(dvd, *settings));
    settings->setValue(SettingsKeys::PC_BDPlayMode, true);
    EXPECT_TRUE(MenuCase::playsByMenu(bluRay, *settings));
    EXPECT_FALSE(MenuCase::playsByMenu(dvd, *settings));
    settings->setValue(SettingsKeys::PC_DVDPlayMode, true);
    EXPECT_TRUE(MenuCase::playsByMenu(dvd, *settings));
    EXPECT_FALSE(MenuCase::playsByMenu({}, *settings));
}

TEST(MenuCaseTest, AskedTitlePlaysWithoutMenu)
{
    TestSettings settings;
    settings->setValue(SettingsKeys::PC_BDPlayMode, true);
    EXPECT_FALSE(MenuCase::playsByMenu({MenuCase::Disc::BluRay, false, 0}, *settings));
    EXPECT_FALSE(MenuCase::playsByMenu({MenuCase::Disc::BluRay, false, 5}, *settings));
}

TEST(MenuCaseTest, SeekControlIsForSourcesWithoutMenu)
{
    EXPECT_EQ(MenuCase::seekControl(false), 1);
    EXPECT_EQ(MenuCase::seekControl(true), 0);
}

TEST(MenuCaseTest, RecordedDiscNoteComesUntilItIsSilenced)
{
    TestSettings settings;
    const MenuCase::Source recorded{MenuCase::Disc::BluRay, true, -1};
    EXPECT_TRUE(MenuCase::showsBdavNote(recorded, *settings));
    EXPECT_FALSE(MenuCase::showsBdavNote({MenuCase::Disc::BluRay, false, -1}, *settings));
    EXPECT_FALSE(MenuCase::showsBdavNote({MenuCase::Disc::Dvd, true, -1}, *settings));
    MenuCase::suppressBdavNote(*settings);
    EXPECT_FALSE(MenuCase::showsBdavNote(recorded, *settings));
    EXPECT_EQ(MenuCase::bdavNote(),
              "Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can "
              "switch titles from the Playlist.");
}

TEST(StatisticNameTest, FormAndClassStandInTheName)
{
    EXPECT_EQ(StatisticName::stop("Disc", "BD"), "Stop_Disc_BD");
    EXPECT_EQ(StatisticName::fail("file", "4K"), "Fail_file_4K");
}

TEST(PlayTimeTextTest, ReadsWhatThePlayerShows)
{
    const struct {
        const char *text;
        qint64 position, total;
    } rows[] = {{"00:01:05 / 01:30:00", 65, 5400},
                {"00:00:00 / 00:00:00", 0, 0},
                {"1:05/90:00", 65, 5400},
                {"7 / 9", 7, 9},
                {"123:00:00 / 200:00:00", 442800, 720000}};
    for (const auto &row : rows) {
        const auto times = PlayTimeText::parse(row.text);
        ASSERT_TRUE(times) << row.text;
        EXPECT_EQ(times->position, row.position);
        EXPECT_EQ(times->total, row.total);
    }
}

TEST(PlayTimeTextTest, OtherTextsAreNoTimes)
{
    for (const char *text : {"", "/", "a / b", "00:01:05", "1 / 2 / 3", "-1 / 5", "00:: / 1", "1:2:3:4 / 5",
                             "99999999999 / 1", "1.5 / 2", "\xd9\xa1 / 2"})
        EXPECT_FALSE(PlayTimeText::parse(QString::fromUtf8(text))) << text;
}
