#include "play/PlayRig.h"
#include "play/TestClips.h"

#include "engine/AudioOutputs.h"

#include <gtest/gtest.h>

using namespace libvp;

namespace {

class PlaySound : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_rig.open(TestClips::path("plain.mp4"))); }

    bool waitForNumber(const char *name, double wanted)
    {
        return m_rig.waitForProperty(
            name, [wanted](const MpvValue &value) { return std::abs(value.number(-1e9) - wanted) < 0.01; });
    }

    PlayRig m_rig;
};

TEST_F(PlaySound, VolumeGoesFromNullToTwoHundredPercent)
{
    for (const float volume : {0.0f, 0.3f, 1.0f, 2.0f}) {
        m_rig.tool->setVolume(volume);
        EXPECT_TRUE(m_rig.output.waitForVolume(volume));
        EXPECT_TRUE(waitForNumber("volume", static_cast<double>(volume) * 100)) << volume;
    }
    m_rig.tool->setVolume(7);
    EXPECT_TRUE(m_rig.output.waitForVolume(2));
    m_rig.tool->setVolume(-1);
    EXPECT_TRUE(m_rig.output.waitForVolume(0));
    m_rig.tool->setVolume(std::nanf(""));
    EXPECT_TRUE(m_rig.output.waitForVolume(1));
}

TEST_F(PlaySound, VolumeAndMuteHoldForTheNextPlay)
{
    m_rig.tool->setVolume(0.4f);
    m_rig.tool->setMute(true);
    EXPECT_TRUE(m_rig.output.waitForMute(true));
    EXPECT_TRUE(m_rig.waitForProperty("mute", true));
    ASSERT_TRUE(m_rig.open(TestClips::path("clip.avi")));
    EXPECT_TRUE(m_rig.tool->readProperty("mute").flag());
    EXPECT_NEAR(m_rig.tool->readProperty("volume").number(), 40, 0.01);
    m_rig.tool->setMute(false);
    EXPECT_TRUE(m_rig.output.waitForMute(false));
}

TEST_F(PlaySound, AmplificationOfSixtyAddsSixDecibels)
{
    m_rig.tool->setVolume(1);
    m_rig.tool->setAudioAmplification(60);
    // A gain of 6 dB is the third power of the volume.
    EXPECT_TRUE(waitForNumber("volume", 100 * std::cbrt(std::pow(10, 6 / 20.0))));
    m_rig.tool->setVolume(2);
    EXPECT_TRUE(waitForNumber("volume", 200 * std::cbrt(std::pow(10, 6 / 20.0))));
    m_rig.tool->setAudioAmplification(0);
    EXPECT_TRUE(waitForNumber("volume", 200));
}

TEST_F(PlaySound, DelayAndChannels)
{
    m_rig.tool->setAudioDelay(-1.5f);
    EXPECT_TRUE(waitForNumber("audio-delay", -1.5));
    ASSERT_TRUE(m_rig.tool->setIntProperty("audiooutput.channels", 2));
    EXPECT_TRUE(m_rig.waitForProperty("audio-channels", "7.1,5.1,stereo"));
    m_rig.tool->setSpeakerLayout(0);
    EXPECT_TRUE(m_rig.waitForProperty("audio-channels", "stereo"));
    m_rig.tool->setSpeakerLayout(1);
    EXPECT_TRUE(m_rig.waitForProperty("audio-channels", "5.1,stereo"));
}

// Each of these makes libmpv take its sound away and begin anew.
TEST_F(PlaySound, WhatIsAskedOfTheSoundWhileASourceIsOpenedComesAfterItsStart)
{
    const VDAudioDeviceList *list = nullptr;
    ASSERT_TRUE(m_rig.tool->audioDevices(&list));
    for (int round = 0; round < 10; ++round) {
        const int layout = 1 + round % 2;
        m_rig.tool->setSpeakerLayout(0);
        ASSERT_TRUE(m_rig.begin(TestClips::path("plain.mp4")));
        m_rig.tool->setSpeakerLayout(layout);
        EXPECT_TRUE(m_rig.tool->switchAudioOutput(false, list->devices[0].name));
        ASSERT_TRUE(m_rig.recorder->waitFor("Started")) << round;
        EXPECT_TRUE(m_rig.waitForProperty("audio-channels", AudioOutputs::channelLayouts(layout)));
    }
}

