// The setters that push the stored preferences into the engine.
#include "PlayerFixture.h"

#include <QFile>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class QPlayerSetup : public PlayerTest {
protected:
    QPlayerSetup()
    {
        EXPECT_TRUE(player->ensureTool());
        engine.clearCalls();
    }
};

libvp::VDAudioDevice device(const char *name, int connection, unsigned capability)
{
    libvp::VDAudioDevice made;
    qstrncpy(made.name, name, sizeof(made.name));
    made.connection = connection;
    made.capability = capability;
    return made;
}

} // namespace

TEST_F(QPlayerSetup, EachSetterReachesItsOperation)
{
    const std::pair<std::function<void(QPlayer &)>, const char *> rows[] = {
        {[](QPlayer &p) { p.setHardwareDecoding(true); }, "IVDPlayTool::enableHardwareDecoding(true)"},
        {[](QPlayer &p) { p.setToneMap(false); }, "IVDPlayTool::enableToneMap(false)"},
        {[](QPlayer &p) { p.setHDRMode(1); }, "IVDPlayTool::setHDRMode(1)"},
        {[](QPlayer &p) { p.setSDRMode(3); }, "IVDPlayTool::setSDRMode(3)"},
        {[](QPlayer &p) { p.setSDRValue(50); }, "IVDPlayTool::setIntProperty(videoscreen.sdrvalue, 50)"},
        {[](QPlayer &p) { p.setLimitedRange(true); },
         "IVDPlayTool::setBoolProperty(videoscreen.limitedrange, true)"},
        {[](QPlayer &p) { p.setVideoOutput(QStringLiteral("gpu,x11")); },
         "IVDPlayTool::setStringProperty(video.output, gpu,x11)"},
        {[](QPlayer &p) { p.setOutputMode(2); }, "IVDPlayTool::setSpeakerLayout(2)"},
        {[](QPlayer &p) { p.setAudioChannels(1); }, "IVDPlayTool::setIntProperty(audiooutput.channels, 1)"},
        {[](QPlayer &p) { p.setAudioAmplification(30); }, "IVDPlayTool::setAudioAmplification(30)"},
        {[](QPlayer &p) { p.setAudioDelay(-0.5F); }, "IVDPlayTool::setAudioDelay(-0.5)"},
        {[](QPlayer &p) { p.setSubtitleFont(QStringLiteral("Noto Sans")); },
         "IVDPlayTool::setSubtitleFont(Noto Sans)"},
        {[](QPlayer &p) { p.setSubtitleSize(24); }, "IVDPlayTool::setSubtitleSize(24)"},
        {[](QPlayer &p) { p.setSubtitlePosition(2); }, "IVDPlayTool::setSubtitlePosition(2, 0)"},
        {[](QPlayer &p) { p.setSubtitleColor(QStringLiteral("#ffffff")); },
         "IVDPlayTool::setSubtitleColor(#ffffff)"},
        {[](QPlayer &p) { p.setSubtitleOutlineColor(QStringLiteral("#000000")); },
         "IVDPlayTool::setStringProperty(subtitles.outlinecolor, #000000)"},
        {[](QPlayer &p) { p.setSubtitleBold(true); }, "IVDPlayTool::setSubtitleBold(true)"},
        {[](QPlayer &p) { p.setSubtitleItalic(true); }, "IVDPlayTool::setSubtitleItalic(true)"},
        {[](QPlayer &p) { p.setSubtitleOutline(true); }, "IVDPlayTool::setSubtitleOutline(true)"},
        {[](QPlayer &p) { p.setSubtitleOverride(true); }, "IVDPlayTool::setSubtitleOverride(true)"},
        {[](QPlayer &p) { p.setSubtitleCharset(QStringLiteral("936")); },
         "IVDPlayTool::setStringProperty(subtitles.charset, 936)"},
        {[](QPlayer &p) { p.setSubtitleOffset(1.5F); }, "IVDPlayTool::setSubtitleOffset(1.5)"},
        {[](QPlayer &p) { p.setRegion(2); }, "IVDPlayTool::setRegion(2)"},
        {[](QPlayer &p) { p.setUiLanguage(1031); }, "IVDPlayTool::setUiLanguage(1031)"},
        {[](QPlayer &p) {
             p.setProxy(1, QStringLiteral("host"), 8080, QStringLiteral("me"), QStringLiteral("word"));
         },
         "IVDPlayTool::setProxy(1, host, 8080, me, word)"},
        {[](QPlayer &p) { p.setBrightness(44); }, "IVDPlayTool::setBrightness(44)"},
        {[](QPlayer &p) { p.setSaturation(51); }, "IVDPlayTool::setSaturation(51)"},
        {[](QPlayer &p) { p.setContrast(64); }, "IVDPlayTool::setContrast(64)"},
        {[](QPlayer &p) { p.setDeinterlaceMode(2); }, "IVDPlayTool::setDeinterlaceMode(2)"},
        {[](QPlayer &p) { p.setZoomAmount(1.5F); }, "IVDPlayTool::setZoomAmount(1.5)"},
        {[](QPlayer &p) { p.setVerticalShift(-0.5F); }, "IVDPlayTool::setVerticalShift(-0.5)"},
        {[](QPlayer &p) { p.setPixelRatio(0.5F); }, "IVDPlayTool::setPixelRatio(0.5)"},
        {[](QPlayer &p) { p.resizeSurface(800, 600); }, "IVDPlayTool::resizeSurface(800, 600)"},
        {[](QPlayer &p) { p.forwardWindowMove(3, 4); }, "IVDPlayTool::forwardWindowMove(3, 4)"},
        {[](QPlayer &p) { p.forwardWindowMessage(0x200, 1, 2, 3, 4); },
         "IVDPlayTool::forwardWindowMessage(512, 1, 2, 3, 4)"},
        {[](QPlayer &p) { p.showInformationOverlay(true); }, "IVDPlayTool::showInformationOverlay(true)"},
        {[](QPlayer &p) { p.set3DInputLayout(1); }, "IVDPlayTool::set3DInputLayout(1)"},
        {[](QPlayer &p) { p.set3DParallax(1); }, "IVDPlayTool::set3DParallax(1)"},
        {[](QPlayer &p) { p.set3DMode(4); }, "IVDPlayTool::setIntProperty(videoscreen.stereoscopicmode, 4)"},
        {[](QPlayer &p) { p.setAngle(1); }, "IVDPlayTool::setIntProperty(play.angle, 1)"},
    };
    for (const auto &[setter, call] : rows) {
        setter(*player);
        EXPECT_THAT(takeCalls(), ElementsAre(call));
    }
}

