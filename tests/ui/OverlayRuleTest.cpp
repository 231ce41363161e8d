#include "ui/OverlayRule.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using Anchor = OverlayRule::Anchor;

struct Row {
    const char *name;
    Anchor anchor;
    QRect expected;
};

void PrintTo(const Row &row, std::ostream *stream)
{
    *stream << row.name;
}

class OverlayPlaces : public testing::TestWithParam<Row> {};

} // namespace

TEST_P(OverlayPlaces, AtScaleTwo)
{
    const Row row = GetParam();
    const OverlayRule rule{row.anchor, QMargins(10, 20, 30, 40), 0};
    EXPECT_EQ(rule.placed(QRect(100, 200, 1000, 600), QSize(300, 100), 2.0), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Anchors, OverlayPlaces,
                         testing::Values(Row{"Top", Anchor::Top, {120, 240, 920, 100}},
                                         Row{"Bottom", Anchor::Bottom, {120, 620, 920, 100}},
                                         Row{"TopLeft", Anchor::TopLeft, {120, 240, 300, 100}},
                                         Row{"TopRight", Anchor::TopRight, {740, 240, 300, 100}},
                                         Row{"BottomLeft", Anchor::BottomLeft, {120, 620, 300, 100}},
                                         Row{"BottomCentre", Anchor::BottomCentre, {430, 620, 300, 100}},
                                         Row{"BottomRight", Anchor::BottomRight, {740, 620, 300, 100}},
                                         Row{"Centre", Anchor::Centre, {430, 430, 300, 100}},
                                         Row{"RightCentre", Anchor::RightCentre, {740, 430, 300, 100}}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(OverlayRule, IsCutToAnAreaThatIsTooSmall)
{
    const OverlayRule rule{Anchor::BottomRight, QMargins(), 0};
    EXPECT_EQ(rule.placed(QRect(0, 0, 200, 50), QSize(300, 100), 1.0), QRect(0, 0, 200, 50));
}

TEST(OverlayRule, MarginsLargerThanTheAreaLeaveNothing)
{
    const OverlayRule rule{Anchor::Top, QMargins(50, 50, 50, 50), 0};
    EXPECT_TRUE(rule.placed(QRect(0, 0, 60, 60), QSize(10, 10), 1.0).isEmpty());
}
