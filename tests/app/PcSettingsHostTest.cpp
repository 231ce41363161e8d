// The settings dialog on an engine whose sound system takes its time.
#include "support/Eventually.h"
#include "support/FakeEngineLoader.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "pc/PcSettingsHost.h"
#include "player/QPlayer.h"
#include "settings/NormalSettingPage.h"

#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr char kDevices[] = "IVDPlayTool::audioDevices";

libvp::VDAudioDevice device(const char *name, int connection)
{
    libvp::VDAudioDevice made;
    qstrncpy(made.name, name, sizeof(made.name));
    made.connection = connection;
    return made;
}

class PcSettingsHostTest : public testing::Test {
protected:
    PcSettingsHostTest()
    {
        fakeEngine().reset();
        fakeEngine().setAudioDevices(
            {device("Speakers", libvp::VD_Connection_Analog), device("Receiver", libvp::VD_Connection_Hdmi)});
        m_player = std::make_unique<QPlayer>(fakeEngineLoader(), &m_settings);
        m_surface.resize(640, 360);
        m_player->setVideoParent(&m_surface, 0x1234);
        EXPECT_TRUE(m_player->ensureTool());
        fakeEngine().clearCalls();
    }
    ~PcSettingsHostTest() override
    {
        for (const char *operation : {kDevices, "IVDPlayTool::enableHardwareDecoding"})
            fakeEngine().release(operation);
        m_host.shutDown();
    }

    static int count(const std::string &beginning)
    {
        const auto calls = fakeEngine().calls();
        return int(std::count_if(calls.begin(), calls.end(), [&beginning](const std::string &call) {
            return call.compare(0, beginning.size(), beginning) == 0;
        }));
    }

    QTemporaryDir m_folder;
    SettingsManager m_settings{m_folder.filePath(QStringLiteral("config.ini"))};
    QWidget m_surface;
    std::unique_ptr<QPlayer> m_player;
    PcSettingsHost m_host{m_settings, [this] { return m_player.get(); }};
};

} // namespace

TEST_F(PcSettingsHostTest, OpeningDoesNotWaitForTheListOfSoundDevices)
{
    fakeEngine().hold(kDevices);
    NormalSettingPage dialog(m_settings, m_host);
    dialog.prepare();
    EXPECT_TRUE(dialog.model().devicesOfMode().isEmpty());
    ASSERT_TRUE(fakeEngine().waitHeld(kDevices));
    // A dialog that is opened again does not ask again.
    dialog.prepare();
    fakeEngine().release(kDevices);
    ASSERT_EVENTUALLY(!dialog.model().devicesOfMode().isEmpty());
    EXPECT_EQ(dialog.model().devicesOfMode().first(), m_player->knownAudioDevices().first().name);
    EXPECT_EQ(count(kDevices), 1);
    EXPECT_EQ(m_host.audioDevices().size(), m_player->knownAudioDevices().size());
}

TEST_F(PcSettingsHostTest, WhatTheUserChoseMeanwhileStays)
{
    fakeEngine().hold(kDevices);
    NormalSettingPage dialog(m_settings, m_host);
    dialog.prepare();
    dialog.model().setValue(SettingsKeys::PC_EnableHardware, false);
    dialog.model().setValue(SettingsKeys::PC_Speaker, 2);
    fakeEngine().release(kDevices);
    ASSERT_EVENTUALLY(!dialog.model().devicesOfMode().isEmpty());
    EXPECT_FALSE(dialog.model().value(SettingsKeys::PC_EnableHardware).toBool());
    EXPECT_EQ(dialog.model().value(SettingsKeys::PC_Speaker).toInt(), 2);
}

TEST_F(PcSettingsHostTest, SavingDoesNotWaitForTheEngine)
{
    fakeEngine().hold("IVDPlayTool::enableHardwareDecoding");
    fakeEngine().hold(kDevices);
    NormalSettingPage dialog(m_settings, m_host);
    dialog.prepare();
    dialog.model().setValue(SettingsKeys::PC_VolumeAmplification, 12);
    (void)dialog.model().save();
    EXPECT_EQ(m_settings.value(SettingsKeys::PC_VolumeAmplification).toInt(), 12);
    EXPECT_EQ(count("IVDPlayTool::setAudioAmplification"), 0);
    fakeEngine().release(kDevices);
    fakeEngine().release("IVDPlayTool::enableHardwareDecoding");
    ASSERT_TRUE(fakeEngine().waitCall("IVDPlayTool::setAudioAmplification"));
    // The groups come in the order in which they were saved.
    ASSERT_TRUE(fakeEngine().waitCall("IVDPlayTool::setRegion"));
    const auto calls = fakeEngine().calls();
    const auto place = [&calls](const std::string &beginning) {
        return std::find_if(calls.begin(), calls.end(), [&beginning](const std::string &call) {
            return call.compare(0, beginning.size(), beginning) == 0;
        });
    };
    EXPECT_LT(place("IVDPlayTool::enableHardwareDecoding"), place("IVDPlayTool::setAudioAmplification"));
    EXPECT_LT(place("IVDPlayTool::setAudioAmplification"), place("IVDPlayTool::setRegion"));
}

TEST_F(PcSettingsHostTest, ADialogThatIsGoneIsNotTold)
{
    fakeEngine().hold(kDevices);
    {
        NormalSettingPage dialog(m_settings, m_host);
        dialog.prepare();
    }
    ASSERT_TRUE(fakeEngine().waitHeld(kDevices));
    fakeEngine().release(kDevices);
    ASSERT_EVENTUALLY(!m_player->knownAudioDevices().isEmpty());
    QCoreApplication::processEvents();
}

TEST_F(PcSettingsHostTest, AnEngineWithoutDevicesIsAskedAgainByTheNextDialogOnly)
{
    fakeEngine().setAudioDevices({});
    int told = 0;
    m_host.setAudioDevicesHandler([&told] { ++told; });
    EXPECT_TRUE(m_host.audioDevices().isEmpty());
    ASSERT_EVENTUALLY(count(kDevices) == 1);
    ASSERT_EVENTUALLY(m_host.audioDevices().isEmpty() && count(kDevices) == 2);
    EXPECT_EQ(told, 0);
}

TEST_F(PcSettingsHostTest, WithoutAPlayerThereIsNothingToAskOrTell)
{
    PcSettingsHost host(m_settings, [] { return nullptr; });
    EXPECT_TRUE(host.audioDevices().isEmpty());
    host.applyVideo();
    host.applyAudio();
    host.shutDown();
    EXPECT_TRUE(fakeEngine().calls().empty());
}

TEST_F(PcSettingsHostTest, TheEndForgetsWhatWasNotToldYet)
{
    fakeEngine().hold("IVDPlayTool::enableHardwareDecoding");
    m_host.applyVideo();
    ASSERT_TRUE(fakeEngine().waitHeld("IVDPlayTool::enableHardwareDecoding"));
    m_host.applyRegion();
    // The end waits for the call that is under way.
    fakeEngine().release("IVDPlayTool::enableHardwareDecoding");
    m_host.shutDown();
    const int calls = int(fakeEngine().calls().size());
    m_host.applyAudio();
    m_host.applyProxy();
    EXPECT_EQ(int(fakeEngine().calls().size()), calls);
}
