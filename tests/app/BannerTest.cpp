#include "app/Banner.h"

#include <gtest/gtest.h>

namespace {

TEST(Banner, LinesStandInTheirOrderAndWords)
{
    BannerFacts facts;
    facts.now = QDateTime(QDate(2020, 7, 15), QTime(21, 4, 9));
    facts.kernelVersion = "6.1.0";
    facts.productName = "Some System 12";
    facts.locale = QLocale(QLocale::German, QLocale::Austria);
    facts.resolution = {1920, 1080};
    facts.scaleFactor = 1.5F;
    facts.playerVersion = "6.1.0.3";
    facts.arguments = QStringList{"/opt/player", "/films/a b.mkv"};
    const QStringList expected{
        facts.now.toString(Qt::TextDate),
        "********************** Quorin 6 Started **********************",
        "[Process] KernelVersion : 6.1.0",
        "[Process] ProductName : Some System 12",
        "[Process] Local Language : German",
        "[Process] Country : Austria",
        "[Process] Resolution : 1920 * 1080",
        "[Process] DPI : 1.5",
        "[Process] Player Version : 6.1.0.3",
        "[Process] app args: (/opt/player, /films/a b.mkv)",
    };
    EXPECT_EQ(Banner::lines(facts), expected);
}

} // namespace
