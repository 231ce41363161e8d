// Each operation of the engine's objects stands at its number. The scripted engine is compiled from the same
// contract as the real one and records what was called.
#include "PlayerFixture.h"
#include "SlotCall.h"

#include "player/CVDFileItem.h"
#include "player/CVDPlayOptions.h"

#include <functional>
#include <set>

namespace {

struct Row {
    int slot;
    const char *operation;
    std::function<void(void *, int)> call;
};

template<class... Arguments>
Row row(int slot, const char *operation, Arguments... arguments)
{
    return {slot, operation,
            [=](void *object, int number) { callSlot<void *, Arguments...>(object, number, arguments...); }};
}

void expectSlots(FakeEngine &engine, void *object, const std::string &interface, const std::vector<Row> &rows,
                 int count)
{
    std::set<int> named;
    for (const Row &entry : rows) {
        engine.clearCalls();
        entry.call(object, entry.slot);
        const auto calls = engine.calls();
        ASSERT_EQ(calls.size(), 1U) << interface << " " << entry.slot;
        EXPECT_EQ(calls[0].substr(0, calls[0].find('(')), interface + "::" + entry.operation) << entry.slot;
        named.insert(entry.slot);
    }
    engine.clearCalls();
    for (int slot = 0; slot < count; ++slot) {
        if (!named.count(slot))
            callSlot<int>(object, slot);
    }
    EXPECT_TRUE(engine.calls().empty()) << interface << ": a gap is no operation";
}

using EngineSlots = PlayerTest;

} // namespace

TEST_F(EngineSlots, EngineCore)
{
    static int count = 0;
    const libvp::VDPicture *picture = nullptr;
    const std::vector<Row> rows{
        row(2, "initialise"),
        row(7, "prepareDisc", "D", 2, static_cast<libvp::VDDiscTitle *>(nullptr), 0, &count, &count),
        row(8, "sourceForm", "D"),
        row(9, "openThumbnailSession", "/a", 0, -1, 10, 10, 0, 0, 0),
        row(10, "closeThumbnailSession", 1),
        row(11, "grabThumbnail", 1, 0, 0, &picture),
        row(12, "releasePicture", picture),
        row(13, "grabPicture", "{}"),
        row(14, "startBackup", "D", "/b.iso", 0),
        row(15, "stopBackup", "D"),
        row(17, "isBackupFinished", "D"),
        row(18, "isBackupFailed", "D"),
        {16, "backupProgress",
         [](void *object, int slot) { EXPECT_EQ(callSlot<double>(object, slot, "D"), -1.0); }},
    };
    expectSlots(
        engine, engine.core(), "IVDEngineCore",
        [&] {
            // Number 3 replaces the output that the others may use, so it is called on its own below.
            auto all = rows;
            all.push_back(row(3, "createPlayTool", 0, static_cast<libvp::IVDPlayToolConfig *>(player.get()),
                              static_cast<libvp::IVDPlaytoolCallback *>(player.get())));
            return all;
        }(),
        19);
}

