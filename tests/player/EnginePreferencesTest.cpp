// What the engine gets of the stored preferences, and what is completed in the settings.
#include "PlayerFixture.h"

#include "support/TestLog.h"

#include "core/SettingsKeys.h"
#include "player/EnginePreferences.h"

#include <QFile>
#include <QSettings>

using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

libvp::VDAudioDevice device(const char *name, int connection, unsigned capability)
{
    libvp::VDAudioDevice made;
    qstrncpy(made.name, name, sizeof(made.name));
    made.connection = connection;
    made.capability = capability;
    return made;
}

class EnginePreferencesTest : public PlayerTest {
protected:
    EnginePreferencesTest()
    {
        engine.setAudioDevices({device("Speakers", libvp::VD_Connection_Analog, 0),
                                device("Receiver", libvp::VD_Connection_Hdmi, 7),
                                device("Optical", libvp::VD_Connection_Optical, 3)});
        EXPECT_TRUE(player->ensureTool());
        engine.clearCalls();
    }

    void set(const char *key, const QVariant &value) { settings.setValue(QLatin1String(key), value); }
    [[nodiscard]] QVariant stored(const char *key) const { return settings.value(QLatin1String(key)); }
    [[nodiscard]] bool has(const char *key) const { return settings.contains(QLatin1String(key)); }
    [[nodiscard]] QString file(const char *name)
    {
        QFile made(folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        made.write("//!HOOK MAIN\n");
        return made.fileName();
    }

    // Lines of the log that begin so.
    [[nodiscard]] static QStringList lines(const char *beginning)
    {
        return TestLog::infoLines().filter(
            QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(QLatin1String(beginning))));
    }

    EnginePreferences preferences{settings, *player};
};

const char *const limitedRange = "IVDPlayTool::setBoolProperty(videoscreen.limitedrange, true)";
const char *const fullRange = "IVDPlayTool::setBoolProperty(videoscreen.limitedrange, false)";

} // namespace

// ---- video

TEST_F(EnginePreferencesTest, VideoChoicesReachTheirOperations)
{
    set(SettingsKeys::PC_EnableHardware, false);
    set(SettingsKeys::PC_EnableHDR, false);
    set(SettingsKeys::PC_SDRMode, 2);
    set(SettingsKeys::PC_SDRValue, 70);
    set(SettingsKeys::PC_HDRMode, 1);
    set(SettingsKeys::PC_ColorMode, 0);
    preferences.applyVideo();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::enableHardwareDecoding(false)", "IVDPlayTool::enableToneMap(false)",
                            "IVDPlayTool::setHDRMode(1)", "IVDPlayTool::setSDRMode(2)",
                            "IVDPlayTool::setIntProperty(videoscreen.sdrvalue, 70)", limitedRange));
    EXPECT_EQ(lines("[PC Video Setup]"),
              (QStringList{"[PC Video Setup] HardWare Decode: false", "[PC Video Setup] HDR Enable: false",
                           "[PC Video Setup] HDR Mode: 1", "[PC Video Setup] SDR Mode: 2",
                           "[PC Video Setup] SDR Value: 70", "[PC Video Setup] Color Mode: 0"}));
}

TEST_F(EnginePreferencesTest, AbsentVideoKeysTakeTheDefaultsAndStayAbsent)
{
    preferences.applyVideo();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::enableHardwareDecoding(true)", "IVDPlayTool::enableToneMap(true)",
                            "IVDPlayTool::setHDRMode(0)", "IVDPlayTool::setSDRMode(4)",
                            "IVDPlayTool::setIntProperty(videoscreen.sdrvalue, 50)", fullRange));
    EXPECT_FALSE(has(SettingsKeys::PC_EnableHardware));
    EXPECT_FALSE(has(SettingsKeys::PC_ColorMode));
}

TEST_F(EnginePreferencesTest, ColorModeOneGivesFullRangeAndEachOtherValueLimitedRange)
{
    for (const int mode : {0, 1, 2, 3, 31}) {
        set(SettingsKeys::PC_ColorMode, mode);
        preferences.applyVideo();
        EXPECT_THAT(takeCalls(), Contains(mode == 1 ? fullRange : limitedRange)) << mode;
    }
}

