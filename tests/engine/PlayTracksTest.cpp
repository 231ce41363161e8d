#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace libvp;
using Event = PlayRecorder::Event;

namespace {

class PlayTracks : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_rig.open(TestClips::path("tracks.mkv"))); }

    bool waitForSubtitle(const char *language, int count = 1)
    {
        return m_rig.recorder->waitUntil(
            [language](const Event &event) { return event.name == "SubtitleInfo" && event.text == language; },
            PlayRecorder::limit, count);
    }

    PlayRig m_rig;
};

TEST_F(PlayTracks, AudioRecordsTellLanguageNameAndFormat)
{
    ASSERT_EQ(m_rig.play->audioCount(), 3);
    const VDAudioInfo *info = m_rig.play->getAudioInfo(1);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->index, 1);
    EXPECT_EQ(std::string(info->language), "ger");
    EXPECT_EQ(std::string(info->name), "Deutsch");
    EXPECT_EQ(std::string(info->format), "aac mono");
    EXPECT_EQ(info->channels, 1);
    EXPECT_EQ(info->sampleRate, 44100);
    EXPECT_EQ(info->isDefault, 0);
    EXPECT_EQ(m_rig.play->getAudioInfo(0)->isDefault, 1);
    EXPECT_EQ(m_rig.play->getAudioInfo(3), nullptr);
    EXPECT_EQ(m_rig.play->getAudioInfo(-1), nullptr);
}

TEST_F(PlayTracks, AudioSelectionIsTakenOverAndTold)
{
    int told = 1;
    for (const int index : {2, 1, 0}) {
        m_rig.play->setAudioTrack(index);
        ASSERT_TRUE(m_rig.recorder->waitFor("AudioInfo", ++told));
        EXPECT_EQ(m_rig.recorder->last("AudioInfo").first, index);
        EXPECT_EQ(m_rig.play->audioTrack(), index);
        EXPECT_EQ(m_rig.tool->readProperty("aid").integer(), index + 1);
    }
    m_rig.play->setAudioTrack(3);
    m_rig.play->setAudioTrack(-1);
    EXPECT_EQ(m_rig.tool->readProperty("aid").integer(), 1);
}

TEST_F(PlayTracks, SubtitleRecordsAndSelection)
{
    ASSERT_EQ(m_rig.play->subtitleCount(0), 3);
    const VDSubtitleInfo *info = m_rig.play->getSubtitleInfo(2);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(std::string(info->language), "fre");
    EXPECT_EQ(std::string(info->name), "Francais");
    EXPECT_EQ(info->isExternal, 0);
    EXPECT_EQ(info->isBitmap, 0);
    EXPECT_EQ(m_rig.play->getSubtitleInfo(3), nullptr);
    m_rig.play->setSubtitleTrack(2);
    ASSERT_TRUE(waitForSubtitle("fre"));
    EXPECT_EQ(m_rig.play->subtitleTrack(), 2);
    EXPECT_TRUE(m_rig.waitForProperty("sub-text", "Hello"));
    m_rig.play->setSubtitleTrack(VD_NoSubtitle);
    ASSERT_TRUE(waitForSubtitle(""));
    EXPECT_EQ(m_rig.play->subtitleTrack(), -1);
}

TEST_F(PlayTracks, ChaptersAreCountedFromOneAndFollowed)
{
    EXPECT_EQ(m_rig.play->chapterCount(), 3);
    EXPECT_EQ(m_rig.play->chapter(), 1);
    m_rig.play->goToChapter(2);
    ASSERT_TRUE(m_rig.recorder->waitUntil(
        [](const Event &event) { return event.name == "SeekChapter" && event.first == 2; }));
    ASSERT_TRUE(m_rig.recorder->waitUntil(
        [](const Event &event) { return event.name == "Chapter" && event.first == 2 && event.second == 3; }));
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms >= 3000; }));
    m_rig.play->goToChapter(9);
    m_rig.play->goToChapter(0);
    m_rig.play->goToChapter(3);
    ASSERT_TRUE(m_rig.recorder->waitUntil(
        [](const Event &event) { return event.name == "Chapter" && event.first == 3; }));
    EXPECT_EQ(m_rig.recorder->count("SeekChapter"), 2);
}

