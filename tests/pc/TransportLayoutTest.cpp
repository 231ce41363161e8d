#include "transport/TransportLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr int kTimeWidth = 130;

TransportLayout layoutFor(int width, double ratio = 1.0, bool compact = false)
{
    TransportLayout::PlaceSet absent;
    absent.set(static_cast<std::size_t>(TransportPlace::MusicPixmap));
    return TransportLayout::arranged(QSize(width, qRound(TransportLayout::DesignHeight * ratio)), ratio,
                                     compact, qRound(kTimeWidth * ratio), absent);
}

std::vector<QRect> places(const TransportLayout &layout)
{
    std::vector<QRect> result;
    for (std::size_t i = 0; i < TransportLayout::PlaceCount; ++i) {
        const QRect rect = layout.place(static_cast<TransportPlace>(i));
        if (!rect.isEmpty())
            result.push_back(rect);
    }
    return result;
}

} // namespace

TEST(TransportLayout, AWideBarShowsEverythingThatIsNotAbsent)
{
    EXPECT_EQ(places(layoutFor(1280)).size(), TransportLayout::PlaceCount - 1);
    EXPECT_TRUE(layoutFor(1280).place(TransportPlace::MusicPixmap).isEmpty());
}

TEST(TransportLayout, NothingOverlapsOrLeavesTheBarAtAnyWidthScaleAndForm)
{
    for (const bool compact : {false, true}) {
        for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
            for (int width = 420; width <= 1900; width += 37) {
                const TransportLayout layout = layoutFor(qRound(width * ratio), ratio, compact);
                const auto rects = places(layout);
                const QRect bar(0, 0, qRound(width * ratio), qRound(TransportLayout::DesignHeight * ratio));
                for (std::size_t i = 0; i < rects.size(); ++i) {
                    EXPECT_TRUE(bar.contains(rects[i])) << width << " at " << ratio;
                    EXPECT_TRUE(layout.panel().contains(rects[i])) << width << " at " << ratio;
                    EXPECT_FALSE(layout.progress().intersects(rects[i])) << width << " at " << ratio;
                    for (std::size_t j = i + 1; j < rects.size(); ++j)
                        EXPECT_FALSE(rects[i].intersects(rects[j])) << width << " at " << ratio;
                }
                EXPECT_TRUE(layout.panel().contains(layout.progress()));
            }
        }
    }
}

TEST(TransportLayout, ANarrowBarDropsFrameStepsFirstAndKeepsPlayStopAndVolume)
{
    const TransportLayout less = layoutFor(760);
    EXPECT_TRUE(less.place(TransportPlace::NextFrame).isEmpty());
    EXPECT_FALSE(less.place(TransportPlace::FastForward).isEmpty());
    const TransportLayout least = layoutFor(260);
    for (const TransportPlace place : {TransportPlace::PlayPause, TransportPlace::Stop,
                                       TransportPlace::Volume, TransportPlace::FullScreen})
        EXPECT_FALSE(least.place(place).isEmpty());
    EXPECT_TRUE(least.place(TransportPlace::Time).isEmpty());
}

TEST(TransportLayout, ScaleTwoIsExactlyTwiceScaleOne)
{
    const TransportLayout one = layoutFor(1024);
    const TransportLayout two = layoutFor(2048, 2.0);
    for (std::size_t i = 0; i < TransportLayout::PlaceCount; ++i) {
        const QRect a = one.place(static_cast<TransportPlace>(i));
        const QRect b = two.place(static_cast<TransportPlace>(i));
        EXPECT_EQ(QRect(a.topLeft() * 2, a.size() * 2), b) << i;
    }
}

TEST(TransportLayout, TheBubbleStaysInsideTheBar)
{
    const TransportLayout layout = layoutFor(800);
    const QSize size(70, 24);
    EXPECT_GE(layout.bubble(0, size).left(), 0);
    EXPECT_LT(layout.bubble(800, size).right(), 800);
    EXPECT_EQ(layout.bubble(400, size).center().x(), 399);
    EXPECT_LT(layout.bubble(400, size).bottom(), layout.progress().top());
    EXPECT_GE(layoutFor(800, 1.0, true).bubble(400, size).top(), 0);
}
