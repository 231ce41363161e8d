#include "online/HttpHelpers.h"

#include "StandInServer.h"

#include "support/TestLog.h"

#include <QElapsedTimer>
#include <QTcpServer>

#include <gtest/gtest.h>

#include <thread>

namespace {

constexpr int kSeconds = 20;

StandInReply still(const QByteArray &bytes)
{
    return {bytes, StandInReply::Then::KeepStill};
}

TEST(HttpHelpersTest, AJsonPostCarriesItsHeaderAndBody)
{
    const StandInServer server([](const StandInRequest &) { return httpReply("200 OK", "{\"ret\":0}"); });
    const HttpResult result = PostJson(server.url("/jsonrpc?Server.Heart"), "{\"id\":1}", kSeconds);
    EXPECT_TRUE(result.isOk());
    EXPECT_EQ(result.httpStatus, 200);
    EXPECT_EQ(result.bytes, "{\"ret\":0}");
    ASSERT_EQ(server.requests().size(), 1);
    const StandInRequest request = server.requests().constFirst();
    EXPECT_EQ(request.line(), "POST /jsonrpc?Server.Heart HTTP/1.1");
    EXPECT_EQ(request.header("Content-Type"), "application/json;charset=UTF-8");
    EXPECT_EQ(request.body, "{\"id\":1}");
    EXPECT_TRUE(TestLog::infoLines().isEmpty());
}

TEST(HttpHelpersTest, ALargeBodyIsNotHeldBackForALeaveToSendIt)
{
    const StandInServer server([](const StandInRequest &) { return httpReply("200 OK", "ok"); });
    const QByteArray body(3 * 1024 * 1024, 'x');
    EXPECT_TRUE(PostJson(server.url("/"), body, kSeconds).isOk());
    ASSERT_EQ(server.requests().size(), 1);
    EXPECT_EQ(server.requests().constFirst().header("Expect"), "");
    EXPECT_EQ(server.requests().constFirst().body, body);
}

TEST(HttpHelpersTest, AGetReturnsTheBytesAsTheyAre)
{
    const QByteArray bytes("\0\xff\r\n\0x", 6);
    const StandInServer server([&](const StandInRequest &) { return httpReply("200 OK", bytes); });
    const HttpResult result = GetText(server.url("/image/a b"), kSeconds);
    EXPECT_TRUE(result.isOk());
    EXPECT_EQ(result.bytes, bytes);
    EXPECT_EQ(server.requests().constFirst().line(), "GET /image/a%20b HTTP/1.1");
}

TEST(HttpHelpersTest, AnErrorStatusIsAFailureThatKeepsItsBody)
{
    const StandInServer server(
        [](const StandInRequest &) { return httpReply("404 Not Found", "{\"ret\":4}"); });
    const HttpResult result = GetText(server.url("/"), kSeconds);
    EXPECT_FALSE(result.isOk());
    EXPECT_EQ(result.httpStatus, 404);
    EXPECT_EQ(result.bytes, "{\"ret\":4}");
    EXPECT_EQ(TestLog::infoLines(), QStringList{"error curl get Code 22 : HTTP response code said error"});
}

TEST(HttpHelpersTest, ARedirectIsNotFollowed)
{
    const StandInServer server(
        [](const StandInRequest &) { return httpReply("302 Found", {}, "Location: /elsewhere\r\n"); });
    EXPECT_EQ(GetText(server.url("/"), kSeconds).httpStatus, 302);
    EXPECT_EQ(server.requests().size(), 1);
}

struct PeerRow {
    const char *name;
    StandInReply reply;
    bool isOk;
    int error;
    const char *bytes;
};

class OddPeerTest : public testing::TestWithParam<PeerRow> {};

TEST_P(OddPeerTest, GivesAResultAndALogLine)
{
    const PeerRow &row = GetParam();
    const StandInServer server([&](const StandInRequest &) { return row.reply; });
    const HttpResult result = PostJson(server.url("/"), "{}", 1);
    EXPECT_EQ(result.isOk(), row.isOk);
    EXPECT_EQ(result.error, row.error);
    EXPECT_EQ(result.bytes, row.bytes);
    const QStringList log = TestLog::infoLines();
    ASSERT_EQ(log.size(), row.isOk ? 0 : 1);
    if (!row.isOk) {
        EXPECT_EQ(log.constFirst(),
                  QStringLiteral("error curl get Code %1 : %2").arg(row.error).arg(result.errorText));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Peers, OddPeerTest,
    testing::Values(PeerRow{"SpeaksVersionOneZero", {"HTTP/1.0 200 OK\r\n\r\nold", {}}, true, 0, "old"},
                    PeerRow{"ClosesWithoutAWord", {}, false, 52, ""},
                    PeerRow{"ClosesWithinTheHead", {"HTTP/1.1 200 OK\r\nContent-Le", {}}, false, 52, ""},
                    PeerRow{"ClosesWithinTheBody",
                            {"HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nhalf", {}},
                            false,
                            18,
                            "half"},
                    PeerRow{"SendsRubbish", {"\x01\x02 rubbish \xff\r\n\r\n", {}}, false, 1, ""},
                    PeerRow{"SendsABadChunk",
                            {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nx", {}},
                            false,
                            56,
                            ""},
                    PeerRow{"NeverAnswers", still({}), false, 28, ""},
                    PeerRow{"NeverEnds", still("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nhalf"), false, 28,
                            "half"}),
    [](const auto &row) { return row.param.name; });

TEST(HttpHelpersTest, ACallOfNobodyFailsAtOnce)
{
    QTcpServer gone;
    ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
    const int port = gone.serverPort();
    gone.close();
    const HttpResult result = GetText(QStringLiteral("http://127.0.0.1:%1/").arg(port), kSeconds);
    EXPECT_EQ(result.error, 7);
    EXPECT_EQ(result.httpStatus, 0);
}

TEST(HttpHelpersTest, OnlyHttpIsSpoken)
{
    for (const char *url : {"file:///etc/hostname", "ftp://127.0.0.1/x", "", "http://", "::::", "/path"}) {
        const HttpResult result = GetText(QLatin1String(url), kSeconds);
        EXPECT_FALSE(result.isOk()) << url;
        EXPECT_TRUE(result.bytes.isEmpty()) << url;
    }
}

TEST(HttpHelpersTest, TheProxyOfTheEnvironmentIsPassedBy)
{
    const StandInServer proxy([](const StandInRequest &) { return httpReply("200 OK", "proxy"); });
    const StandInServer server([](const StandInRequest &) { return httpReply("200 OK", "server"); });
    qputenv("http_proxy", proxy.url({}).toLatin1());
    const HttpResult result = GetText(server.url("/"), kSeconds);
    qunsetenv("http_proxy");
    EXPECT_EQ(result.bytes, "server");
    EXPECT_TRUE(proxy.requests().isEmpty());
}

TEST(HttpHelpersTest, AnotherThreadEndsACall)
{
    std::atomic<bool> stop{false};
    const StandInServer server([&](const StandInRequest &) {
        stop = true;
        return still({});
    });
    const HttpResult result = GetText(server.url("/"), kSeconds, &stop);
    EXPECT_EQ(result.error, 42);
}

TEST(HttpHelpersTest, AnAnswerWithoutEndIsCutOff)
{
    const QByteArray flood = "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(65 * 1024 * 1024, 'x');
    const StandInServer server([&](const StandInRequest &) { return StandInReply{flood, {}}; });
    const HttpResult result = GetText(server.url("/"), kSeconds);
    EXPECT_EQ(result.error, 23);
    EXPECT_LE(result.bytes.size(), 64 * 1024 * 1024);
    ASSERT_EQ(TestLog::infoLines().size(), 1);
    EXPECT_TRUE(TestLog::infoLines().constFirst().startsWith("error curl get Code 23 : "));
    EXPECT_TRUE(TestLog::infoLines().constFirst().contains("longer than 67108864 bytes"));
}

TEST(HttpHelpersTest, ACallChoosesHowLongItsAnswerMayBe)
{
    const QByteArray body(100000, 'x');
    const StandInServer server([&](const StandInRequest &) { return httpReply("200 OK", body); });
    for (const qint64 bound : {qint64(body.size()), qint64(body.size()) - 1}) {
        const bool fits = bound == body.size();
        EXPECT_EQ(PostJson(server.url("/"), "{}", kSeconds, nullptr, bound).isOk(), fits);
        const HttpResult result = GetText(server.url("/"), kSeconds, nullptr, bound);
        EXPECT_EQ(result.isOk(), fits);
        EXPECT_LE(result.bytes.size(), bound);
        EXPECT_EQ(result.errorText.contains("longer than 99999 bytes"), !fits);
    }
}

TEST(HttpHelpersTest, ManyThreadsCallAtOnce)
{
    const StandInServer server(
        [](const StandInRequest &request) { return httpReply("200 OK", request.body); });
    constexpr int kThreads = 8;
    std::atomic<int> matches{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&, i] {
            for (int call = 0; call < 10; ++call) {
                const QByteArray body = QByteArray::number(i * 100 + call);
                matches += PostJson(server.url("/"), body, kSeconds).bytes == body ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(matches, kThreads * 10);
}

} // namespace
