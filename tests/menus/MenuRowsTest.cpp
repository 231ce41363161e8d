#include "MenuFixture.h"

#include "core/SettingsKeys.h"

#include <QSet>

#include <ostream>

namespace {

struct Row {
    const char *key;
    const char *call; // how the engine's call begins
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.key;
}

class CommandOfThePlayer : public MenuTest, public testing::WithParamInterface<Row> {};

TEST_P(CommandOfThePlayer, ReachesTheEngine)
{
    play();
    engine.answer("IVDPlay::isPlaying", 1);
    engine.answer("IVDPlay::chapterCount", 9);
    setAudioTracks(3);
    engine.setSubtitleTracks(std::vector<libvp::VDSubtitleInfo>(3));
    engine.clearCalls();
    trigger(QLatin1String(GetParam().key));
    EXPECT_NE(call(GetParam().call), "") << testing::PrintToString(engine.calls());
}

INSTANTIATE_TEST_SUITE_P(
    All, CommandOfThePlayer,
    testing::Values(Row{"Chapter_4", "IVDPlay::goToChapter(4"}, Row{"top Menu", "IVDPlay::menuCommand(6, 1"},
                    Row{"pop Menu", "IVDPlay::menuCommand(6, 0"},
                    Row{"Default", "IVDPlayTool::setViewMode(0"}, Row{"4 : 3", "IVDPlayTool::setViewMode(2"},
                    Row{"16 : 9", "IVDPlayTool::setViewMode(4"},
                    Row{"Fit Window", "IVDPlayTool::setViewMode(3"},
                    Row{"deinterlaceOff", "IVDPlayTool::setDeinterlaceMode(0"},
                    Row{"Automatic", "IVDPlayTool::setDeinterlaceMode(1"},
                    Row{"deinterlaceOn", "IVDPlayTool::setDeinterlaceMode(2"},
                    Row{"rotateOff", "IVDPlayTool::resetFlip"}, Row{"90cw", "IVDPlayTool::setRotation(1"},
                    Row{"90ccw", "IVDPlayTool::setRotation(3"}, Row{"180", "IVDPlayTool::setRotation(2"},
                    Row{"flipV", "IVDPlayTool::setFlipState(2"}, Row{"flipH", "IVDPlayTool::setFlipState(1"},
                    Row{"take Snapshot", "IVDPlayTool::takeScreenshot"},
                    Row{"AudioStream_2", "IVDPlay::setAudioTrack(2"},
                    Row{"SubtitleStream_1", "IVDPlay::setSubtitleTrack(1"},
                    Row{"previous Chapter", "IVDPlay::"}, Row{"next Chapter", "IVDPlay::"},
                    Row{"rewind", "IVDPlay::setSpeed"}, Row{"fast Forward", "IVDPlay::setSpeed"}));

class CommandOfTheWindow : public MenuTest, public testing::WithParamInterface<Row> {};

TEST_P(CommandOfTheWindow, IsAskedForOnce)
{
    play();
    trigger(QLatin1String(GetParam().key));
    EXPECT_EQ(asked, QStringList(QLatin1String(GetParam().call)));
}

INSTANTIATE_TEST_SUITE_P(All, CommandOfTheWindow,
                         testing::Values(Row{"Open Media", "openMedia"}, Row{"open disc_E", "playDisc E"},
                                         Row{"video Control", "videoControl"},
                                         Row{"color Adjust", "colorAdjust"},
                                         Row{"load Subtitle", "loadSubtitle"},
                                         Row{"subtitle Setting", "subtitleSettings"}, Row{"stop", "stop"},
                                         Row{"full Screen", "fullScreen"},
                                         Row{"always on Top", "alwaysOnTop"},
                                         Row{"information", "information"}, Row{"setting", "settingsPage"}));

using MenuRowsTest = MenuTest;

} // namespace

TEST_F(MenuRowsTest, NoKeyStandsTwiceAndNoOperationRunsTwoRows)
{
    QSet<QString> keys;
    QSet<int> operations;
    for (const MenuRow &row : MenuRows::all()) {
        if (row.kind != MenuRow::Kind::Command)
            continue;
        EXPECT_FALSE(keys.contains(row.key)) << row.key;
        keys << row.key;
        EXPECT_NE(row.run, nullptr) << row.key;
        if (row.keyOperation == MenuRow::NoKeyOperation)
            continue;
        EXPECT_FALSE(operations.contains(row.keyOperation)) << row.key;
        operations << row.keyOperation;
    }
}

TEST_F(MenuRowsTest, WithOneAudioTrackTheCycleSelectsTheSameOne)
{
    play();
    setAudioTracks(1);
    engine.answer("IVDPlay::audioTrack", 0);
    trigger("cycle Audio");
    EXPECT_EQ(call("IVDPlay::setAudioTrack").rfind("IVDPlay::setAudioTrack(0", 0), 0U);
}

