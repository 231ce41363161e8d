#include "engine/BluRayStructure.h"

#include "MediaClips.h"

#include <gtest/gtest.h>

namespace {

using Bytes = BigEndianReader::Bytes;

Bytes bytesOf(const QString &path)
{
    const QByteArray bytes = MediaClips::contentsOf(path);
    return Bytes(bytes.begin(), bytes.end());
}

Bytes clip()
{
    return bytesOf(TestDiscs::bluRayFolder() + "/BDMV/CLIPINF/00000.clpi");
}

Bytes playlist()
{
    return bytesOf(TestDiscs::bluRayFolder() + "/BDMV/PLAYLIST/00000.mpls");
}

std::size_t addressAt(const Bytes &bytes, std::size_t pointer)
{
    return BigEndianReader(bytes).number(pointer, 4);
}

TEST(BluRayStructure, AWholeDiscIsSound)
{
    ASSERT_FALSE(clip().empty());
    ASSERT_FALSE(playlist().empty());
    EXPECT_TRUE(BluRayStructure::isSoundClip(clip()));
    EXPECT_TRUE(BluRayStructure::isSoundPlaylist(playlist()));
}

TEST(BluRayStructure, WhatTheLibraryDoesNotReadIsHarmless)
{
    EXPECT_TRUE(BluRayStructure::isSoundClip({}));
    EXPECT_TRUE(BluRayStructure::isSoundClip({'x', 'y'}));
    EXPECT_TRUE(BluRayStructure::isSoundPlaylist({}));
    EXPECT_TRUE(BluRayStructure::isSoundPlaylist({'M', 'P', 'L'}));
}

TEST(BluRayStructure, AMarkInAnItemThatIsNotThereIsFound)
{
    Bytes bytes = playlist();
    const std::size_t marks = addressAt(bytes, 12);
    bytes[marks + 6 + 3] = 1; // the first mark's item; there is only item 0
    EXPECT_FALSE(BluRayStructure::isSoundPlaylist(bytes));
}

TEST(BluRayStructure, MarksWithoutAnyItemAreFound)
{
    Bytes bytes = playlist();
    bytes[addressAt(bytes, 8) + 7] = 0; // how many items there are
    EXPECT_FALSE(BluRayStructure::isSoundPlaylist(bytes));
}

TEST(BluRayStructure, AnEntryPointOutsideOfTheMapIsFound)
{
    Bytes bytes = clip();
    const std::size_t map = addressAt(bytes, 16) + 6;
    const std::size_t coarse = map + addressAt(bytes, map + 2 + 8) + 4;
    ASSERT_LT(coarse, bytes.size());
    bytes[coarse] = 0xff;
    EXPECT_FALSE(BluRayStructure::isSoundClip(bytes));
}

TEST(BluRayStructure, ACutMapIsFound)
{
    Bytes bytes = clip();
    bytes.resize(bytes.size() - 20);
    EXPECT_FALSE(BluRayStructure::isSoundClip(bytes));
}

TEST(BluRayStructure, ATimeSequenceThatBeginsOutsideIsFound)
{
    Bytes bytes = clip();
    bytes[addressAt(bytes, 8) + 6 + 5] = 9; // first number of the first sequence
    EXPECT_FALSE(BluRayStructure::isSoundClip(bytes));
}

} // namespace
