#include "engine/DvdStructure.h"

#include "MediaClips.h"

#include <gtest/gtest.h>

#include <random>

namespace {

DvdStructure::Bytes file(const char *name)
{
    const QByteArray bytes =
        MediaClips::contentsOf(TestDiscs::dvdFolder() + "/VIDEO_TS/" + QLatin1String(name));
    return DvdStructure::Bytes(bytes.begin(), bytes.end());
}

TEST(DvdStructure, ReadsTitlesWithTheirCells)
{
    const auto entries = DvdStructure::titleEntries(file("VIDEO_TS.IFO"));
    ASSERT_EQ(entries.size(), std::size_t(TestDiscs::TitleCount));
    EXPECT_EQ(entries[0].titleSet, 1);
    EXPECT_EQ(entries[0].chapterCount, TestDiscs::MainTitleChapters);
    DvdTitle title;
    ASSERT_TRUE(DvdStructure::readTitle(file("VTS_01_0.IFO"), entries[0], title));
    EXPECT_EQ(title.width, TestDiscs::DvdWidth);
    EXPECT_EQ(title.height, TestDiscs::DvdHeight);
    ASSERT_EQ(title.cells.size(), std::size_t(TestDiscs::MainTitleChapters));
    int sum = 0;
    std::uint32_t next = 0;
    for (const DvdCell &cell : title.cells) {
        sum += cell.durationMs;
        EXPECT_EQ(cell.firstSector, next) << "the cells of this title lie one behind the other";
        next = cell.lastSector + 1;
    }
    EXPECT_NEAR(sum, title.durationMs, 200);
}

TEST(DvdStructure, WhatIsNoInformationFileHasNoTitles)
{
    EXPECT_TRUE(DvdStructure::titleEntries({}).empty());
    EXPECT_TRUE(DvdStructure::titleEntries(file("VTS_01_0.IFO")).empty());
    DvdTitle title;
    DvdStructure::TitleEntry entry;
    entry.number = entry.titleSet = entry.numberInSet = entry.chapterCount = 1;
    EXPECT_FALSE(DvdStructure::readTitle({}, entry, title));
    EXPECT_FALSE(DvdStructure::readTitle(file("VIDEO_TS.IFO"), entry, title));
    entry.numberInSet = 9;
    EXPECT_FALSE(DvdStructure::readTitle(file("VTS_01_0.IFO"), entry, title));
    entry.numberInSet = 0;
    EXPECT_FALSE(DvdStructure::readTitle(file("VTS_01_0.IFO"), entry, title));
}

TEST(DvdStructure, EveryCutAndEveryChangeIsReadInsideOfTheFile)
{
    const DvdStructure::Bytes disc = file("VIDEO_TS.IFO");
    const DvdStructure::Bytes set = file("VTS_01_0.IFO");
    const auto entries = DvdStructure::titleEntries(disc);
    ASSERT_FALSE(entries.empty());
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        DvdStructure::Bytes broken = round % 2 == 0 ? disc : set;
        broken.resize(1 + random() % broken.size());
        for (int i = 0; i < 20; ++i)
            broken[random() % broken.size()] = std::uint8_t(random());
        EXPECT_LE(DvdStructure::titleEntries(broken).size(), 99u);
        for (const auto &entry : entries) {
            DvdTitle title;
            if (DvdStructure::readTitle(broken, entry, title)) {
                EXPECT_LE(title.cells.size(), 999u * 255u);
                EXPECT_GE(title.durationMs, 0);
            }
        }
    }
}

} // namespace
