// The program's life with libraries in memory: up in order, answering, and down again.
#include "RawClient.h"

#include "../rpc/LibraryFakes.h"
#include "main/ServerApplication.h"
#include "main/StopSignals.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr char Heartbeat[] = R"({"id":"7","method":"Server.Heartbeat","params":{}})";

struct FakeParts final : IServerParts {
    explicit FakeParts(QStringList &steps)
        : log(steps)
    {
    }
    ~FakeParts() override { log.append(QStringLiteral("destroyed")); }
    bool open(QString &error) override
    {
        error = QStringLiteral("broken");
        log.append(QStringLiteral("open"));
        if (onOpen)
            onOpen();
        return opens;
    }
    void start() override { log.append(QStringLiteral("start")); }
    void stop() override { log.append(QStringLiteral("stop")); }
    ILibraryRoots &roots() override { return fakeRoots; }
    IVideoLibrary &videos() override { return fakeVideos; }
    IMusicLibrary &music() override { return fakeMusic; }
    const IArtworkKeys &artwork() const override { return fakeArtwork; }
    IServerTasks &tasks() override { return fakeTasks; }
    IMetadataService &metadata() override { return fakeMetadata; }

    QStringList &log;
    bool opens{true};
    std::function<void()> onOpen;
    FakeRoots fakeRoots;
    FakeVideos fakeVideos;
    FakeMusic fakeMusic;
    FakeArtwork fakeArtwork;
    FakeTasks fakeTasks;
    FakeMetadata fakeMetadata;
};

class ServerApplicationTest : public testing::Test {
protected:
    [[nodiscard]] ServerApplication::PartsFactory factory()
    {
        return [this](const DataFolder &, const ServerConfiguration &) {
            auto parts = std::make_unique<FakeParts>(m_steps);
            parts->opens = m_opens;
            parts->onOpen = m_onOpen;
            return parts;
        };
    }
    [[nodiscard]] ServerApplication::Settings settings(const QString &folder) const
    {
        ServerApplication::Settings chosen;
        chosen.dataFolder = folder;
        chosen.http.port = 0;
        return chosen;
    }

    QTemporaryDir m_folder;
    QStringList m_steps;
    bool m_opens{true};
    std::function<void()> m_onOpen; // in the middle of the start
};

} // namespace

TEST_F(ServerApplicationTest, ComesUpAnswersAndGoesDownInOrder)
{
    ServerApplication server(settings(m_folder.path()), factory());
    ASSERT_EQ(server.start(), ServerApplication::Ended);
    EXPECT_EQ(m_steps.join(','), QStringLiteral("open,start"));
    EXPECT_TRUE(
        Http::ask(server.port(), Http::post(R"({"method":"Server.Heartbeat"})")).body.contains("\"ret\":0"));
    EXPECT_TRUE(Http::ask(server.port(), Http::post("nonsense")).body.contains("\"ret\":1"));
    QFile picture(m_folder.filePath(QStringLiteral("images/ab.jpg")));
    ASSERT_TRUE(picture.open(QIODevice::WriteOnly));
    const QByteArray bytes("\xff\xd8\xff\xe0 a picture", 14);
    picture.write(bytes);
    picture.close();
    const RawReply reply = Http::ask(server.port(), Http::get("/image/ab.jpg"));
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, bytes);
    EXPECT_TRUE(reply.head.contains("Content-Type: image/jpeg"));
    EXPECT_EQ(Http::ask(server.port(), Http::get("/image/..%2Fserver.log")).status, 404);
    server.stop();
    EXPECT_EQ(m_steps.join(','), QStringLiteral("open,start,stop,destroyed"));
    EXPECT_TRUE(QFile::exists(m_folder.filePath(QStringLiteral("server.log"))));
    EXPECT_EQ(server.start(), ServerApplication::Ended);
}

TEST_F(ServerApplicationTest, TwoServersNeverShareADataFolder)
{
    ServerApplication first(settings(m_folder.path()), factory());
    ASSERT_EQ(first.start(), ServerApplication::Ended);
    ServerApplication second(settings(m_folder.path()), factory());
    EXPECT_EQ(second.start(), ServerApplication::AlreadyRunning);
    first.stop();
    EXPECT_EQ(second.start(), ServerApplication::Ended);
}