TEST_F(PlaySound, DevicesAreListedOnceAndNamedApart)
{
    const VDAudioDeviceList *list = nullptr;
    ASSERT_TRUE(m_rig.tool->audioDevices(&list));
    ASSERT_GE(list->count, 1);
    for (int i = 0; i < list->count; ++i) {
        for (int k = 0; k < i; ++k)
            EXPECT_STRNE(list->devices[i].name, list->devices[k].name);
    }
    const VDAudioDeviceList *again = nullptr;
    ASSERT_TRUE(m_rig.tool->audioDevices(&again));
    EXPECT_EQ(list, again);
    EXPECT_FALSE(m_rig.tool->audioDevices(nullptr));
    EXPECT_STREQ(m_rig.tool->currentAudioDevice(), list->devices[0].name);
}

TEST_F(PlaySound, OutputIsSwitchedToAKnownDeviceOnly)
{
    EXPECT_FALSE(m_rig.tool->switchAudioOutput(false, ""));
    EXPECT_FALSE(m_rig.tool->switchAudioOutput(true, nullptr));
    EXPECT_FALSE(m_rig.tool->switchAudioOutput(false, "Nobody's device"));
    EXPECT_EQ(m_rig.tool->passThrough(), 0);
    const VDAudioDeviceList *list = nullptr;
    ASSERT_TRUE(m_rig.tool->audioDevices(&list));
    const std::string name = list->devices[list->count - 1].name;
    ASSERT_TRUE(m_rig.tool->switchAudioOutput(false, name.c_str()));
    EXPECT_EQ(m_rig.tool->currentAudioDevice(), name);
    EXPECT_TRUE(m_rig.waitForProperty("audio-device", [](const MpvValue &value) {
        return !value.text().empty() && value.text() != "auto";
    }));
    EXPECT_FALSE(m_rig.tool->setStringProperty("audiooutput.audiodevice", "Nobody's device"));
}

TEST_F(PlaySound, PassThroughTakesTheFormatsOfTheMask)
{
    const VDAudioDeviceList *list = nullptr;
    ASSERT_TRUE(m_rig.tool->audioDevices(&list));
    ASSERT_TRUE(m_rig.tool->switchAudioOutput(true, list->devices[0].name));
    EXPECT_EQ(m_rig.tool->passThrough(), 1);
    m_rig.tool->setSpeakerLayout(VD_Capability_AC3 | VD_Capability_DTS);
    EXPECT_TRUE(m_rig.waitForProperty("audio-spdif", "ac3,eac3,dts"));
    m_rig.tool->setSpeakerLayout(VD_Capability_TrueHD);
    EXPECT_TRUE(m_rig.waitForProperty("audio-spdif", "truehd,dts-hd"));
    ASSERT_TRUE(m_rig.tool->setBoolProperty("audiooutput.passthrough", false));
    EXPECT_TRUE(m_rig.waitForProperty("audio-spdif", ""));
    EXPECT_EQ(m_rig.tool->passThrough(), 0);
}