TEST_F(EnginePreferencesTest, RubbishInTheVideoKeysIsToldAndReplaced)
{
    set(SettingsKeys::PC_EnableHardware, QStringLiteral("perhaps"));
    set(SettingsKeys::PC_SDRValue, QStringLiteral("banana"));
    set(SettingsKeys::PC_SDRMode, QStringLiteral("99999999999999999999"));
    set(SettingsKeys::PC_HDRMode, -7);
    set(SettingsKeys::PC_ColorMode, QByteArray("\x00\xFF", 2));
    preferences.applyVideo();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::enableHardwareDecoding(true)", "IVDPlayTool::enableToneMap(true)",
                            "IVDPlayTool::setHDRMode(0)", "IVDPlayTool::setSDRMode(4)",
                            "IVDPlayTool::setIntProperty(videoscreen.sdrvalue, 50)", fullRange));
    EXPECT_EQ(lines("[Engine config]").size(), 5);
    EXPECT_EQ(stored(SettingsKeys::PC_SDRValue).toString(), QStringLiteral("banana"))
        << "the file is the user's";
}

TEST_F(EnginePreferencesTest, ThePictureComesBackAsItWasLeft)
{
    set(SettingsKeys::PC_Deinterlace, 2);
    set(SettingsKeys::PC_Brightness, 70);
    set(SettingsKeys::PC_Contrast, QStringLiteral("banana"));
    set(SettingsKeys::PC_Saturation, 1000);
    preferences.applyPicture();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::setDeinterlaceMode(2)", "IVDPlayTool::setBrightness(70)",
                            "IVDPlayTool::setContrast(50)", "IVDPlayTool::setSaturation(100)"));
}

// ---- audio

TEST_F(EnginePreferencesTest, TheFirstDeviceIsTakenAndStoredWhenNoneIs)
{
    preferences.applyAudio();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::audioDevices()", "IVDPlayTool::switchAudioOutput(false, Speakers)",
                            "IVDPlayTool::setStringProperty(audiooutput.audiodevice, Speakers)",
                            "IVDPlayTool::setBoolProperty(audiooutput.passthrough, false)",
                            "IVDPlayTool::setSpeakerLayout(0)",
                            "IVDPlayTool::setIntProperty(audiooutput.channels, 0)",
                            "IVDPlayTool::setAudioAmplification(0)", "IVDPlayTool::setAudioDelay(0)",
                            "IVDPlayTool::passThrough()"));
    EXPECT_EQ(stored(SettingsKeys::PC_DefaultAudioDeviceName).toString(), QStringLiteral("Speakers"));
}

TEST_F(EnginePreferencesTest, AudioChoicesReachTheirOperations)
{
    set(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Receiver"));
    set(SettingsKeys::PC_Speaker, 2);
    set(SettingsKeys::PC_VolumeAmplification, 30);
    set(SettingsKeys::PC_AudioOffset, -4);
    set(SettingsKeys::PC_PassThrough, true);
    set(SettingsKeys::PC_AC3, true);
    set(SettingsKeys::PC_DTS, false);
    set(SettingsKeys::PC_TrueHD, true);
    preferences.applyAudio();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::audioDevices()", "IVDPlayTool::switchAudioOutput(true, Receiver)",
                            "IVDPlayTool::setStringProperty(audiooutput.passthroughdevice, Receiver)",
                            "IVDPlayTool::setBoolProperty(audiooutput.passthrough, true)",
                            "IVDPlayTool::setSpeakerLayout(5)",
                            "IVDPlayTool::setIntProperty(audiooutput.channels, 2)",
                            "IVDPlayTool::setAudioAmplification(30)", "IVDPlayTool::setAudioDelay(-4)",
                            "IVDPlayTool::passThrough()"));
    EXPECT_EQ(stored(SettingsKeys::PC_Codec).toInt(), 5);
    EXPECT_EQ(lines("[PC Audio Setup]"),
              (QStringList{"[PC Audio Setup] isPassThroughEnable: true", "[PC Audio Setup] OutputMode: 5",
                           "[PC Audio Setup] CodecMask: 5", "[PC Audio Setup] SpeakerIndex: 2",
                           "[PC Audio Setup] VolumeAmplification: 30", "[PC Audio Setup] AudioOffsize: -4"}));
    EXPECT_THAT(lines("[PC Audio Save]"), IsEmpty());
}

TEST_F(EnginePreferencesTest, AnAnalogDeviceRunsWithoutPassThrough)
{
    engine.setAudioDevices({device("Nothing", libvp::VD_Connection_None, 7),
                            device("Speakers", libvp::VD_Connection_Analog, 7)});
    set(SettingsKeys::PC_PassThrough, true);
    for (const char *name : {"Nothing", "Speakers"}) {
        set(SettingsKeys::PC_DefaultAudioDeviceName, QLatin1String(name));
        makePlayer();
        ASSERT_TRUE(player->ensureTool());
        engine.clearCalls();
        EnginePreferences(settings, *player).applyAudio();
        EXPECT_THAT(takeCalls(),
                    Contains("IVDPlayTool::switchAudioOutput(false, " + std::string(name) + ")"));
        EXPECT_EQ(stored(SettingsKeys::PC_Codec).toInt(), 0);
        EXPECT_TRUE(stored(SettingsKeys::PC_PassThrough).toBool()) << "the choice stays";
    }
}