TEST_F(ServerApplicationTest, APortThatIsTakenEndsTheStartWithItsOwnStatus)
{
    ServerApplication first(settings(m_folder.filePath(QStringLiteral("one"))), factory());
    ASSERT_EQ(first.start(), ServerApplication::Ended);
    ServerApplication::Settings same = settings(m_folder.filePath(QStringLiteral("two")));
    same.http.port = first.port();
    m_steps.clear();
    ServerApplication second(same, factory());
    EXPECT_EQ(second.start(), ServerApplication::PortTaken);
    EXPECT_EQ(int(ServerApplication::PortTaken), 3);
    EXPECT_EQ(m_steps.join(','), QString()) << "a server without a port has nothing to do with the database";
}

TEST_F(ServerApplicationTest, WhatCannotWorkEndsTheStart)
{
    QFile file(m_folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ServerApplication inFile(settings(file.fileName()), factory());
    EXPECT_EQ(inFile.start(), ServerApplication::NoDataFolder);
    m_opens = false;
    ServerApplication broken(settings(m_folder.filePath(QStringLiteral("data"))), factory());
    EXPECT_EQ(broken.start(), ServerApplication::NoDatabase);
}

TEST_F(ServerApplicationTest, ARequestThatComesDuringTheStartIsAnsweredAtItsEnd)
{
    ServerApplication server(settings(m_folder.path()), factory());
    std::unique_ptr<RawClient> early;
    m_onOpen = [&] {
        early = std::make_unique<RawClient>(server.port());
        EXPECT_TRUE(early->send(Http::post(Heartbeat)));
    };
    ASSERT_EQ(server.start(), ServerApplication::Ended);
    ASSERT_TRUE(early);
    EXPECT_TRUE(early->read().body.contains("\"ret\":0"));
    EXPECT_EQ(m_steps.join(','), QStringLiteral("open,start"));
}

TEST_F(ServerApplicationTest, AStartThatTakesLongerThanARequestWaitsTellsSo)
{
    ServerApplication::Settings chosen = settings(m_folder.path());
    chosen.startWait = std::chrono::milliseconds(1);
    ServerApplication server(chosen, factory());
    m_onOpen = [&] {
        const RawReply reply = Http::ask(server.port(), Http::post(Heartbeat));
        EXPECT_EQ(reply.status, 200);
        EXPECT_TRUE(reply.body.contains("\"ret\":1")) << reply.body.constData();
        EXPECT_TRUE(reply.body.contains("\"id\":\"7\"")) << reply.body.constData();
        EXPECT_TRUE(reply.body.contains("starting")) << reply.body.constData();
        EXPECT_EQ(Http::ask(server.port(), Http::get("/image/ab.jpg")).status, 503);
    };
    ASSERT_EQ(server.start(), ServerApplication::Ended);
    EXPECT_TRUE(Http::ask(server.port(), Http::post(Heartbeat)).body.contains("\"ret\":0"));
    EXPECT_EQ(Http::ask(server.port(), Http::get("/image/ab.jpg")).status, 404);
}

TEST_F(ServerApplicationTest, AStartThatFailsSendsAwayWhoWaitsForIt)
{
    m_opens = false;
    ServerApplication::Settings chosen = settings(m_folder.path());
    chosen.startWait = std::chrono::minutes(10);
    ServerApplication server(chosen, factory());
    std::vector<std::unique_ptr<RawClient>> early;
    m_onOpen = [&] {
        // More than are carried out at once.
        for (int i = 0; i < 3 * chosen.http.threads; ++i) {
            early.push_back(std::make_unique<RawClient>(server.port()));
            EXPECT_TRUE(early.back()->send(Http::post(Heartbeat)));
        }
    };
    EXPECT_EQ(server.start(), ServerApplication::NoDatabase);
    EXPECT_EQ(server.port(), 0);
    EXPECT_EQ(m_steps.join(','), QStringLiteral("open,destroyed"));
    // What a thread had taken up is answered, the rest ends with the port.
    for (const std::unique_ptr<RawClient> &client : early)
        EXPECT_FALSE(client->read().body.contains("\"ret\":0"));
}

TEST_F(ServerApplicationTest, AWishOfTheSystemToEndComesThroughTheEventLoop)
{
    const StopSignals stopSignals;
    QSignalSpy spy(&stopSignals, &StopSignals::stopRequested);
    ::raise(SIGTERM);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(spy.wait(10000));
    EXPECT_EQ(spy.count(), 1);
}
