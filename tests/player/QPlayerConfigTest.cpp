// What the player takes from the settings before the engine starts.
#include "PlayerFixture.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"

#include <QDir>

namespace {

class QPlayerConfig : public PlayerTest {
protected:
    [[nodiscard]] QString logFolder()
    {
        makePlayer();
        return QString::fromUtf8(engine.playerConfig()->path(2));
    }
};

} // namespace

TEST_F(QPlayerConfig, WithoutALogPathTheLogFolderIsUsedAndNotStored)
{
    EXPECT_EQ(logFolder(), ApplicationInfoManager::instance()->logFolder());
    EXPECT_FALSE(settings.contains(SettingsKeys::PC_LogPath));
}

TEST_F(QPlayerConfig, AnExistingLogPathIsUsed)
{
    const QString chosen = folder.filePath(QString::fromUtf8("l\xC3\xB6g"));
    ASSERT_TRUE(QDir().mkpath(chosen));
    settings.setValue(SettingsKeys::PC_LogPath, chosen);
    EXPECT_EQ(logFolder(), chosen);
    EXPECT_EQ(settings.value(SettingsKeys::PC_LogPath).toString(), chosen);
}

TEST_F(QPlayerConfig, ALogPathThatIsGoneIsReplacedInTheSettings)
{
    settings.setValue(SettingsKeys::PC_LogPath, folder.filePath(QStringLiteral("gone")));
    const QString standard = ApplicationInfoManager::instance()->logFolder();
    EXPECT_EQ(logFolder(), standard);
    EXPECT_EQ(settings.value(SettingsKeys::PC_LogPath).toString(), standard);
}

TEST_F(QPlayerConfig, TheRegionCodeFillsBothRegions)
{
    settings.setValue(SettingsKeys::PC_RegionCode, 3);
    makePlayer();
    const libvp::VDRegionRecord *record = engine.playerConfig()->regionRecord();
    EXPECT_EQ(record->dvdRegion, 3);
    EXPECT_EQ(record->bluRayRegion, 3);
    EXPECT_EQ(record->reserved8, 2050);
    EXPECT_EQ(record->reserved12, 1);
    EXPECT_EQ(record->reserved16, 1);
    EXPECT_EQ(record->reserved20, 0);
}

TEST_F(QPlayerConfig, TheSharedBlockIsOneForTheProcess)
{
    void *block = engine.playerConfig()->sharedBlock(1 << 20);
    ASSERT_NE(block, nullptr);
    makePlayer();
    EXPECT_EQ(engine.playerConfig()->sharedBlock(1 << 20), block);
}

TEST_F(QPlayerConfig, ThreeDChoicesArePushedFromTheSettings)
{
    settings.setValue(SettingsKeys::PC_PlayIn3D, true);
    settings.setValue(SettingsKeys::PC_3DMode, 3);
    settings.setValue(SettingsKeys::PC_3DSourceType, 2);
    settings.setValue(SettingsKeys::PC_MoveDirection, 1);
    Heard states(*player, &QPlayer::sig_3DEngineStateChanged);
    ASSERT_TRUE(player->ensureTool());
    engine.clearCalls();
    player->setup3D();
    player->setup3D();
    const std::vector<std::string> once{"IVDPlayTool::set3DEngine(true)", "IVDPlayTool::set3DInputLayout(2)",
                                        "IVDPlayTool::set3DParallax(1)",
                                        "IVDPlayTool::setIntProperty(videoscreen.stereoscopicmode, 3)"};
    auto calls = takeCalls();
    ASSERT_EQ(calls.size(), 8U);
    EXPECT_EQ(std::vector<std::string>(calls.begin(), calls.begin() + 4), once);
    EXPECT_EQ(states.all.size(), 1U);
    EXPECT_TRUE(player->is3DEngineOn());

    settings.setValue(SettingsKeys::PC_3DEngine, false);
    player->setup3D();
    EXPECT_THAT(takeCalls(),
                testing::ElementsAre("IVDPlayTool::set3DEngine(false)",
                                     "IVDPlayTool::setIntProperty(videoscreen.stereoscopicmode, 9)"));
    EXPECT_EQ(states.all.size(), 2U);
}