TEST_F(EnginePreferencesTest, ADeviceThatIsGoneGivesWayToTheFirstAndStaysStored)
{
    set(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Pulled out"));
    preferences.applyAudio();
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::switchAudioOutput(false, Speakers)"));
    EXPECT_EQ(stored(SettingsKeys::PC_DefaultAudioDeviceName).toString(), QStringLiteral("Pulled out"));
    EXPECT_EQ(lines("[PC Audio Setup] the chosen device is not there: Pulled out").size(), 1);
}

TEST_F(EnginePreferencesTest, WithoutADeviceTheAudioKeysAreCompletedAndTheEngineIsLeftAlone)
{
    engine.setAudioDevices({});
    preferences.applyAudio();
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::audioDevices()"));
    EXPECT_TRUE(has(SettingsKeys::PC_Speaker));
    EXPECT_FALSE(has(SettingsKeys::PC_DefaultAudioDeviceName));
    EXPECT_EQ(lines("[PC Audio Setup] there is no sound device").size(), 1);
}

TEST_F(EnginePreferencesTest, ADeviceThatTheEngineRefusesIsTold)
{
    engine.answer("IVDPlayTool::switchAudioOutput", 0);
    preferences.applyAudio();
    EXPECT_THAT(takeCalls(), Not(Contains(HasSubstr("audiooutput.audiodevice"))));
    EXPECT_EQ(lines("[PC Audio Setup] the output stays as it is").size(), 1);
}

TEST_F(EnginePreferencesTest, TheDeviceListIsAskedOnce)
{
    preferences.applyAudio();
    preferences.applyAudio();
    const auto calls = takeCalls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "IVDPlayTool::audioDevices()"), 1);
}

TEST_F(EnginePreferencesTest, ASaveOfThePageIsLoggedUnderItsOwnTag)
{
    set(SettingsKeys::PC_Speaker, 1);
    set(SettingsKeys::PC_VolumeAmplification, 12);
    set(SettingsKeys::PC_AudioOffset, 3);
    preferences.applyAudio(EnginePreferences::Occasion::Save);
    EXPECT_EQ(lines("[PC Audio Save]"),
              (QStringList{"[PC Audio Save] SpeakerIndex: 1", "[PC Audio Save] VolumeAmplification: 12",
                           "[PC Audio Save] AudioOffsize: 3"}));
}

TEST_F(EnginePreferencesTest, WhatTheDeviceCarriesIsStored)
{
    set(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Optical"));
    preferences.applyAudio();
    EXPECT_EQ(stored(SettingsKeys::AudioR_CMPT_Dolby).toInt(), 1);
    EXPECT_EQ(stored(SettingsKeys::AudioR_CMPT_DTS).toInt(), 1);
    EXPECT_EQ(stored(SettingsKeys::AudioR_CMPT_TrueHD_DTSHD).toInt(), 0);
}

TEST_F(EnginePreferencesTest, RubbishInTheAudioKeysIsToldAndReplaced)
{
    set(SettingsKeys::PC_Speaker, 17);
    set(SettingsKeys::PC_VolumeAmplification, QStringLiteral("loud"));
    set(SettingsKeys::PC_AudioOffset, -99);
    set(SettingsKeys::PC_PassThrough, QStringLiteral("@Invalid()"));
    preferences.applyAudio();
    EXPECT_THAT(takeCalls(), testing::IsSupersetOf({"IVDPlayTool::setSpeakerLayout(2)",
                                                    "IVDPlayTool::setAudioAmplification(0)",
                                                    "IVDPlayTool::setAudioDelay(-10)"}));
    EXPECT_EQ(lines("[Engine config]").size(), 4);
}

// ---- subtitles

TEST_F(EnginePreferencesTest, SubtitleChoicesReachTheirOperations)
{
    set(SettingsKeys::PC_Font, QStringLiteral("Noto Serif"));
    set(SettingsKeys::PC_Charset, QStringLiteral("1251"));
    set(SettingsKeys::PC_FontSize, 30);
    set(SettingsKeys::PC_FontPosition, QStringLiteral("Top"));
    set(SettingsKeys::PC_OverrideAss, true);
    set(SettingsKeys::PC_Bold, true);
    set(SettingsKeys::PC_Italic, false);
    set(SettingsKeys::PC_OutLine, true);
    set(SettingsKeys::PC_FontColor, QStringLiteral("#ffff00"));
    set(SettingsKeys::PC_OutLineColor, QStringLiteral("#102030"));
    set(SettingsKeys::PC_SubtitleOffset, -3);
    set(SettingsKeys::PC_SubtitlePath, QStringLiteral("/films/texts"));
    preferences.applySubtitle();
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlayTool::setSubtitlePosition(2, 0)", "IVDPlayTool::setSubtitleOffset(-1.5)",
                            "IVDPlayTool::setSubtitleFont(Noto Serif)", "IVDPlayTool::setSubtitleSize(30)",
                            "IVDPlayTool::setSubtitleOverride(true)", "IVDPlayTool::setSubtitleBold(true)",
                            "IVDPlayTool::setSubtitleItalic(false)", "IVDPlayTool::setSubtitleOutline(true)",
                            "IVDPlayTool::setSubtitleColor(#ffff00)",
                            "IVDPlayTool::setStringProperty(subtitles.outlinecolor, #102030)",
                            "IVDPlayTool::setStringProperty(subtitles.charset, 1251)",
                            "IVDPlayTool::setStringProperty(subtitles.folder, /films/texts)",
                            "IVDPlayTool::setBoolProperty(subtitles.autoload, true)"));
}

