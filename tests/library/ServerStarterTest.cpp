#include "library/ServerStarter.h"

#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <memory>

namespace {

// A program that stays until it is ended, unless it does something else.
QString makeProgram(const QTemporaryDir &folder, const QByteArray &command = "exec sleep 600")
{
    const QString path = folder.filePath("server");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + command + "\n");
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
    EXPECT_TRUE(starter.isRunning());
    starter.release();
    EXPECT_FALSE(starter.isHeld());
    EXPECT_FALSE(starter.isRunning());
}

TEST(ServerStarter, EndOfAProcessThatAnotherThreadHasStartedIsSeen)
{
    const QTemporaryDir folder;
    const QString program = makeProgram(folder, "exit 3");
    ServerStarter starter;
    EXPECT_FALSE(starter.isRunning());
    bool isStarted = false;
    // Qt's own kind of thread, as the library's are: it watches over processes.
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { isStarted = starter.start(program, folder.path(), 10000); }));
    thread->start();
    ASSERT_TRUE(thread->wait(30000));
    ASSERT_TRUE(isStarted);
    ASSERT_EVENTUALLY(!starter.isRunning());
    EXPECT_TRUE(starter.isHeld());
}

} // namespace
