#include "HttpFixture.h"

#include <QElapsedTimer>
#include <QSemaphore>

#include <atomic>
#include <stdexcept>
#include <thread>

namespace {

using HttpServerTest = HttpFixture;

constexpr int megabyte = 1024 * 1024;

QByteArray chunked(const QByteArray &chunks)
{
    return "POST /jsonrpc HTTP/1.1\r\nHost: localhost\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks;
}

} // namespace

TEST_F(HttpServerTest, ACallIsAnsweredAndTheConnectionStays)
{
    startServer();
    RawClient client(port());
    for (const char *body : {"{\"first\":1}", "{}", ""}) {
        client.send(Http::post(body));
        const RawReply reply = client.read();
        EXPECT_EQ(reply.status, 200);
        EXPECT_EQ(reply.body, QByteArray(body));
        EXPECT_TRUE(reply.head.contains("Content-Type: application/json")) << reply.head.constData();
    }
    // Two at once in one write are answered one after the other.
    client.send(Http::post("a") + Http::post("b"));
    EXPECT_EQ(client.read().body, QByteArray("a"));
    EXPECT_EQ(client.read().body, QByteArray("b"));
}

TEST_F(HttpServerTest, AChunkedBodyIsPutTogether)
{
    startServer();
    EXPECT_EQ(ask(chunked("3\r\nabc\r\n4;x=y\r\ndefg\r\n0\r\n\r\n")).body, QByteArray("abcdefg"));
}

TEST_F(HttpServerTest, ABodyOfManyMegabytesArrivesWhole)
{
    startServer();
    const QByteArray body(10 * megabyte, 'x');
    EXPECT_EQ(ask(Http::post(body)).body.size(), body.size());
    // As a client does that asks first.
    RawClient asking(port());
    const QByteArray request = Http::post(body, "Expect: 100-continue\r\n");
    asking.send(request.left(request.size() - body.size()));
    EXPECT_EQ(asking.read().status, 100);
    asking.send(body);
    EXPECT_EQ(asking.read().body.size(), body.size());
}