TEST_F(QPlayerSetup, AResizeToNothingIsDropped)
{
    player->resizeSurface(0, 100);
    player->resizeSurface(100, -1);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(QPlayerSetup, TheDeviceListIsAskedOnceAndKept)
{
    engine.setAudioDevices({device("Speakers", 1, 0), device("Receiver", 3, 7)});
    const QList<PlayerAudioDevice> devices = player->audioDevices();
    ASSERT_EQ(devices.size(), 2);
    EXPECT_EQ(devices[1].name, QStringLiteral("Receiver"));
    EXPECT_EQ(devices[1].connection, 3);
    EXPECT_EQ(devices[1].capability, 7U);
    engine.setAudioDevices({});
    EXPECT_EQ(player->audioDevices().size(), 2);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::audioDevices()"));
}

TEST_F(QPlayerSetup, AnEmptyDeviceListIsAskedAgain)
{
    EXPECT_TRUE(player->audioDevices().isEmpty());
    engine.setAudioDevices({device("Speakers", 1, 0)});
    EXPECT_EQ(player->audioDevices().size(), 1);
}

TEST_F(QPlayerSetup, APlainDeviceSwitchesPassThroughOff)
{
    EXPECT_TRUE(player->setAudioOutput(false, QStringLiteral("Speakers")));
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::switchAudioOutput(false, Speakers)",
                                         "IVDPlayTool::setStringProperty(audiooutput.audiodevice, Speakers)",
                                         "IVDPlayTool::setBoolProperty(audiooutput.passthrough, false)"));
    EXPECT_EQ(player->passThrough(), 0);
}

TEST_F(QPlayerSetup, APassThroughDeviceSwitchesItOn)
{
    EXPECT_TRUE(player->setAudioOutput(true, QStringLiteral("Receiver")));
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::switchAudioOutput(true, Receiver)",
                            "IVDPlayTool::setStringProperty(audiooutput.passthroughdevice, Receiver)",
                            "IVDPlayTool::setBoolProperty(audiooutput.passthrough, true)"));
    EXPECT_EQ(player->passThrough(), 1);
}

TEST_F(QPlayerSetup, AnEmptyOrUnknownDeviceChangesNothing)
{
    EXPECT_FALSE(player->setAudioOutput(true, QString()));
    EXPECT_THAT(takeCalls(), IsEmpty());
    engine.answer("IVDPlayTool::switchAudioOutput", 0);
    EXPECT_FALSE(player->setAudioOutput(false, QStringLiteral("Gone")));
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::switchAudioOutput(false, Gone)"));
}

TEST_F(QPlayerSetup, AShaderMustExistAndAnEmptyPathSwitchesItOff)
{
    EXPECT_FALSE(player->setCustomShader(folder.filePath(QStringLiteral("none.glsl"))));
    EXPECT_THAT(takeCalls(), IsEmpty());
    QFile file(folder.filePath(QString::fromUtf8("\xC3\xA4.glsl")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(player->setCustomShader(file.fileName()));
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::setCustomShader(" + file.fileName().toStdString() + ")"));
    EXPECT_TRUE(player->setCustomShader(QString()));
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setCustomShader()"));
}

TEST_F(QPlayerSetup, TextsOfTheEngineAreCopied)
{
    engine.answerText("IVDPlayTool::currentAudioDevice", "Speakers");
    engine.answerText("IVDPlayTool::customShader", "/a.glsl");
    EXPECT_EQ(player->currentAudioDevice(), QStringLiteral("Speakers"));
    EXPECT_EQ(player->customShader(), QStringLiteral("/a.glsl"));
}

TEST_F(QPlayerSetup, PropertiesTellWhetherTheEngineKnowsThem)
{
    EXPECT_TRUE(player->setIntProperty("a", 1));
    engine.answer("IVDPlayTool::setIntProperty", 0);
    EXPECT_FALSE(player->setIntProperty("b", 1));
}
