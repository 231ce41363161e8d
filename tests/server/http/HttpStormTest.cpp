// Many at once, and many that are wrong.
#include "HttpFixture.h"

#include "../rpc/LibraryFakes.h"
#include "rpc/RpcDispatcher.h"
#include "support/Sanitizers.h"
#include "support/TestLog.h"

#include <QFile>

#include <cstdio>
#include <random>
#include <thread>

#include <sys/resource.h>

namespace {

constexpr int connections = 1000;

class HttpStormTest : public HttpFixture {
protected:
    HttpStormTest()
    {
        // Both ends of every connection are in this process.
        rlimit limit{};
        ::getrlimit(RLIMIT_NOFILE, &limit);
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_NOFILE, &limit);
        m_enoughFiles = limit.rlim_cur > 2 * connections + 200;
    }

    bool m_enoughFiles{false};
};

qint64 residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

// What the test's own log of the server's lines holds in this process: it grows with every refused request.
qint64 loggedKilobytes()
{
    constexpr qint64 overhead = 64; // bytes: the text's head, its place in the list and the allocator's own
    qint64 bytes = 0;
    const QStringList lines = TestLog::infoLines();
    for (const QString &line : lines)
        bytes += line.capacity() * qint64(sizeof(QChar)) + overhead;
    return bytes / 1024;
}

QByteArray damaged(QByteArray request, std::mt19937 &random)
{
    const QByteArray odd("\r\n :/%\\\"{}[]0-;\0\xff", 18);
    const auto upTo = [&random](int count) { return int(random() % unsigned(qMax(count, 1))); };
    for (int n = 1 + upTo(5); n > 0 && !request.isEmpty(); --n) {
        const int at = upTo(request.size());
        switch (upTo(5)) {
        case 0:
            request[at] = odd.at(upTo(odd.size()));
            break;
        case 1:
            request.remove(at, upTo(12));
            break;
        case 2:
            request.insert(at, request.mid(upTo(request.size()), upTo(40)));
            break;
        case 3:
            request.insert(at, QByteArray(upTo(300), odd.at(upTo(odd.size()))));
            break;
        default:
            request.truncate(at);
        }
    }
    return request;
}

} // namespace

TEST_F(HttpStormTest, AThousandConnectionsAreOpenAndEachIsAnswered)
{
    ASSERT_TRUE(m_enoughFiles);
    startServer();
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < connections; ++i) {
        clients.push_back(std::make_unique<RawClient>(port()));
        ASSERT_TRUE(clients.back()->isConnected()) << i;
    }
    EXPECT_TRUE(works());
    for (const auto &client : clients)
        ASSERT_TRUE(client->send(Http::post("{\"method\":\"x\"}")));
    for (const auto &client : clients)
        ASSERT_EQ(client->read().body, QByteArray("{\"method\":\"x\"}"));
    EXPECT_TRUE(works());
}

TEST_F(HttpStormTest, ParallelCallsGetTheirOwnAnswers)
{
    startServer();
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < 100; ++i) {
                const QByteArray body = QByteArray::number(t) + '/' + QByteArray::number(i);
                if (ask(Http::post(body)).body != body)
                    ++wrong;
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(wrong.load(), 0);
}

TEST_F(HttpStormTest, DamagedRequestsCostNoMemoryAndNoService)
{
    FakeRoots roots;
    FakeVideos videos;
    FakeMusic music;
    FakeTasks tasks;
    FakeMetadata metadata;
    const RpcDispatcher dispatcher({roots, videos, music, tasks, metadata});
    m_handlers.rpc = [&](const QByteArray &body) { return dispatcher.handle(body); };
    m_settings.threads = 1; // the libraries in memory are no libraries for several threads
    startServer();

    const QByteArray heartbeat(R"({"id":"1","jsonrpc":"2.0","method":"Server.Heartbeat","params":{}})");
    const QByteArray seeds[] = {
        Http::post(heartbeat),
        Http::post(R"({"method":"VLibrary.GetMovies","params":{"idlibrary":1,"limits":{"start":0,"end":1},
                       "pattern":"","sort":{"method":"year","order":"ascending"}}})"),
        "POST /jsonrpc HTTP/1.1\r\nHost: localhost\r\nTransfer-Encoding: "
        "chunked\r\n\r\n5\r\nabcde\r\n0\r\n\r\n",
        Http::get("/image/%2Ffilms%2Fposter.jpg", "Range: bytes=0-10\r\n"),
    };
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("QUORIN_FUZZ_REQUESTS", &given);
    const int requests = given ? wanted : 5000;
    std::mt19937 random(20240817);
    qint64 before = 0;
    for (int i = 0; i < requests; ++i) {
        // Pools and threads have their size after a while.
        if (i == requests / 5)
            before = residentKilobytes() - loggedKilobytes();
        RawClient client(port());
        ASSERT_TRUE(client.isConnected()) << i;
        client.send(damaged(seeds[random() % std::size(seeds)], random));
        // Nobody waits for what such a request may get: the client leaves, as broken ones do.
        if (i % 100 == 0) {
            ASSERT_EQ(ask(Http::post(heartbeat)).status, 200) << i;
        }
    }
    const qint64 logged = loggedKilobytes();
    const qint64 grown = residentKilobytes() - logged - before;
    std::printf("# memory grew by %lld KiB over %d requests, beside a log of %lld KiB\n", grown, requests,
                logged);
    if (!Sanitizers::HoldsMemory) {
        EXPECT_LT(grown, 20 * 1024);
    }
    EXPECT_TRUE(ask(Http::post(heartbeat)).body.contains("\"Finished\":\"1\""));
}
