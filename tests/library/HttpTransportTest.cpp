#include "library/HttpTransport.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>
#include <thread>

namespace {

constexpr int kPatienceMs = 10000;
constexpr int kTimeoutSeconds = 30;

// A post from another thread to a server of this one.
class HttpTransportCase : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_server.listen(QHostAddress::LocalHost)); }
    void TearDown() override
    {
        if (m_client.joinable())
            m_client.join();
    }
    void post(const QByteArray &body)
    {
        const QString url =
            QStringLiteral("http://127.0.0.1:%1/jsonrpc?Server.Heartbeat").arg(m_server.serverPort());
        m_client =
            std::thread([this, url, body] { m_reply = m_transport.postJson(url, body, kTimeoutSeconds); });
        if (m_server.waitForNewConnection(kPatienceMs))
            m_socket.reset(m_server.nextPendingConnection());
    }
    // Reads until the request ends with its body.
    [[nodiscard]] QByteArray request(const QByteArray &body)
    {
        QByteArray bytes;
        while (m_socket && !bytes.endsWith(body) && m_socket->waitForReadyRead(kPatienceMs))
            bytes += m_socket->readAll();
        return bytes;
    }
    void answer(const QByteArray &bytes)
    {
        if (!m_socket)
            return;
        m_socket->write(bytes);
        while (m_socket->bytesToWrite() > 0 && m_socket->waitForBytesWritten(kPatienceMs)) {
        }
        m_socket->disconnectFromHost();
    }

    QTcpServer m_server;
    HttpTransport m_transport;
    LibraryReply m_reply;
    std::unique_ptr<QTcpSocket> m_socket;
    std::thread m_client;
};

TEST_F(HttpTransportCase, PostsTheBodyWithItsHeaderAndGivesTheAnswer)
{
    post("{\"id\":1}");
    const QByteArray asked = request("{\"id\":1}");
    answer("HTTP/1.1 200 OK\r\nContent-Length: 9\r\nConnection: close\r\n\r\n{\"ret\":0}");
    m_client.join();
    EXPECT_TRUE(asked.startsWith("POST /jsonrpc?Server.Heartbeat HTTP/1.1\r\n")) << asked.constData();
    EXPECT_TRUE(asked.contains("Content-Type:application/json;charset=UTF-8\r\n")
                || asked.contains("Content-Type: application/json;charset=UTF-8\r\n"))
        << asked.constData();
    EXPECT_TRUE(m_reply.isDelivered);
    EXPECT_EQ(m_reply.body, "{\"ret\":0}");
}

TEST_F(HttpTransportCase, TheSongsOfAVeryLargeLibraryAreOneAnswer)
{
    post("{}");
    (void)request("{}");
    const QByteArray songs(100 * 1024 * 1024, 'x');
    answer("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(songs.size())
           + "\r\nConnection: close\r\n\r\n" + songs);
    m_client.join();
    EXPECT_TRUE(m_reply.isDelivered);
    EXPECT_EQ(m_reply.body.size(), songs.size());
}

TEST_F(HttpTransportCase, ARefusalIsNotDelivered)
{
    post("{}");
    (void)request("{}");
    answer("HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\nConnection: close\r\n\r\n{\"ret\":0}");
    m_client.join();
    EXPECT_FALSE(m_reply.isDelivered);
}

TEST_F(HttpTransportCase, StopEndsACallThatWaitsForItsAnswer)
{
    post("{}");
    (void)request("{}");
    QElapsedTimer timer;
    timer.start();
    m_transport.stop();
    m_client.join();
    EXPECT_LT(timer.elapsed(), kTimeoutSeconds * 1000 / 2);
    EXPECT_FALSE(m_reply.isDelivered);
    EXPECT_FALSE(m_transport.postJson("http://127.0.0.1:1/", "{}", kTimeoutSeconds).isDelivered);
}

} // namespace