TEST_F(HttpServerTest, MalformedRequestsAreRefusedAndHarmNothing)
{
    m_settings.idleSeconds = 1; // of a request that is only half there the end may be the end of patience
    startServer();
    struct Row {
        const char *name;
        QByteArray request;
        QVector<int> statuses; // 0: closed without a reply
    };
    const QByteArray host("Host: 127.0.0.1\r\n");
    const Row rows[] = {
        {"foreign host",
         "POST /jsonrpc HTTP/1.1\r\nHost: evil.example\r\nContent-Length: 2\r\n\r\n{}",
         {403}},
        {"no host", "POST /jsonrpc HTTP/1.1\r\nContent-Length: 2\r\n\r\n{}", {400, 403}},
        {"no host of old", "POST /jsonrpc HTTP/1.0\r\nContent-Length: 2\r\n\r\n{}", {403}},
        {"two hosts",
         "POST /jsonrpc HTTP/1.1\r\n" + host + "Host: evil.example\r\nContent-Length: 2\r\n\r\n{}",
         {400, 403}},
        {"foreign page", Http::post("{}", "Origin: https://evil.example\r\n"), {403}},
        {"other method", "PUT /jsonrpc HTTP/1.1\r\n" + host + "Content-Length: 2\r\n\r\n{}", {405}},
        {"get of the protocol", Http::get("/jsonrpc?Server.Heartbeat"), {405}},
        {"other path", Http::get("/etc/passwd"), {404}},
        {"path with steps", Http::get("/image/../../etc/passwd"), {404}},
        {"path with backslashes", Http::get("/image/..%5C..%5Cetc"), {404}},
        {"path with NUL", Http::get("/image/a%00.jpg"), {404}},
        {"absolute path", Http::get("/image//etc/passwd"), {404}},
        {"odd range", Http::get("/image/a.jpg", "Range: 5-1,bytes=9999999999999999999999-\r\n"), {404}},
        {"one gigabyte", "POST /jsonrpc HTTP/1.1\r\n" + host + "Content-Length: 1073741824\r\n\r\n", {413}},
        {"length beyond numbers",
         "POST /jsonrpc HTTP/1.1\r\n" + host + "Content-Length: 99999999999999999999999\r\n\r\n",
         {400, 413}},
        {"negative length", "POST /jsonrpc HTTP/1.1\r\n" + host + "Content-Length: -1\r\n\r\n", {400, 413}},
        {"length no number",
         "POST /jsonrpc HTTP/1.1\r\n" + host + "Content-Length: two\r\n\r\n{}",
         {400, 413}},
        {"chunk size no number", chunked("zz\r\nabc\r\n0\r\n\r\n"), {400, 0}},
        {"chunk size negative", chunked("-5\r\nabc\r\n0\r\n\r\n"), {400, 0}},
        {"chunk size huge", chunked("fffffffffffffffffff\r\nabc\r\n0\r\n\r\n"), {400, 413, 0}},
        {"chunk without its end", chunked("3\r\nabcdef\r\n0\r\n\r\n"), {400, 0}},
        {"huge head",
         "GET /image/a HTTP/1.1\r\n" + host + "X: " + QByteArray(megabyte, 'x') + "\r\n\r\n",
         {400, 413, 431, 0}},
        {"huge path", Http::get("/image/" + QByteArray(megabyte, 'x')), {400, 404, 414, 0}},
        {"many headers",
         "GET /image/a HTTP/1.1\r\n" + host + QByteArray("A: b\r\n").repeated(20000) + "\r\n",
         {400, 413, 431, 0}},
        {"before versions", "GET /image/a\r\n\r\n", {400, 403, 505, 0}},
        {"version unknown", "GET /image/a HTTP/9.9\r\n" + host + "\r\n", {400, 505, 0}},
        {"nonsense", "\x16\x03\x01 nonsense\r\n\r\n", {400, 403, 505, 0}},
        {"header without colon", "GET /image/a HTTP/1.1\r\nnonsense\r\n" + host + "\r\n", {400, 404, 0}},
        {"NUL in a header",
         QByteArray("GET /image/a HTTP/1.1\r\nHost: local\0host\r\n\r\n", 43),
         {400, 403, 0}},
        {"nothing", "", {0}},
        {"half a head", "POST /jsonrpc HTTP/1.1\r\nHost", {400, 0}},
        {"half a body", "POST /jsonrpc HTTP/1.1\r\n" + host + "Content-Length: 100\r\n\r\n{}", {400, 0}},
    };
    for (const Row &row : rows) {
        RawClient client(port());
        ASSERT_TRUE(client.isConnected()) << row.name;
        client.send(row.request);
        // What is not complete gets its end; what is must be answered to one who goes on to listen.
        if (row.statuses.contains(0))
            client.finishSending();
        const RawReply reply = client.read();
        EXPECT_TRUE(row.statuses.contains(reply.status)) << row.name << " gives " << reply.status;
        EXPECT_TRUE(works()) << row.name;
    }
}

TEST_F(HttpServerTest, ABodyThatGrowsBeyondTheLimitIsRefused)
{
    m_settings.largestBody = megabyte;
    startServer();
    const QByteArray chunk = "40000\r\n" + QByteArray(0x40000, 'x') + "\r\n";
    EXPECT_EQ(ask(chunked(chunk.repeated(3) + "0\r\n\r\n")).status, 200);
    EXPECT_EQ(ask(chunked(chunk.repeated(5) + "0\r\n\r\n")).status, 413);
    // One that has no end is cut off.
    RawClient endless(port());
    endless.send(chunked({}));
    int sent = 0;
    while (sent < 1000 && endless.send(chunk))
        ++sent;
    EXPECT_LT(sent, 1000);
    EXPECT_TRUE(works());
}

TEST_F(HttpServerTest, AllBodiesTogetherStayWithinTheirLimit)
{
    m_settings.largestTogether = megabyte;
    startServer();
    EXPECT_EQ(ask(Http::post(QByteArray(2 * megabyte, 'x'))).status, 503);
    // What was held is given back.
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(ask(Http::post(QByteArray(megabyte / 2, 'x'))).status, 200);
}

TEST_F(HttpServerTest, HeadersOfPicturesComeWithoutThem)
{
    m_handlers.image = [](const QByteArray &key) {
        HttpReply reply;
        reply.status = 200;
        reply.contentType = "image/png";
        reply.body = key;
        return reply;
    };
    startServer();
    EXPECT_EQ(ask(Http::get("/image/%2Ffilms%2Fa%20b.png?x=y")).body, QByteArray("%2Ffilms%2Fa%20b.png"));
    RawClient client(port());
    client.send("HEAD /image/abc HTTP/1.1\r\nHost: localhost\r\n\r\n");
    const RawReply reply = client.read(true);
    EXPECT_EQ(reply.status, 200);
    EXPECT_TRUE(reply.head.contains("Content-Length: 3"));
    client.send(Http::get("/image/next"));
    EXPECT_EQ(client.read().body, QByteArray("next"));
}

