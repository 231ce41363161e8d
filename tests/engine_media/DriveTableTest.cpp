#include "engine/DriveTable.h"

#include <gtest/gtest.h>

namespace {

TEST(DriveTable, ALetterInAnyFormMeansTheBoundPath)
{
    DriveTable drives;
    drives.bind('v', "/discs/film.iso");
    for (const char *name : {"V", "v", "V:", "v:", "V:/", "V:\\"})
        EXPECT_EQ(drives.resolve(name), "/discs/film.iso") << name;
    EXPECT_TRUE(drives.hasDrive('V'));
    EXPECT_TRUE(drives.hasDrive('v'));
}

TEST(DriveTable, ALetterWithoutADriveIsEmpty)
{
    const DriveTable drives;
    EXPECT_EQ(drives.resolve("Q"), "");
    EXPECT_FALSE(drives.hasDrive('Q'));
    EXPECT_FALSE(drives.hasDrive('1'));
}

TEST(DriveTable, AnEmptyPathForgetsTheLetter)
{
    DriveTable drives;
    drives.bind('V', "/a");
    drives.bind('V', "/b");
    EXPECT_EQ(drives.resolve("V"), "/b");
    drives.bind('V', "");
    EXPECT_EQ(drives.resolve("V"), "");
}

TEST(DriveTable, PathsComeBackAsTheyAre)
{
    DriveTable drives;
    drives.bind('t', "/bound");
    for (const char *path : {"/tm/", "/t", "tt", "t:x", "", "1:", "/dev/sr0", "t:/x"})
        EXPECT_EQ(drives.resolve(path), path);
}

TEST(DriveTable, WhatIsNoLetterIsNotBound)
{
    DriveTable drives;
    drives.bind('/', "/a");
    drives.bind('\0', "/a");
    drives.bind('\xe4', "/a");
    EXPECT_EQ(drives.resolve("/"), "/");
    EXPECT_EQ(drives.resolve("\xe4"), "\xe4");
}

TEST(DriveTable, ThePlacesAreTheMachinesOpticalDrivesAndAllThatIsBound)
{
    DriveTable drives;
    const std::size_t own = drives.places().size();
    drives.bind('b', "/discs/b.iso");
    drives.bind('A', "/discs/a");
    std::vector<DriveTable::Place> places = drives.places();
    ASSERT_EQ(places.size(), own + 2);
    EXPECT_EQ(places[0].letter, 'A');
    EXPECT_EQ(places[1].letter, 'B');
    EXPECT_EQ(places[1].path, "/discs/b.iso");
    EXPECT_TRUE(places[1].isBound);
    drives.bind('A', "");
    places = drives.places();
    ASSERT_EQ(places.size(), own + 1);
    EXPECT_EQ(places[0].letter, 'B');
    for (const DriveTable::Place &place : places)
        EXPECT_EQ(drives.resolve(std::string(1, place.letter)), place.path);
}

} // namespace
