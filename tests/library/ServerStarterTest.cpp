#include "library/ServerStarter.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

// A program that stays until it is ended.
QString makeProgram(const QTemporaryDir &folder)
{
    const QString path = folder.filePath("server");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\nexec sleep 600\n");
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

TEST(ServerStarter, MissingFileStartsAndHoldsNothing)
{
    ServerStarter starter;
    EXPECT_FALSE(starter.start("/nowhere/server", "/tmp", 1000));
    EXPECT_FALSE(starter.isHeld());
    EXPECT_FALSE(starter.startPlain("/nowhere/server"));
    starter.release();
}

TEST(ServerStarter, ProcessIsHeldUntilItIsReleased)
{
    const QTemporaryDir folder;
    ServerStarter starter;
    ASSERT_TRUE(starter.start(makeProgram(folder), folder.path(), 10000));
    EXPECT_TRUE(starter.isHeld());
    starter.release();
    EXPECT_FALSE(starter.isHeld());
}

} // namespace