TEST_F(PlaySound, TapDeliversSoundOnlyWhileItIsWanted)
{
    EXPECT_EQ(m_rig.recorder->count("AudioFrame"), 0);
    ASSERT_TRUE(m_rig.tool->setIntProperty("audio.pcmtap", 1));
    ASSERT_TRUE(m_rig.recorder->waitFor("AudioFrame", 5));
    EXPECT_EQ(m_rig.recorder->pcmFrame.sampleRate, 44100);
    EXPECT_GT(m_rig.recorder->pcmFrame.frameCount, 0);
    EXPECT_TRUE(m_rig.recorder->inOrder()) << "frames come on the same thread as all else";
    ASSERT_TRUE(m_rig.tool->setIntProperty("audio.pcmtap", 0));
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    const int count = m_rig.recorder->count("AudioFrame");
    m_rig.play->togglePause();
    const int start = m_rig.recorder->last("Time").first;
    ASSERT_TRUE(m_rig.waitForTime([start](int ms) { return ms > start + 500; }));
    EXPECT_EQ(m_rig.recorder->count("AudioFrame"), count);
}

struct ConnectionRow {
    const char *name;
    const char *description;
    int connection;
};

TEST(PlayAudioOutputs, ConnectionFollowsFromTheNames)
{
    const ConnectionRow rows[] = {
        {"auto", "Autoselect device", VD_Connection_Analog},
        {"pulse/alsa_output.pci-0000_01_00.1.hdmi-stereo", "Built-in Audio", VD_Connection_Hdmi},
        {"alsa/iec958:CARD=PCH", "HDA Intel PCH", VD_Connection_Optical},
        {"wasapi/{1}", "Digital Output (S/PDIF)", VD_Connection_Optical},
        {"wasapi/{2}", "Monitor (DisplayPort)", VD_Connection_DisplayPort},
        {"alsa/front", "Analog Stereo", VD_Connection_Analog},
    };
    for (const ConnectionRow &row : rows)
        EXPECT_EQ(AudioOutputs::connectionOf(row.name, row.description), row.connection) << row.name;
}

TEST(PlayAudioOutputs, ASoundSystemThatComesLaterIsFoundAtTheNextQuestion)
{
    int questions = 0;
    bool isThere = false;
    AudioOutputs outputs([&] {
        ++questions;
        return isThere ? MpvValue(MpvList{MpvMap{{"name", "a"}, {"description", "Speaker"}}})
                       : MpvValue(MpvList{});
    });
    EXPECT_EQ(outputs.devices().count, 0);
    EXPECT_EQ(outputs.nativeName("Speaker"), "");
    EXPECT_EQ(questions, 2);
    isThere = true;
    EXPECT_EQ(outputs.devices().count, 1);
    EXPECT_EQ(outputs.nativeName("Speaker"), "a");
    EXPECT_EQ(outputs.devices().count, 1);
    EXPECT_EQ(questions, 3) << "what is known is not asked for again";
}

TEST(PlayAudioOutputs, DevicesOfOneDescriptionStayApart)
{
    AudioOutputs outputs([] {
        return MpvValue(MpvList{MpvMap{{"name", "a"}, {"description", "Speaker"}},
                                MpvMap{{"name", "b"}, {"description", "Speaker"}},
                                MpvMap{{"name", "c/hdmi"}}});
    });
    const VDAudioDeviceList &list = outputs.devices();
    ASSERT_EQ(list.count, 3);
    EXPECT_STREQ(list.devices[0].name, "Speaker");
    EXPECT_STREQ(list.devices[1].name, "Speaker (b)");
    EXPECT_STREQ(list.devices[2].name, "c/hdmi");
    EXPECT_EQ(outputs.nativeName("Speaker (b)"), "b");
    EXPECT_EQ(outputs.nativeName("c/hdmi"), "c/hdmi");
    EXPECT_EQ(list.devices[2].capability,
              unsigned{VD_Capability_AC3} | VD_Capability_DTS | VD_Capability_TrueHD);
    EXPECT_EQ(list.devices[0].capability, 0u);
}

TEST(PlayAudioOutputs, NoSoundSystemGivesAnEmptyList)
{
    AudioOutputs outputs([] { return MpvValue(); });
    EXPECT_EQ(outputs.devices().count, 0);
    EXPECT_TRUE(outputs.nativeName("any").empty());
}

} // namespace