TEST_F(EngineSlots, PlayTool)
{
    ASSERT_TRUE(player->ensureTool());
    static const libvp::VDAudioDeviceList *list = nullptr;
    static libvp::IVDPlay *play = nullptr;
    static libvp::VDDiscDisplayInfo info;
    static libvp::VD3DCapabilities capabilities;
    const std::vector<Row> rows{
        row(1, "isValid"),
        row(3, "resizeSurface", 1, 1),
        row(4, "createPlay", static_cast<libvp::IVDPlayCallback *>(player.get()), 0, &play),
        row(5, "releasePlay", &play),
        row(7, "setBoolProperty", "a", true),
        row(8, "setIntProperty", "a", 1),
        row(10, "setStringProperty", "a", "b"),
        row(12, "setSpeakerLayout", 0),
        row(13, "switchAudioOutput", false, "a"),
        row(14, "passThrough"),
        row(15, "currentAudioDevice"),
        row(16, "audioDevices", &list),
        row(17, "setDeinterlaceMode", 1),
        row(20, "setZoomAmount", 1.0F),
        row(21, "setPixelRatio", 1.0F),
        row(22, "setVerticalShift", 0.0F),
        row(24, "setViewMode", 0),
        row(25, "viewMode"),
        row(28, "setVolume", 1.0F),
        row(29, "setMute", false),
        row(30, "setBootValue", 0),
        row(31, "setAudioDelay", 0.0F),
        row(32, "setAudioAmplification", 0.0F),
        row(34, "setSubtitleOffset", 0.0F),
        row(36, "setSubtitleVisible", true),
        row(37, "isSubtitleVisible"),
        row(40, "setSubtitleFont", ""),
        row(42, "setSubtitleSize", 0),
        row(44, "setSubtitlePosition", 1, 0),
        row(48, "setSubtitleColor", "#ffffff"),
        row(50, "setSubtitleBold", false),
        row(52, "setSubtitleItalic", false),
        row(53, "setSubtitleOutline", false),
        row(54, "setBrightness", 50.0F),
        row(55, "setSaturation", 50.0F),
        row(57, "setContrast", 50.0F),
        row(59, "setRotation", 0),
        row(60, "flipState"),
        row(61, "setFlipState", 0),
        row(62, "resetFlip"),
        row(66, "set3DInputLayout", 0),
        row(68, "setSubtitleOverride", false),
        row(69, "set3DEngine", false),
        row(73, "setUpFlag73", 1),
        row(74, "setUpFlag74", 1),
        row(77, "takeScreenshot", 0, 0, 0),
        {79, "displayAspect", [](void *object, int slot) { EXPECT_EQ(callSlot<double>(object, slot), 0.0); }},
        row(80, "enableHardwareDecoding", true),
        row(90, "setRegion", 1),
        row(97, "showInformationOverlay", false),
        row(98, "forwardWindowMessage", 1U, std::uintptr_t{0}, std::intptr_t{0}, 0, 0),
        row(99, "forwardWindowMove", 0, 0),
        row(100, "enableToneMap", true),
        row(102, "discDisplayInfo", "D", &info),
        row(103, "eject", 'D'),
        row(105, "discState", 'D'),
        row(106, "set3DParallax", 0),
        row(107, "threeDCapabilities", &capabilities),
        row(108, "setUiLanguage", 1033),
        row(109, "setProxy", 0, "", 0, "", ""),
        row(111, "setHDRMode", 0),
        row(112, "setSDRMode", 0),
        row(116, "setPreferredAudioLanguage", "en"),
        row(117, "setPreferredSubtitleLanguage", "en"),
        row(118, "setCustomShader", ""),
        row(119, "customShader"),
    };
    expectSlots(engine, engine.tool(), "IVDPlayTool", rows, 120);
}

TEST_F(EngineSlots, Play)
{
    start();
    CVDFileItem item;
    CVDPlayOptions options;
    const std::vector<Row> rows{
        row(5, "open", static_cast<libvp::IVDFileItem *>(&item),
            static_cast<libvp::IVDPlayOptions *>(&options), 0),
        row(6, "close"),
        row(9, "getAudioInfo", 0),
        row(11, "getSubtitleInfo", 0),
        row(13, "togglePause"),
        row(14, "isPlaying"),
        row(15, "isPaused"),
        {18, "totalSeconds", [](void *object, int slot) { EXPECT_EQ(callSlot<double>(object, slot), 90.5); }},
        {19, "currentSeconds",
         [](void *object, int slot) { EXPECT_EQ(callSlot<double>(object, slot), 1.5); }},
        row(20, "seek", 1.0, 1),
        row(22, "audioCount"),
        row(23, "audioTrack"),
        row(24, "setAudioTrack", 0),
        row(25, "subtitleCount", 0),
        row(26, "subtitleTrack"),
        row(27, "setSubtitleTrack", 0),
        row(29, "setSpeedIndex", 9),
        {30, "speed", [](void *object, int slot) { EXPECT_EQ(callSlot<float>(object, slot), 1.0F); }},
        row(31, "chapterCount"),
        row(32, "chapter"),
        row(34, "titleCount"),
        row(36, "goToChapter", 1),
        row(37, "menuCommand", 4, 0.0F, 0),
        row(39, "hasDiscMenu"),
        row(53, "addSubtitle", "/a.srt"),
        row(77, "setAuthorInfo", 0),
        row(78, "toggleStep"),
        row(79, "statistic", 0),
    };
    engine.answer("IVDPlay::totalSeconds", 90.5);
    engine.answer("IVDPlay::currentSeconds", 1.5);
    expectSlots(engine, engine.play(), "IVDPlay", rows, 80);
}

