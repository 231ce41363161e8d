#include "TestSettings.h"

#include "overlays/NormalTipLabel.h"

#include "core/SettingsKeys.h"

#include "support/Eventually.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

class TipLabels : public testing::Test {
protected:
    TestSettings settings;
    NormalTipLabel label{*settings};
};

} // namespace

TEST_F(TipLabels, ShowsATipPerStateWithTheSpeed)
{
    label.setSpeedText([] { return QStringLiteral("4"); });
    label.showTip(NormalTipLabel::Playing);
    EXPECT_EQ(label.text(), "Play");
    label.showTip(NormalTipLabel::Paused);
    EXPECT_EQ(label.text(), "Pause");
    label.showTip(NormalTipLabel::FastForward);
    EXPECT_EQ(label.text(), "Fast forward 4x");
    label.setSpeedText([] { return QStringLiteral("-8"); });
    label.showTip(NormalTipLabel::Rewind);
    EXPECT_EQ(label.text(), "Rewind 8x");
    label.setSpeedText([] { return QStringLiteral("1/4"); });
    label.showTip(NormalTipLabel::FastForward);
    EXPECT_EQ(label.text(), "Slow motion 1/4x");
}

TEST_F(TipLabels, FitsItsSizeToTheText)
{
    label.showTip(NormalTipLabel::Playing);
    const int narrow = label.width();
    label.setSpeedText([] { return QStringLiteral("16"); });
    label.showTip(NormalTipLabel::FastForward);
    EXPECT_GT(label.width(), narrow);
    EXPECT_GT(label.width(), label.fontMetrics().horizontalAdvance(label.text()));
}

TEST_F(TipLabels, GoesByItself)
{
    label.showTip(NormalTipLabel::Paused);
    EXPECT_TRUE(label.isVisible());
    ASSERT_EVENTUALLY(!label.isVisible());
}

TEST_F(TipLabels, StaysAwayWhenTheSettingSaysSo)
{
    settings->setValue(SettingsKeys::PC_PlayStateTip, false);
    label.showTip(NormalTipLabel::Playing);
    EXPECT_FALSE(label.isVisible());
    settings->setValue(SettingsKeys::PC_PlayStateTip, true);
    label.showTip(NormalTipLabel::Playing);
    EXPECT_TRUE(label.isVisible());
}

TEST_F(TipLabels, OtherNumbersAreNoTips)
{
    for (const int tip : {-1, 0, 5, 99})
        label.showTip(tip);
    EXPECT_FALSE(label.isVisible());
}