TEST_F(EnginePreferencesTest, OnlyTheTextTopPutsSubtitlesAtTheTop)
{
    for (const QVariant &position : {QVariant("Bottom"), QVariant("bottom"), QVariant("top"), QVariant(2),
                                     QVariant(""), QVariant("TOP")}) {
        set(SettingsKeys::PC_FontPosition, position);
        preferences.applySubtitle();
        EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setSubtitlePosition(1, 0)"))
            << position.toString().toStdString();
    }
}

TEST_F(EnginePreferencesTest, ColorsThatAreNoneAreReplaced)
{
    set(SettingsKeys::PC_FontColor, QStringLiteral("red"));
    set(SettingsKeys::PC_OutLineColor, QStringLiteral("#12345"));
    preferences.applySubtitle();
    EXPECT_THAT(takeCalls(),
                testing::IsSupersetOf({"IVDPlayTool::setSubtitleColor(#ffffff)",
                                       "IVDPlayTool::setStringProperty(subtitles.outlinecolor, #000000)"}));
    EXPECT_EQ(lines("[Engine config]").size(), 2);
}

TEST_F(EnginePreferencesTest, AfterAFirstRunTheAudioAndSubtitleKeysAreInTheFile)
{
    preferences.applyAll();
    settings.sync();
    const QSettings file(settings.fileName(), QSettings::IniFormat);
    for (const char *key :
         {SettingsKeys::PC_DefaultAudioDeviceName, SettingsKeys::PC_Speaker,
          SettingsKeys::PC_VolumeAmplification, SettingsKeys::PC_AudioOffset, SettingsKeys::PC_PassThrough,
          SettingsKeys::PC_AC3, SettingsKeys::PC_DTS, SettingsKeys::PC_TrueHD, SettingsKeys::PC_Codec,
          SettingsKeys::PC_Charset, SettingsKeys::PC_FontSize, SettingsKeys::PC_FontPosition,
          SettingsKeys::PC_OverrideAss, SettingsKeys::PC_Bold, SettingsKeys::PC_Italic,
          SettingsKeys::PC_OutLine, SettingsKeys::PC_FontColor, SettingsKeys::PC_OutLineColor,
          SettingsKeys::PC_SubtitleOffset})
        EXPECT_TRUE(file.contains(QLatin1String(key))) << key;
    EXPECT_EQ(file.value(QLatin1String(SettingsKeys::PC_FontColor)).toString(), QStringLiteral("#ffffff"));
    EXPECT_EQ(file.value(QLatin1String(SettingsKeys::PC_OutLineColor)).toString(), QStringLiteral("#000000"));
    EXPECT_TRUE(file.value(QLatin1String(SettingsKeys::PC_AC3)).toBool());
    EXPECT_FALSE(file.value(QLatin1String(SettingsKeys::PC_DTS)).toBool());
}

// What was written reads back as the same choices from the file, where all values are texts.
TEST_F(EnginePreferencesTest, ASecondRunTakesOverWhatTheFirstHasWritten)
{
    preferences.applyAll();
    const auto first = takeCalls();
    settings.sync();
    SettingsManager again(settings.fileName());
    EnginePreferences(again, *player).applyAll();
    auto second = takeCalls();
    second.insert(std::find(second.begin(), second.end(), "IVDPlayTool::switchAudioOutput(false, Speakers)"),
                  "IVDPlayTool::audioDevices()");
    EXPECT_EQ(first, second);
    EXPECT_THAT(lines("[Engine config]"), IsEmpty());
}

