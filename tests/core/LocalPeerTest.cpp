#include "core/LocalPeer.h"

#include "support/TestLog.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class LocalPeerTest : public testing::Test {
protected:
    LocalPeerTest()
    {
        EXPECT_TRUE(m_server.listen(m_folder.filePath("socket")));
        m_client.connectToServer(m_server.fullServerName());
        EXPECT_TRUE(m_client.waitForConnected(5000));
        EXPECT_TRUE(m_server.waitForNewConnection(5000));
    }

    // The peer on the server's side; its text when it is complete is kept, since the peer ends with the
    // answer.
    void accept(const LocalPeerLimits &limits)
    {
        m_peer = new LocalPeer(m_server.nextPendingConnection(), limits, &m_server);
        QObject::connect(m_peer, &LocalPeer::complete, m_peer, [this] {
            m_texts << m_peer->text();
            m_peer->answerAndClose("Hello Client");
        });
    }

    QTemporaryDir m_folder;
    QLocalServer m_server;
    QLocalSocket m_client;
    QPointer<LocalPeer> m_peer;
    QStringList m_texts;
};

TEST_F(LocalPeerTest, ATextIsWholeWhenThePeerCloses)
{
    accept({1024, 60000, 60000});
    m_client.write("/films/");
    m_client.flush();
    QTest::qWait(0);
    m_client.write("a.mkv");
    m_client.flush();
    m_client.disconnectFromServer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_texts.isEmpty(); }));
    EXPECT_EQ(m_texts, QStringList{"/films/a.mkv"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_peer.isNull(); }));
}

TEST_F(LocalPeerTest, ChunksOfAPeerThatStaysAreJoinedAndAnswered)
{
    accept({1024, 150, 60000});
    QSignalSpy readable(&m_client, &QLocalSocket::readyRead);
    for (const char *chunk : {"/fi", "lms/", "a.mkv"}) {
        m_client.write(chunk);
        m_client.flush();
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(readable.wait(5000));
    EXPECT_EQ(m_texts, QStringList{"/films/a.mkv"});
    EXPECT_EQ(m_client.readAll(), "Hello Client");
}

TEST_F(LocalPeerTest, ATextThatCameBeforeThePeerWasMadeIsRead)
{
    m_client.write("early");
    m_client.disconnectFromServer();
    accept({1024, 60000, 60000});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_texts.isEmpty(); }));
    EXPECT_EQ(m_texts, QStringList{"early"});
}

TEST_F(LocalPeerTest, ExactlyTheAllowedLengthIsTakenAndOneMoreIsNot)
{
    accept({8, 60000, 60000});
    m_client.write("12345678");
    m_client.disconnectFromServer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_texts.isEmpty(); }));
    EXPECT_EQ(m_texts, QStringList{"12345678"});
}

TEST_F(LocalPeerTest, TooLongATextIsDroppedWithALogLine)
{
    accept({8, 60000, 60000});
    QSignalSpy gone(&m_client, &QLocalSocket::disconnected);
    m_client.write("123456789");
    m_client.flush();
    ASSERT_TRUE(gone.count() > 0 || gone.wait(5000));
    EXPECT_TRUE(m_texts.isEmpty());
    EXPECT_EQ(TestLog::infoLines(),
              QStringList{"[Process] local connection dropped: the peer sends too much"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_peer.isNull(); }));
}

TEST_F(LocalPeerTest, ASilentPeerIsClosedAfterAWhile)
{
    accept({1024, 60000, 100});
    QSignalSpy gone(&m_client, &QLocalSocket::disconnected);
    ASSERT_TRUE(gone.wait(5000));
    EXPECT_TRUE(m_texts.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_peer.isNull(); }));
}

TEST_F(LocalPeerTest, APeerThatDribblesForeverIsClosedToo)
{
    accept({1 << 20, 200, 600});
    QSignalSpy gone(&m_client, &QLocalSocket::disconnected);
    QTimer dribble;
    QObject::connect(&dribble, &QTimer::timeout, &m_client, [this] {
        m_client.write("x");
        m_client.flush();
    });
    dribble.start(20);
    ASSERT_TRUE(gone.wait(10000));
    EXPECT_TRUE(m_texts.isEmpty());
}

TEST_F(LocalPeerTest, APeerThatClosesWithoutAWordLeavesQuietly)
{
    accept({1024, 60000, 60000});
    m_client.disconnectFromServer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_peer.isNull(); }));
    EXPECT_TRUE(m_texts.isEmpty());
    EXPECT_TRUE(TestLog::infoLines().isEmpty());
}

} // namespace
