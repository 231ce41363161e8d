#include "discs/TestDiscs.h"
#include "play/PlayRig.h"

#include <gtest/gtest.h>

using namespace libvp;
using Event = PlayRecorder::Event;

namespace {

struct DiscRow {
    const char *name;
    QString (*path)();
    int mediaClass;
    int form;
    int width;
};

void PrintTo(const DiscRow &row, std::ostream *out)
{
    *out << row.name;
}

const DiscRow discRows[] = {
    {"DvdFolder", TestDiscs::dvdFolder, VD_Media_Dvd, VD_Source_FolderDvd, TestDiscs::DvdWidth},
    {"DvdImage", TestDiscs::dvdImage, VD_Media_Dvd, VD_Source_ImageDvd, TestDiscs::DvdWidth},
    {"BluRayFolder", TestDiscs::bluRayFolder, VD_Media_BluRay, VD_Source_FolderBluRay,
     TestDiscs::BluRayWidth},
    {"BluRayImage", TestDiscs::bluRayImage, VD_Media_BluRay, VD_Source_ImageBluRay, TestDiscs::BluRayWidth},
};

class PlayDisc : public testing::TestWithParam<DiscRow> {
protected:
    void SetUp() override
    {
        m_path = GetParam().path().toStdString();
        ASSERT_FALSE(m_path.empty()) << TestDiscs::error().toStdString();
    }

    std::string m_path;
    PlayRig m_rig;
};

TEST_P(PlayDisc, MainTitlePlaysByItself)
{
    ASSERT_TRUE(m_rig.open(m_path, {}, VD_Item_Folder));
    EXPECT_EQ(m_rig.play->statistic(VD_Stat_MediaClass), GetParam().mediaClass);
    EXPECT_EQ(m_rig.play->statistic(VD_Stat_SourceForm), GetParam().form);
    EXPECT_EQ(m_rig.play->statistic(VD_Stat_Width), GetParam().width);
    EXPECT_EQ(m_rig.play->titleCount(), TestDiscs::TitleCount);
    EXPECT_EQ(m_rig.play->chapterCount(), TestDiscs::MainTitleChapters);
    EXPECT_EQ(m_rig.play->audioCount(), 2);
    EXPECT_EQ(m_rig.recorder->last("Title").first, TestDiscs::MainTitle);
    EXPECT_NEAR(m_rig.play->totalSeconds() * 1000, TestDiscs::MainTitleMs, TestDiscs::ToleranceMs);
    EXPECT_FALSE(m_rig.play->hasDiscMenu());
}

TEST_P(PlayDisc, TitleIsChosenByNumber)
{
    PlayOptions options;
    options.titleText = "2";
    ASSERT_TRUE(m_rig.open(m_path, options, VD_Item_Folder));
    EXPECT_NEAR(m_rig.play->totalSeconds() * 1000, TestDiscs::ShortTitleMs, TestDiscs::ToleranceMs);
    EXPECT_EQ(m_rig.recorder->last("Title").first, 2);
}

TEST_P(PlayDisc, TitleThatIsNotThereFails)
{
    PlayOptions options;
    options.titleText = "9";
    EXPECT_FALSE(m_rig.open(m_path, options, VD_Item_Folder));
    EXPECT_EQ(m_rig.recorder->last("Failed").first, VD_PlayError_NotFound);
    EXPECT_EQ(m_rig.recorder->failInfo.mediaClass, GetParam().mediaClass);
}

TEST_P(PlayDisc, ChaptersAndSeeksWork)
{
    ASSERT_TRUE(m_rig.open(m_path, {}, VD_Item_Folder));
    m_rig.play->goToChapter(3);
    EXPECT_TRUE(m_rig.recorder->waitUntil(
        [](const Event &event) { return event.name == "Chapter" && event.first == 3; }));
    m_rig.play->seek(17, 1);
    EXPECT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 16500; }));
}

TEST_P(PlayDisc, DriveLetterPlaysWhatStandsBehindIt)
{
    ASSERT_TRUE(m_rig.tool->setStringProperty("disc.drive.K", m_path.c_str()));
    EXPECT_EQ(m_rig.tool->discState('K'), 2);
    VDDiscDisplayInfo info;
    ASSERT_TRUE(m_rig.tool->discDisplayInfo("K", &info));
    EXPECT_EQ(info.hasMedia, 1);
    EXPECT_FALSE(m_rig.tool->eject('K')) << "an image has no tray";
    ASSERT_TRUE(m_rig.open("K", {}, VD_Item_Disc));
    m_rig.close();
    EXPECT_STREQ(m_rig.recorder->stopInfo.path, "K");
    ASSERT_TRUE(m_rig.tool->setStringProperty("disc.drive.K", ""));
    EXPECT_FALSE(m_rig.open("K", {}, VD_Item_Disc));
}

INSTANTIATE_TEST_SUITE_P(Discs, PlayDisc, testing::ValuesIn(discRows),
                         [](const testing::TestParamInfo<DiscRow> &row) {
                             return std::string(row.param.name);
                         });

TEST(PlayUltraHdDisc, MissingHardwareIsNoted)
{
    const std::string path = TestDiscs::ultraHdFolder().toStdString();
    ASSERT_FALSE(path.empty()) << TestDiscs::error().toStdString();
    PlayRig rig;
    ASSERT_TRUE(rig.open(path, {}, VD_Item_Folder));
    EXPECT_NE(rig.play->statistic(VD_Stat_Flags) & static_cast<int>(VD_Flag_Uhd), 0);
    if (rig.play->statistic(VD_Stat_HardwareDecoding) == 0) {
        EXPECT_TRUE(rig.notes.waitFor(VD_Error_UhdHardwareUnsupported));
    }
}

} // namespace