// ---- region, shader, proxy

TEST_F(EnginePreferencesTest, TheRegionGoesToTheEngine)
{
    preferences.applyRegion();
    set(SettingsKeys::PC_RegionCode, 3);
    preferences.applyRegion();
    set(SettingsKeys::PC_RegionCode, 77);
    preferences.applyRegion();
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setRegion(1)", "IVDPlayTool::setRegion(3)",
                                         "IVDPlayTool::setRegion(3)"));
}

TEST_F(EnginePreferencesTest, RubbishInTheRegionLeavesTheRecordAtOne)
{
    set(SettingsKeys::PC_RegionCode, QStringLiteral("moon"));
    makePlayer();
    EXPECT_EQ(engine.playerConfig()->regionRecord()->dvdRegion, 1);
    EXPECT_EQ(engine.playerConfig()->regionRecord()->bluRayRegion, 1);
}

TEST_F(EnginePreferencesTest, AShaderIsHandedOverAndStored)
{
    const QString path = file("\xC3\xA4.fx");
    preferences.applyShader(path);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setCustomShader(" + path.toStdString() + ")"));
    EXPECT_EQ(stored(SettingsKeys::PC_CustomShader).toString(), path);
    preferences.applyAll();
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setCustomShader(" + path.toStdString() + ")"));
    preferences.applyShader(QString());
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setCustomShader()"));
    EXPECT_FALSE(has(SettingsKeys::PC_CustomShader));
}

TEST_F(EnginePreferencesTest, AShaderThatVanishedIsNotHandedOver)
{
    const QString path = file("gone.fx");
    preferences.applyShader(path);
    ASSERT_TRUE(QFile::remove(path));
    engine.clearCalls();
    preferences.applyAll();
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlayTool::setCustomShader"))));
    EXPECT_EQ(lines("[Engine] no such shader:").size(), 1);
    EXPECT_EQ(stored(SettingsKeys::PC_CustomShader).toString(), path);
}

TEST_F(EnginePreferencesTest, AShaderThatTheEngineRefusesIsNotStored)
{
    engine.answer("IVDPlayTool::setCustomShader", 0);
    preferences.applyShader(file("bad.fx"));
    EXPECT_FALSE(has(SettingsKeys::PC_CustomShader));
}

TEST_F(EnginePreferencesTest, TheProxyGoesToTheEngine)
{
    preferences.applyProxy();
    settings.setProxyEnable(true);
    settings.setProxyType(1);
    settings.setProxyHost(QStringLiteral("proxy.example"));
    settings.setProxyPort(QStringLiteral("8080"));
    settings.setProxyUserName(QStringLiteral("me"));
    settings.setProxyPasswd(QStringLiteral("word"));
    preferences.applyProxy();
    settings.setProxyEnable(false);
    preferences.applyProxy();
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setProxy(0, , 0, , )",
                                         "IVDPlayTool::setProxy(1, proxy.example, 8080, me, word)",
                                         "IVDPlayTool::setProxy(0, , 0, , )"));
}

TEST_F(EnginePreferencesTest, AProxyWithoutAUsableAddressIsToldAndOff)
{
    settings.setProxyEnable(true);
    settings.setProxyType(1);
    settings.setProxyHost(QStringLiteral("proxy.example"));
    for (const char *port : {"", "0", "http", "70000", "-1"}) {
        settings.setProxyPort(QLatin1String(port));
        preferences.applyProxy();
        EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setProxy(0, , 0, , )")) << port;
    }
    settings.setProxyHost(QString());
    settings.setProxyPort(QStringLiteral("8080"));
    preferences.applyProxy();
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setProxy(0, , 0, , )"));
    EXPECT_EQ(lines("[Engine config] the proxy has no usable address").size(), 6);
}

// ---- without an output

TEST_F(EnginePreferencesTest, WithoutAnOutputNothingIsHandedOverAndNothingBreaks)
{
    engine.answer("IVDPlayTool::isValid", 0);
    makePlayer();
    EnginePreferences failed(settings, *player);
    failed.applyAll();
    failed.applyShader(file("a.fx"));
    EXPECT_THAT(takeCalls(), Not(Contains(AnyOf(StartsWith("IVDPlayTool::set"),
                                                StartsWith("IVDPlayTool::switchAudioOutput")))));
    EXPECT_TRUE(has(SettingsKeys::PC_FontColor));
}