TEST_F(HttpServerTest, AHandlerThatThrowsIsAnsweredAsTheProtocolAnswersErrors)
{
    m_handlers.rpc = [](const QByteArray &body) -> QByteArray {
        if (body == "memory")
            throw std::bad_alloc();
        throw std::runtime_error("broken");
    };
    m_handlers.image = [](const QByteArray &) -> HttpReply { throw std::runtime_error("broken"); };
    startServer();
    for (const char *body : {"memory", "other"}) {
        const RawReply reply = ask(Http::post(body));
        EXPECT_EQ(reply.status, 200);
        EXPECT_TRUE(reply.body.contains("\"ret\":1")) << reply.body.constData();
    }
    EXPECT_EQ(ask(Http::get("/image/a")).status, 500);
}

TEST_F(HttpServerTest, ASenderThatStopsIsLetGoAndHoldsUpNobody)
{
    m_settings.idleSeconds = 1;
    startServer();
    RawClient inHead(port());
    inHead.send("POST /jsonrpc HTTP/1.1\r\nHo");
    RawClient inBody(port());
    inBody.send("POST /jsonrpc HTTP/1.1\r\nHost: localhost\r\nContent-Length: 10\r\n\r\n{");
    RawClient silent(port());
    EXPECT_TRUE(works());
    for (RawClient *client : {&inHead, &inBody, &silent})
        EXPECT_TRUE(client->waitForEnd());
    EXPECT_TRUE(works());
}

TEST_F(HttpServerTest, RequestsThatWaitHoldUpNoOther)
{
    QSemaphore gate;
    QSemaphore waiting;
    m_handlers.rpc = [&](const QByteArray &body) {
        if (body == "wait") {
            waiting.release();
            gate.acquire();
        }
        return QByteArray(body);
    };
    startServer();
    constexpr int held = 10; // more than there are moving threads, fewer than carry requests out
    std::vector<std::thread> threads;
    std::atomic<int> answered{0};
    for (int i = 0; i < held; ++i)
        threads.emplace_back([&] { answered += ask(Http::post("wait")).body == "wait" ? 1 : 0; });
    EXPECT_TRUE(waiting.tryAcquire(held, 20000));
    for (int i = 0; i < 50; ++i)
        EXPECT_TRUE(works());
    EXPECT_EQ(answered.load(), 0);
    gate.release(held);
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(answered.load(), held);
}

TEST_F(HttpServerTest, StoppingLetsARequestUnderWayEnd)
{
    QSemaphore gate;
    QSemaphore waiting;
    std::atomic<bool> returned{false};
    m_handlers.rpc = [&](const QByteArray &body) {
        waiting.release();
        gate.acquire();
        returned = true;
        return QByteArray(body);
    };
    startServer();
    RawClient client(port());
    client.send(Http::post("x"));
    ASSERT_TRUE(waiting.tryAcquire(1, 20000));
    std::thread stopper([this] { m_server->stop(); });
    gate.release();
    stopper.join();
    EXPECT_TRUE(returned.load());
    EXPECT_TRUE(client.waitForEnd());
    EXPECT_EQ(m_server->port(), 0);
    m_server->stop();
}

TEST_F(HttpServerTest, AClientThatLeavesBeforeItsAnswerIsForgotten)
{
    // The handler may still be on its way out of them when the test has ended.
    const auto gate = std::make_shared<QSemaphore>();
    const auto waiting = std::make_shared<QSemaphore>();
    m_handlers.rpc = [gate, waiting](const QByteArray &body) {
        if (body == "wait") {
            waiting->release();
            gate->acquire();
        }
        return QByteArray(body);
    };
    startServer();
    {
        RawClient client(port());
        client.send(Http::post("wait"));
        ASSERT_TRUE(waiting->tryAcquire(1, 20000));
    }
    gate->release();
    EXPECT_TRUE(works());
}

TEST_F(HttpServerTest, APortThatIsTakenIsTold)
{
    startServer();
    HttpServer::Settings same;
    same.port = port();
    HttpServer second(m_handlers, same);
    EXPECT_EQ(second.start(), HttpServer::Start::PortTaken);
    EXPECT_EQ(second.port(), 0);
    const quint16 taken = port();
    m_server->stop();
    EXPECT_EQ(second.start(), HttpServer::Start::Started);
    EXPECT_EQ(second.port(), taken);
}