TEST_F(MenuRowsTest, TheCycleGoesFromTheLastAudioTrackToTheFirst)
{
    play();
    setAudioTracks(3);
    engine.answer("IVDPlay::audioTrack", 2);
    trigger("cycle Audio");
    EXPECT_EQ(call("IVDPlay::setAudioTrack").rfind("IVDPlay::setAudioTrack(0", 0), 0U);
}

TEST_F(MenuRowsTest, TheStepAfterTheLastSubtitleSwitchesThemOff)
{
    play();
    engine.setSubtitleTracks(std::vector<libvp::VDSubtitleInfo>(2));
    engine.answer("IVDPlay::isSubtitleVisible", 1);
    engine.answer("IVDPlay::subtitleTrack", 1);
    engine.clearCalls();
    trigger("cycle Subtitle");
    EXPECT_NE(call("IVDPlayTool::setSubtitleVisible(false"), "") << testing::PrintToString(engine.calls());
    EXPECT_EQ(call("IVDPlay::setSubtitleTrack"), "");
}

TEST_F(MenuRowsTest, ANumberThatIsNoneSelectsTheFirstTrack)
{
    play();
    setAudioTracks(2);
    trigger("AudioStream_two");
    EXPECT_EQ(call("IVDPlay::setAudioTrack").rfind("IVDPlay::setAudioTrack(0", 0), 0U);
}

TEST_F(MenuRowsTest, AnUnknownKeyAndAForeignActionDoNothing)
{
    play();
    engine.clearCalls();
    trigger("no such key");
    trigger("");
    QAction foreign("Stop");
    menu.slot_dealMenuAction(&foreign);
    menu.slot_dealMenuAction(nullptr);
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_TRUE(engine.calls().empty()) << testing::PrintToString(engine.calls());
}

TEST_F(MenuRowsTest, WithoutASourceTheCommandsForItDoNothing)
{
    trigger("stop");
    trigger("1 : 1");
    EXPECT_FALSE(menu.run(KeyOperate_PlayPause));
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(MenuRowsTest, KeyAndEntryRunTheSameBranch)
{
    play();
    EXPECT_TRUE(menu.run(KeyOperate_OpenFile));
    EXPECT_TRUE(menu.run(KeyOperate_Stop));
    EXPECT_FALSE(menu.run(KeyOperate_Mute));
    EXPECT_EQ(asked, QStringList({"openMedia", "stop"}));
    // By key also where the menu greys it.
    hasSource = false;
    EXPECT_TRUE(menu.run(KeyOperate_AlwaysOnTop));
    EXPECT_EQ(asked.last(), "alwaysOnTop");
}

TEST_F(MenuRowsTest, TheDeinterlaceChoiceIsKept)
{
    play();
    trigger("Automatic");
    EXPECT_EQ(settings.value(SettingsKeys::PC_Deinterlace).toInt(), 1);
}

TEST_F(MenuRowsTest, AShaderIsUsedByItsNameAndASecondChoiceSwitchesItOff)
{
    play();
    addShader("sharp.fx");
    trigger("shadersharp.fx");
    const QString path = shaderFolder() + "/sharp.fx";
    EXPECT_NE(call("IVDPlayTool::setCustomShader").find(path.toStdString()), std::string::npos);
    EXPECT_EQ(asked, QStringList("note ShaderUsed"));
    engine.answerText("IVDPlayTool::customShader", path.toStdString());
    open();
    EXPECT_TRUE(action("shadersharp.fx")->isChecked());
    engine.clearCalls();
    trigger("shadersharp.fx");
    EXPECT_NE(call("IVDPlayTool::setCustomShader"), "");
    EXPECT_EQ(call("IVDPlayTool::setCustomShader").find("sharp"), std::string::npos);
}

TEST_F(MenuRowsTest, AShaderIsSoughtNowhereElse)
{
    EXPECT_EQ(MenuRows::shaderPath(host(), "../a.fx"), QString());
    EXPECT_EQ(MenuRows::shaderPath(host(), "/etc/a.fx"), QString());
    EXPECT_EQ(MenuRows::shaderPath(host(), ""), QString());
}

TEST_F(MenuRowsTest, AStepStaysWithinTheSource)
{
    play();
    engine.answer("IVDPlay::currentSeconds", 4);
    engine.answer("IVDPlay::totalSeconds", 60);
    trigger("10 Backward");
    trigger("10 Forward");
    EXPECT_EQ(asked, QStringList({"seek 0", "seek 14"}));
}

TEST_F(MenuRowsTest, AStepInASourceOfUnknownLengthGoesOn)
{
    play();
    engine.answer("IVDPlay::currentSeconds", 90);
    engine.answer("IVDPlay::totalSeconds", 0);
    trigger("10 Backward");
    trigger("10 Forward");
    EXPECT_EQ(asked, QStringList({"seek 80", "seek 100"}));
}
