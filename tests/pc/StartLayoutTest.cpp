#include "start/StartLayout.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

StartLayout layoutOf(QSize page, int recentCount, double factor = 1.0)
{
    return StartLayout({page, recentCount, QSize(int(150 * factor), int(40 * factor)),
                        QSize(int(60 * factor), int(28 * factor))},
                       factor);
}

struct Page {
    QSize size;
    int recentCount;
    double factor;
};

class StartLayoutPages : public testing::TestWithParam<Page> {};

} // namespace

TEST_P(StartLayoutPages, NothingStandsOutsideOrOverAnother)
{
    const Page page = GetParam();
    const StartLayout layout = layoutOf(page.size, page.recentCount, page.factor);
    const QRect all(QPoint(0, 0), page.size);
    const QVector<QRect> parts{layout.mark(),    layout.name(),        layout.note(), layout.openButton(),
                               layout.heading(), layout.clearButton(), layout.wall()};
    for (int i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(parts.at(i).isEmpty() || all.contains(parts.at(i))) << i;
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(parts.at(i).intersects(parts.at(j))) << i << " over " << j;
    }
    EXPECT_FALSE(layout.openButton().isEmpty());
    EXPECT_EQ(layout.cards().size(), page.recentCount);
    const QVector<QRect> cards = layout.cards();
    const QRect wallPage(0, 0, layout.wall().width(), layout.wallHeight());
    for (int i = 0; i < cards.size(); ++i) {
        EXPECT_TRUE(wallPage.contains(cards.at(i))) << i;
        EXPECT_EQ(cards.at(i).size(), cards.at(0).size());
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(cards.at(i).intersects(cards.at(j)));
    }
    // At least one recent source is to be seen as a whole.
    if (page.recentCount > 0) {
        EXPECT_GE(layout.wall().height(), cards.at(0).bottom() + 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, StartLayoutPages,
                         testing::Values(Page{{1024, 536}, 0, 1}, Page{{1024, 536}, 1, 1},
                                         Page{{1024, 536}, 24, 1}, Page{{2048, 1072}, 24, 2},
                                         Page{{480, 230}, 0, 1}, Page{{480, 230}, 24, 1},
                                         Page{{960, 460}, 24, 2}, Page{{1920, 1040}, 24, 1},
                                         Page{{1920, 1040}, 3, 1.5}, Page{{3840, 2120}, 24, 1},
                                         Page{{3840, 2120}, 24, 2}, Page{{640, 900}, 24, 1},
                                         Page{{480, 1000}, 5, 1}, Page{{2560, 300}, 8, 1}));

TEST(StartLayoutTest, WithoutRecentSourcesEverythingIsInTheMiddle)
{
    const StartLayout layout = layoutOf({1024, 536}, 0);
    EXPECT_EQ(layout.form(), StartLayout::Form::Empty);
    EXPECT_TRUE(layout.wall().isEmpty());
    EXPECT_TRUE(layout.clearButton().isEmpty());
    EXPECT_LE(std::abs(layout.openButton().center().x() - 512), 1);
    EXPECT_LT(layout.mark().bottom(), layout.name().top());
    EXPECT_LT(layout.note().bottom(), layout.openButton().top());
}

TEST(StartLayoutTest, TheUsualWindowShowsTwoRowsOfFour)
{
    const StartLayout layout = layoutOf({1024, 536}, 8);
    EXPECT_EQ(layout.form(), StartLayout::Form::Row);
    EXPECT_EQ(layout.columns(), 4);
    EXPECT_GE(layout.wall().height(), layout.cards().last().bottom() + 1);
}

TEST(StartLayoutTest, ASmallPageHasLines)
{
    const StartLayout layout = layoutOf({480, 230}, 8);
    EXPECT_TRUE(layout.hasLines());
    EXPECT_FALSE(layout.showsNote());
    EXPECT_EQ(layout.columns(), 1);
}

TEST(StartLayoutTest, ATallPageInvitesAboveTheWall)
{
    const StartLayout layout = layoutOf({1920, 1040}, 12);
    EXPECT_EQ(layout.form(), StartLayout::Form::Tall);
    EXPECT_EQ(layout.columns(), 6);
    EXPECT_GT(layout.namePixels(), layoutOf({1024, 536}, 12).namePixels());
}

TEST(StartLayoutTest, ScaleTwoIsTheSamePictureTwiceAsLarge)
{
    const StartLayout one = layoutOf({1024, 536}, 8);
    const StartLayout two = layoutOf({2048, 1072}, 8, 2.0);
    EXPECT_EQ(two.columns(), one.columns());
    EXPECT_EQ(two.mark().topLeft(), one.mark().topLeft() * 2);
    EXPECT_EQ(two.cards().at(0).width(), one.cards().at(0).width() * 2);
}

TEST(StartLayoutTest, PageWithoutAnySizeIsHarmless)
{
    EXPECT_EQ(layoutOf({0, 0}, 3).cards().size(), 3);
    EXPECT_EQ(layoutOf({-5, 10}, 0).cards().size(), 0);
}
