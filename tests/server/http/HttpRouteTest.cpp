#include "http/HttpRoute.h"

#include "http/PortChoice.h"

#include "support/TestLog.h"

#include <gtest/gtest.h>

TEST(HttpRouteTest, OnlyNamesOfThisMachineForItselfAreTaken)
{
    for (const char *host :
         {"127.0.0.1", "127.0.0.1:32080", "localhost", "LocalHost:80", "[::1]", "[::1]:32080", " localhost "})
        EXPECT_TRUE(HttpRoutes::isLoopback(host)) << host;
    for (const char *host :
         {"", "evil.example", "127.0.0.1.evil.example", "localhost.evil.example", "127.0.0.2",
          "127.0.0.1:", "127.0.0.1:80x", "127.0.0.1:123456", "127.0.0.1:80:80", "::1", "[::1", "0.0.0.0",
          "user@127.0.0.1", "localhost:-1", "2130706433"})
        EXPECT_FALSE(HttpRoutes::isLoopback(host)) << host;
}

TEST(HttpRouteTest, TheHeadAloneDecidesWhereARequestGoes)
{
    struct Row {
        const char *method;
        const char *path;
        QVector<QByteArray> hosts;
        QVector<QByteArray> origins;
        int status; // 0: it goes on
    };
    const QVector<QByteArray> own{"127.0.0.1:32080"};
    const Row rows[] = {
        {"POST", "/jsonrpc", own, {}, 0},
        {"GET", "/image/a.jpg", own, {}, 0},
        {"HEAD", "/image//films/a%20b.jpg", own, {}, 0},
        {"GET", "/jsonrpc", own, {}, 405},
        {"OPTIONS", "/jsonrpc", own, {}, 405},
        {"post", "/jsonrpc", own, {}, 405},
        {"POST", "/image/a.jpg", own, {}, 405},
        {"DELETE", "/image/a.jpg", own, {}, 405},
        {"POST", "/jsonrpc/", own, {}, 404},
        {"POST", "/JSONRPC", own, {}, 404},
        {"GET", "/image", own, {}, 404},
        {"GET", "/", own, {}, 404},
        {"GET", "", own, {}, 404},
        {"POST", "/jsonrpc", {}, {}, 403},
        {"POST", "/jsonrpc", {"evil.example"}, {}, 403},
        {"POST", "/jsonrpc", {"127.0.0.1", "evil.example"}, {}, 403},
        {"POST", "/jsonrpc", own, {"http://127.0.0.1:32080"}, 0},
        {"POST", "/jsonrpc", own, {"https://evil.example"}, 403},
        {"POST", "/jsonrpc", own, {"null"}, 403},
        {"GET", "/image/a.jpg", own, {"http://evil.example"}, 403},
    };
    for (const Row &row : rows) {
        const HttpRoute route =
            HttpRoutes::decide({row.method, row.path, "HTTP/1.1", row.hosts, row.origins});
        EXPECT_EQ(route.status, row.status) << row.method << ' ' << row.path;
        EXPECT_EQ(route.target == HttpRoute::Target::Refused, row.status != 0)
            << row.method << ' ' << row.path;
    }
    EXPECT_EQ(HttpRoutes::decide({"POST", "/jsonrpc", "", own, {}}).status, 400);
    EXPECT_EQ(HttpRoutes::decide({"GET", "/image//films/a%20b.jpg", "HTTP/1.0", own, {}}).key,
              QByteArray("/films/a%20b.jpg"));
    EXPECT_EQ(HttpRoutes::decide({"PUT", "/image/a", "HTTP/1.1", own, {}}).allow, QByteArray("GET, HEAD"));
}

TEST(PortChoiceTest, TheEnvironmentNamesAPortOrTheAgreedOneStays)
{
    TestLog::expectWarning(QRegularExpression(QStringLiteral("is no port")));
    struct Row {
        const char *text;
        int port;
    };
    const Row rows[] = {{"", 32080},      {"0", 0},      {"1", 1},        {"65535", 65535},
                        {"65536", 32080}, {"-1", 32080}, {"http", 32080}, {"80 80", 32080}};
    for (const Row &row : rows)
        EXPECT_EQ(PortChoice::read(row.text, 32080), row.port) << row.text;
}
