// From the window's request to an engine that has its preferences.
#include "support/Eventually.h"
#include "support/FakeEngineLoader.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "player/DeferredSetup.h"
#include "player/QPlayer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSignalSpy>

#include <algorithm>

namespace {

class DeferredSetupTest : public testing::Test {
protected:
    DeferredSetupTest()
    {
        QPlayer::releaseInstance();
        QPlayer::setLoaderFactory(fakeEngineLoader);
        fakeEngine().reset();
    }
    ~DeferredSetupTest() override
    {
        fakeEngine().release("IVDPlayTool::audioDevices");
        fakeEngine().release("IVDPlayTool::isValid");
        m_setUp.cancel();
        QPlayer::releaseInstance();
        for (const char *key : {SettingsKeys::PC_EnableHardware, SettingsKeys::PC_DefaultAudioDeviceName,
                                SettingsKeys::PC_AudioAutomatic})
            SettingsManager::instance()->remove(QLatin1String(key));
    }

    static std::ptrdiff_t place(const std::string &call)
    {
        const auto calls = fakeEngine().calls();
        const auto found = std::find(calls.begin(), calls.end(), call);
        return found == calls.end() ? -1 : found - calls.begin();
    }

    QWidget m_surface;
    DeferredSetup m_setUp{&m_surface};
    QSignalSpy m_ready{&m_setUp, &DeferredSetup::ready};
    QSignalSpy m_failed{&m_setUp, &DeferredSetup::failed};
};

} // namespace

TEST_F(DeferredSetupTest, TheEngineHasThePreferencesWhenItIsReady)
{
    SettingsManager::instance()->setValue(QLatin1String(SettingsKeys::PC_EnableHardware), false);
    m_setUp.start();
    ASSERT_EVENTUALLY(m_ready.count() == 1);
    EXPECT_GE(place("IVDPlayTool::enableHardwareDecoding(false)"), 0);
    EXPECT_GE(place("IVDPlayTool::setRegion(1)"), 0);
    EXPECT_GT(place("IVDPlayTool::enableHardwareDecoding(false)"), place("IVDPlayTool::isValid()"));
    EXPECT_TRUE(m_setUp.waitUntilDone());
}

TEST_F(DeferredSetupTest, AWindowThatIsCompleteNeedNotWaitForItsFirstTurn)
{
    m_setUp.goOn();
    EXPECT_EQ(m_setUp.player(), nullptr) << "nothing has begun";
    m_setUp.start();
    QDeadlineTimer deadline(5000);
    while (m_ready.isEmpty() && !deadline.hasExpired())
        m_setUp.goOn();
    ASSERT_EQ(m_ready.count(), 1);
    EXPECT_GE(place("IVDPlayTool::setRegion(1)"), 0);
    // What the worker said meanwhile comes now and is stale.
    QCoreApplication::processEvents();
    EXPECT_EQ(m_ready.count(), 1);
    EXPECT_EQ(m_failed.count(), 0);
    EXPECT_TRUE(m_setUp.waitUntilDone());
}

TEST_F(DeferredSetupTest, AStaleWordOfTheFirstStepDoesNotEndTheSecond)
{
    fakeEngine().hold("IVDPlayTool::isValid");
    m_setUp.start();
    QDeadlineTimer deadline(5000);
    while (!m_setUp.player() && !deadline.hasExpired())
        m_setUp.goOn();
    ASSERT_EVENTUALLY(place("IVDPlayTool::isValid()") >= 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_ready.count(), 0);
    EXPECT_EQ(m_failed.count(), 0);
    fakeEngine().release("IVDPlayTool::isValid");
    ASSERT_EVENTUALLY(m_ready.count() == 1);
    EXPECT_EQ(m_failed.count(), 0);
}

TEST_F(DeferredSetupTest, AnOutputThatFailsGetsNoPreferences)
{
    fakeEngine().answer("IVDPlayTool::isValid", 0);
    m_setUp.start();
    ASSERT_EVENTUALLY(m_failed.count() == 1);
    EXPECT_EQ(place("IVDPlayTool::enableHardwareDecoding(true)"), -1);
    EXPECT_EQ(m_ready.count(), 0);
    EXPECT_FALSE(m_setUp.waitUntilDone());
}

TEST_F(DeferredSetupTest, ASourceNeedNotWaitForTheSoundDevicesWhereNothingWasChosen)
{
    fakeEngine().hold("IVDPlayTool::audioDevices");
    m_setUp.start();
    ASSERT_EVENTUALLY(m_ready.count() == 1);
    EXPECT_TRUE(m_setUp.waitUntilDone());
    ASSERT_EVENTUALLY(place("IVDPlayTool::audioDevices()") >= 0);
    fakeEngine().release("IVDPlayTool::audioDevices");
}

TEST_F(DeferredSetupTest, AChosenDeviceIsThereBeforeASourcePlays)
{
    auto *settings = SettingsManager::instance();
    settings->setValue(QLatin1String(SettingsKeys::PC_DefaultAudioDeviceName), "Living room");
    settings->setValue(QLatin1String(SettingsKeys::PC_AudioAutomatic), false);
    fakeEngine().hold("IVDPlayTool::audioDevices");
    m_setUp.start();
    ASSERT_EVENTUALLY(place("IVDPlayTool::audioDevices()") >= 0);
    EXPECT_EQ(m_ready.count(), 0);
    fakeEngine().release("IVDPlayTool::audioDevices");
    ASSERT_EVENTUALLY(m_ready.count() == 1);
}