TEST_F(PlayTracks, SourceWithoutTracksAndChapters)
{
    ASSERT_TRUE(m_rig.open(TestClips::path("silent.mp4")));
    EXPECT_EQ(m_rig.play->audioCount(), 0);
    EXPECT_EQ(m_rig.play->audioTrack(), -1);
    EXPECT_EQ(m_rig.play->subtitleCount(0), 0);
    EXPECT_EQ(m_rig.play->chapterCount(), 0);
    EXPECT_EQ(m_rig.play->chapter(), 0);
    EXPECT_EQ(m_rig.play->titleCount(), 0);
    EXPECT_FALSE(m_rig.play->hasDiscMenu());
    EXPECT_EQ(m_rig.recorder->count("AudioInfo"), 0);
}

TEST_F(PlayTracks, SubtitleFileIsAddedAndSelected)
{
    for (const char *name : {"dark.srt", "dark.ass"}) {
        const int before = m_rig.play->subtitleCount(0);
        const int index = m_rig.play->addSubtitle(TestClips::path(name).c_str());
        ASSERT_EQ(index, before) << name;
        EXPECT_EQ(m_rig.play->getSubtitleInfo(index)->isExternal, 1);
        m_rig.play->setSubtitleTrack(index);
        EXPECT_TRUE(m_rig.waitForProperty("sub-text", "Hello")) << name;
    }
}

TEST_F(PlayTracks, SubtitleMayBeAddedFromANotification)
{
    int index = -2;
    std::atomic<bool> added{false};
    m_rig.recorder->setHook([&](const Event &event) {
        if (event.name == "Paused" && !added.exchange(true))
            index = m_rig.play->addSubtitle(TestClips::path("dark.srt").c_str());
    });
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    EXPECT_EQ(index, 3);
}

TEST_F(PlayTracks, WhatIsNoSubtitleFileIsRefused)
{
    const std::string folder = TestClips::scratchFolder();
    EXPECT_EQ(m_rig.play->addSubtitle(nullptr), -1);
    EXPECT_EQ(m_rig.play->addSubtitle(""), -1);
    EXPECT_EQ(m_rig.play->addSubtitle((folder + "/none.srt").c_str()), -1);
    EXPECT_EQ(m_rig.play->addSubtitle(folder.c_str()), -1);
    const std::string pipe = folder + "/pipe.srt";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(m_rig.play->addSubtitle(pipe.c_str()), -1);
    TestClips::write(folder + "/empty.srt", "");
    EXPECT_EQ(m_rig.play->addSubtitle((folder + "/empty.srt").c_str()), -1);
    TestClips::write(folder + "/noise.srt", std::string("\x00\x01\x02\xFF\xFE", 5));
    EXPECT_EQ(m_rig.play->addSubtitle((folder + "/noise.srt").c_str()), -1);
    TestClips::write(folder + "/list.m3u", "#EXTM3U\n" + TestClips::path("dark.srt"));
    EXPECT_EQ(m_rig.play->addSubtitle((folder + "/list.m3u").c_str()), -1);
    EXPECT_EQ(m_rig.play->subtitleCount(0), 3);
}

TEST_F(PlayTracks, CharsetIsAppliedToAFileThatIsOpen)
{
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.charset", "1252"));
    const int index = m_rig.play->addSubtitle(TestClips::path("cyrillic.srt").c_str());
    ASSERT_GE(index, 0);
    m_rig.play->setSubtitleTrack(index);
    ASSERT_TRUE(
        m_rig.waitForProperty("sub-text", [](const MpvValue &value) { return !value.text().empty(); }));
    EXPECT_NE(m_rig.tool->readProperty("sub-text").text(), "Привет");
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.charset", "1251"));
    EXPECT_TRUE(m_rig.waitForProperty("sub-text", "Привет"));
}

TEST_F(PlayTracks, ASubtitleFileThatIsOpenAlreadyIsNotAddedTwice)
{
    const int index = m_rig.play->addSubtitle(TestClips::path("dark.srt").c_str());
    ASSERT_EQ(index, 3);
    EXPECT_EQ(m_rig.play->addSubtitle(TestClips::path("dark.srt").c_str()), index);
    EXPECT_EQ(m_rig.play->subtitleCount(0), 4);
}

} // namespace
