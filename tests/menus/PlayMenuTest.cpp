#include "MenuFixture.h"

#include "core/SettingsKeys.h"
#include "player/EnginePreferences.h"

namespace {

QStringList texts(const QMenu &menu)
{
    QStringList texts;
    const auto actions = menu.actions();
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            texts << action->text().section(QLatin1Char('\t'), 0, 0);
    }
    return texts;
}

using PlayMenuTest = MenuTest;

} // namespace

TEST_F(PlayMenuTest, WhileNothingPlaysOnlyOpeningSettingsAndFullScreenCanBeChosen)
{
    const QMenu &opened = open({{"D", {}, "A DISC", false}});
    EXPECT_EQ(texts(opened), QStringList({"Open Media...", "Open Disc", "Top Menu", "Pop Menu", "Video",
                                          "Audio", "Subtitle", "Playback", "Shaders", "Full Screen",
                                          "Always on Top", "Information", "Settings..."}));
    QStringList enabled;
    const auto actions = opened.actions();
    for (const QAction *action : actions) {
        if (action->isEnabled() && !action->isSeparator())
            enabled << action->text().section(QLatin1Char('\t'), 0, 0);
    }
    EXPECT_EQ(enabled, QStringList({"Open Media...", "Open Disc", "Full Screen", "Settings..."}));
    const auto inside = opened.findChildren<QMenu *>();
    for (const QMenu *child : inside)
        EXPECT_FALSE(child->isEnabled()) << qPrintable(child->title());
}

TEST_F(PlayMenuTest, TheRightColumnShowsKeysAndTheDisc)
{
    open({{"D", {}, "A DISC", false}});
    EXPECT_EQ(action("Open Media")->text(), "Open Media...\t    Ctrl+O");
    EXPECT_EQ(action("open disc_D")->text(), "Open Disc\t    A DISC");
    EXPECT_EQ(action("full Screen")->text(), "Full Screen");
}

TEST_F(PlayMenuTest, ChaptersAreListedOnlyWhereTheSourceHasThem)
{
    play();
    open();
    EXPECT_EQ(submenu("Chapter"), nullptr);
    engine.answer("IVDPlay::chapterCount", 3);
    tell([](libvp::IVDPlayCallback &callback) { callback.OnChapter(2, 3); });
    open();
    ASSERT_NE(submenu("Chapter"), nullptr);
    EXPECT_EQ(texts(*submenu("Chapter")), QStringList({"Chapter 1", "Chapter 2", "Chapter 3"}));
}

TEST_F(PlayMenuTest, TheMenusOfADiscNeedOne)
{
    play();
    open();
    EXPECT_FALSE(action("top Menu")->isEnabled());
    EXPECT_FALSE(action("pop Menu")->isEnabled());
    engine.answer("IVDPlay::hasDiscMenu", 1);
    open();
    EXPECT_TRUE(action("top Menu")->isEnabled());
    EXPECT_TRUE(action("pop Menu")->isEnabled());
}

TEST_F(PlayMenuTest, MarksShowWhatThePlayerReports)
{
    play();
    player->setViewMode(12);
    player->setDeinterlaceMode(2);
    settings.setValue(SettingsKeys::PC_ShowMeta, true);
    setAudioTracks(3);
    engine.answer("IVDPlay::audioTrack", 1);
    open();
    QStringList checked;
    const auto actions = shown->findChildren<NormalAction *>();
    for (const NormalAction *entry : actions) {
        if (entry->isChecked())
            checked << entry->key();
    }
    EXPECT_EQ(QSet<QString>(checked.begin(), checked.end()),
              QSet<QString>({"2.39 : 1", "deinterlaceOn", "information", "AudioStream_1", "subtitleOff"}));
}

TEST_F(PlayMenuTest, ADeinterlaceModeOutsideItsRangeIsMarkedAsThePlayerHasIt)
{
    settings.setValue(SettingsKeys::PC_Deinterlace, 7);
    play();
    EnginePreferences(settings, *player).applyPicture();
    EXPECT_EQ(call("IVDPlayTool::setDeinterlaceMode"), "IVDPlayTool::setDeinterlaceMode(2)");
    open();
    EXPECT_TRUE(action("deinterlaceOn")->isChecked());
}

TEST_F(PlayMenuTest, ThePlayEntryTellsWhatItWillDo)
{
    play();
    tell([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackStarted(); });
    open();
    EXPECT_EQ(action("playStatusSwitch")->text(), "Pause");
    tell([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackPaused(); });
    open();
    EXPECT_EQ(action("playStatusSwitch")->text(), "Play");
}

TEST_F(PlayMenuTest, SubtitleTracksWithoutANameAreUnknownAndAnAmpersandMarksNoKey)
{
    play();
    std::vector<libvp::VDSubtitleInfo> tracks(3);
    qstrncpy(tracks[0].name, "Signs & Songs", sizeof tracks[0].name);
    qstrncpy(tracks[1].language, "eng", sizeof tracks[1].language);
    engine.setSubtitleTracks(tracks);
    open();
    EXPECT_EQ(action("SubtitleStream_0")->text(), "Signs && Songs");
    EXPECT_EQ(action("SubtitleStream_1")->text(), "eng");
    EXPECT_EQ(action("SubtitleStream_2")->text(), "unknown");
}

TEST_F(PlayMenuTest, ShadersAreTheFilesOfTheirFolderAtThisOpening)
{
    play();
    open();
    EXPECT_FALSE(submenu("Shaders")->isEnabled());
    addShader("b.fx");
    addShader("A.fx");
    addShader("readme.txt");
    open();
    EXPECT_TRUE(submenu("Shaders")->isEnabled());
    EXPECT_EQ(texts(*submenu("Shaders")), QStringList({"A.fx", "b.fx"}));
    EXPECT_NE(action("shaderA.fx"), nullptr);
}

TEST_F(PlayMenuTest, TwoHundredTracksAreAllThere)
{
    play();
    setAudioTracks(200);
    open();
    EXPECT_NE(action("AudioStream_199"), nullptr);
    EXPECT_EQ(action("AudioStream_199")->text(), "Sound 199");
}

TEST_F(PlayMenuTest, WithoutAPlayerTheMenuStillOpens)
{
    player.reset();
    hasSource = true;
    open();
    EXPECT_FALSE(submenu("Video")->isEnabled());
    trigger("1 : 1");
    trigger("cycle Audio");
    EXPECT_TRUE(asked.isEmpty());
}