TEST_F(EngineSlots, FileItem)
{
    CVDFileItem item;
    item.m_path = "/a.mkv";
    item.m_auxPath = "/b";
    item.m_flags = 7;
    item.m_itemType = 2;
    void *object = static_cast<libvp::IVDFileItem *>(&item);
    EXPECT_STREQ(callSlot<const char *>(object, 1), "/a.mkv");
    EXPECT_EQ(callSlot<int>(object, 2), 0);
    EXPECT_STREQ(callSlot<const char *>(object, 3), "/b");
    EXPECT_EQ(callSlot<int>(object, 4), 7);
    EXPECT_EQ(callSlot<int>(object, 5), 2);
}

TEST_F(EngineSlots, PlayOptions)
{
    CVDPlayOptions options;
    options.m_startSeconds = 1.5;
    options.m_endSeconds = 2.5;
    options.setTitleNumber(12);
    options.m_flagA = true;
    options.m_audioStream = 5;
    options.m_subtitleStream = 6;
    options.m_angle = 7;
    options.m_chapter = 8;
    options.m_autoStart = false;
    options.m_extra = "more";
    options.m_lastField = 13;
    void *object = static_cast<libvp::IVDPlayOptions *>(&options);
    EXPECT_EQ(callSlot<double>(object, 1), 1.5);
    EXPECT_EQ(callSlot<double>(object, 2), 2.5);
    EXPECT_STREQ(callSlot<const char *>(object, 3), "12");
    EXPECT_TRUE(callSlot<bool>(object, 4));
    EXPECT_EQ(callSlot<int>(object, 5), 5);
    EXPECT_EQ(callSlot<int>(object, 6), 6);
    EXPECT_EQ(callSlot<int>(object, 7), 7);
    EXPECT_EQ(callSlot<int>(object, 8), 8);
    EXPECT_FALSE(callSlot<bool>(object, 9));
    EXPECT_STREQ(callSlot<const char *>(object, 10), "more");
    EXPECT_FALSE(callSlot<bool>(object, 11));
    EXPECT_FALSE(callSlot<bool>(object, 12));
    EXPECT_EQ(callSlot<int>(object, 13), 13);
    EXPECT_EQ(callSlot<int>(object, 14), -1);
    EXPECT_EQ(callSlot<int>(object, 15), 0);
    EXPECT_FALSE(callSlot<bool>(object, 16));
    EXPECT_EQ(callSlot<float>(object, 17), 1.0F);
}

TEST(PlayOptions, StartWithTheDefaultsAndComeBackToThem)
{
    CVDPlayOptions options;
    options.m_audioStream = 3;
    options.setTitleNumber(0);
    EXPECT_STREQ(options.title(), "0");
    options.reset();
    EXPECT_EQ(options.startSeconds(), 0);
    EXPECT_STREQ(options.title(), "");
    EXPECT_EQ(options.m_titleNumber, -1);
    EXPECT_EQ(options.audioStream(), -1);
    EXPECT_EQ(options.subtitleStream(), -1);
    EXPECT_EQ(options.angle(), -1);
    EXPECT_EQ(options.chapter(), -1);
    EXPECT_EQ(options.lastField(), -1);
    EXPECT_TRUE(options.autoStart());
    EXPECT_FALSE(options.m_flagB);
}
