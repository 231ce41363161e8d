#include "TestSettings.h"

#include "overlays/NormalMetaView.h"

#include "core/SettingsKeys.h"

#include <gtest/gtest.h>

namespace {

using Line = QPair<QString, QString>;

class MetaViews : public testing::Test {
protected:
    TestSettings settings;
    NormalMetaView view{*settings};
};

} // namespace

TEST_F(MetaViews, IsSeenOnlyWhenTheSettingIsTrue)
{
    view.setDisplayName(QStringLiteral("a.mkv"));
    EXPECT_FALSE(view.isVisible());
    settings->setValue(SettingsKeys::PC_ShowMeta, true);
    view.updateShown();
    EXPECT_TRUE(view.isVisible());
    settings->setValue(SettingsKeys::PC_ShowMeta, false);
    view.updateShown();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(MetaViews, WithoutASourceItIsGone)
{
    settings->setValue(SettingsKeys::PC_ShowMeta, true);
    view.setDisplayName(QStringLiteral("a.mkv"));
    EXPECT_TRUE(view.isVisible());
    view.clear();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(MetaViews, ListsTheTextsByTypeInAFixedOrder)
{
    view.setDisplayName(QStringLiteral("a.mkv"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Time, QStringLiteral("00:00:05 / 00:01:00"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Audio, QStringLiteral("AAC 2.0"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Video, QStringLiteral("HEVC 3840*2160"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Subtitle, QString());
    EXPECT_EQ(
        view.lines(),
        QVector<Line>({{"Video", "HEVC 3840*2160"}, {"Audio", "AAC 2.0"}, {"Time", "00:00:05 / 00:01:00"}}));
}

TEST_F(MetaViews, ATitleIsListedWhereItHasANumber)
{
    view.setDisplayName(QStringLiteral("a.iso"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Title, QStringLiteral("None"));
    EXPECT_TRUE(view.lines().isEmpty());
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Title, QStringLiteral("3"));
    EXPECT_EQ(view.lines(), QVector<Line>({{"Title", "3"}}));
}

TEST_F(MetaViews, TheJoinedVideoLineStandsInOneRowWhicheverPartChanged)
{
    view.setDisplayName(QStringLiteral("a.mkv"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Video, QStringLiteral("HEVC 3840*2160"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_DynamicRange, QStringLiteral("HEVC 3840*2160 | HDR"));
    EXPECT_EQ(view.lines(), QVector<Line>({{"Video", "HEVC 3840*2160 | HDR"}}));
}

TEST_F(MetaViews, ANewSourceForgetsTheOldLines)
{
    view.setDisplayName(QStringLiteral("a.mkv"));
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Audio, QStringLiteral("AAC 2.0"));
    view.setDisplayName(QStringLiteral("b.mkv"));
    EXPECT_TRUE(view.lines().isEmpty());
}

TEST_F(MetaViews, GrowsByALineEach)
{
    view.setDisplayName(QStringLiteral("a.mkv"));
    const int before = view.sizeHint().height();
    view.slot_setMetaInfo(QPlayer::QPlayerMetaType_Audio, QStringLiteral("AAC 2.0"));
    EXPECT_GT(view.sizeHint().height(), before);
}

TEST_F(MetaViews, AVeryLongNameDoesNotWidenItWithoutLimit)
{
    view.setDisplayName(QString(4000, QLatin1Char('w')));
    EXPECT_LT(view.sizeHint().width(), 800);
    view.resize(view.sizeHint());
    EXPECT_FALSE(view.grab().isNull());
}
