#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace {

const QString kProgram = QStringLiteral("/opt/player/Quorin Player 6");

CommandLine line(const QStringList &arguments)
{
    return CommandLine(QStringList{kProgram} + arguments);
}

TEST(CommandLine, EachMaintenanceArgumentIsMatchedWhole)
{
    const struct {
        QStringList arguments;
        CommandLine::Maintenance run;
    } rows[] = {
        {{"/install"}, CommandLine::Maintenance::Install},
        {{"/uninstall"}, CommandLine::Maintenance::Uninstall},
        {{"/full_uninstall"}, CommandLine::Maintenance::FullUninstall},
        {{"x", "/uninstall"}, CommandLine::Maintenance::Uninstall},
        {{"/full_uninstall", "/install"}, CommandLine::Maintenance::Install},
        {{"/full_uninstall", "/uninstall"}, CommandLine::Maintenance::Uninstall},
        {{"/INSTALL"}, CommandLine::Maintenance::None},
        {{"/install2"}, CommandLine::Maintenance::None},
        {{"/media/install"}, CommandLine::Maintenance::None},
        {{}, CommandLine::Maintenance::None},
    };
    for (const auto &row : rows)
        EXPECT_EQ(line(row.arguments).maintenance(), row.run) << qPrintable(row.arguments.join(' '));
}

TEST(CommandLine, AProgramPathNeverAsksForMaintenance)
{
    EXPECT_EQ(CommandLine({"/install"}).maintenance(), CommandLine::Maintenance::None);
}

TEST(CommandLine, AddPlanWithoutInstallIsTakenForAFile)
{
    const CommandLine plan = line({"/add_plan"});
    EXPECT_EQ(plan.maintenance(), CommandLine::Maintenance::None);
    EXPECT_TRUE(plan.hasFileArgument());
    EXPECT_EQ(plan.fileArgument(), "/add_plan");
}

TEST(CommandLine, AddPlanWithInstallJoins)
{
    EXPECT_TRUE(line({"/install", "/add_plan"}).joinsPlan());
    EXPECT_FALSE(line({"/install"}).joinsPlan());
}

TEST(CommandLine, AFolderForTheLibraryIsNoFile)
{
    const CommandLine alone = line({"--library", "/media"});
    EXPECT_EQ(alone.libraryFolder(), "/media");
    EXPECT_FALSE(alone.hasFileArgument());
    EXPECT_EQ(alone.arguments(), QStringList{kProgram});

    const CommandLine both = line({"/films/a.mkv", "--library", "/media", "fullscreen"});
    EXPECT_EQ(both.libraryFolder(), "/media");
    EXPECT_EQ(both.fileArgument(), "/films/a.mkv");
    EXPECT_EQ(both.startFlags(), CommandLine::FullScreenFlag);

    const CommandLine cut = line({"--library"});
    EXPECT_TRUE(cut.libraryFolder().isEmpty());
    EXPECT_FALSE(cut.hasFileArgument());
    EXPECT_TRUE(CommandLine({"--library", "/media"}).libraryFolder().isEmpty());
}

TEST(CommandLine, InstallModeIsRemovedAndNeverCountsAsAFile)
{
    const CommandLine alone = line({"--installmode"});
    EXPECT_FALSE(alone.hasFileArgument());
    EXPECT_EQ(alone.arguments(), QStringList{kProgram});
    EXPECT_EQ(line({"--installmode", "/films/a.mkv"}).fileArgument(), "/films/a.mkv");
}

TEST(CommandLine, TheFirstArgumentAfterTheProgramIsTheFile)
{
    EXPECT_FALSE(line({}).hasFileArgument());
    EXPECT_EQ(line({}).fileArgument(), QString());
    EXPECT_EQ(line({"/films/a.mkv", "/films/b.mkv"}).fileArgument(), "/films/a.mkv");
}

TEST(CommandLine, FlagsAreSubstringsInAnyCaseOfTheWholeList)
{
    const struct {
        QStringList arguments;
        int flags;
    } rows[] = {
        {{"/films/a.mkv"}, 0},
        {{"/films/a.mkv", "fullscreen"}, 1},
        {{"/films/a.mkv", "--FullScreen=yes"}, 1},
        {{"/films/a.mkv", "close"}, 16},
        {{"/films/a.mkv", "xCLOSEx", "fullscreen"}, 17},
        {{"/films/Close to Home.mkv"}, 16},
    };
    for (const auto &row : rows)
        EXPECT_EQ(line(row.arguments).startFlags(), row.flags) << qPrintable(row.arguments.join(' '));
}

TEST(CommandLine, TheProgramPathCountsForTheFlags)
{
    EXPECT_EQ(CommandLine({"/opt/Enclosed/player", "/films/a.mkv"}).startFlags(), 16);
}

} // namespace
