#include "core/SingleApplication.h"

#include "ChildProcess.h"
#include "core/ApplicationInfoManager.h"
#include "core/InstanceMessage.h"
#include "core/SingleInstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <list>
#include <sys/stat.h>

namespace {

// Socket and segment follow the folder for temporary files, so each test has its own world of copies.
class SingleApplicationTest : public testing::Test {
protected:
    SingleApplicationTest() { qputenv("TMPDIR", m_folder.path().toLocal8Bit()); }

    ~SingleApplicationTest() override
    {
        m_copies.clear();
        ChildProcess cleaner({"segment"});
        EXPECT_EQ(cleaner.end(), 0);
        qputenv("TMPDIR", m_before);
    }

    ChildProcess &copy(const QStringList &arguments = {})
    {
        m_copies.emplace_back(QStringList{"start"} + arguments);
        return m_copies.back();
    }

    ChildProcess &firstCopy()
    {
        ChildProcess &first = copy();
        EXPECT_EQ(first.line(), "first");
        return first;
    }

    // Connects as a foreign program would, says something and gives the answer.
    QByteArray ask(const QByteArray &text)
    {
        QLocalSocket socket;
        socket.connectToServer(InstanceMessage::ServerName);
        EXPECT_TRUE(socket.waitForConnected(5000));
        socket.write(text);
        socket.flush();
        QByteArray answer;
        while (socket.state() == QLocalSocket::ConnectedState && socket.waitForReadyRead(10000))
            answer += socket.readAll();
        return answer + socket.readAll();
    }

    // What a copy that hands over takes while nothing is in its way, and what it may take when something is.
    qint64 boundMs()
    {
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(copy().end(), 0);
        return 2 * clock.elapsed() + SingleApplication::StartWaitMs;
    }

    // Fills the queue of the copy's server, which is stopped.
    static void fillQueue(std::list<QLocalSocket> &waiting)
    {
        for (int i = 0; i < 200; ++i) {
            waiting.emplace_back();
            waiting.back().connectToServer(InstanceMessage::ServerName);
            if (waiting.back().state() != QLocalSocket::ConnectedState)
                break;
        }
        ASSERT_NE(waiting.back().state(), QLocalSocket::ConnectedState) << "the queue took everything";
        waiting.back().abort();
    }

    QString file(const QString &name)
    {
        QFile made(m_folder.filePath(name));
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        return made.fileName();
    }

    QString socketPath() const { return m_folder.filePath(InstanceMessage::ServerName); }

    ino_t socketInode() const
    {
        struct stat entry {};
        return ::stat(socketPath().toLocal8Bit().constData(), &entry) == 0 ? entry.st_ino : 0;
    }

    QTemporaryDir m_folder;
    QByteArray m_before{qgetenv("TMPDIR")};
    std::list<ChildProcess> m_copies;
};

TEST_F(SingleApplicationTest, ASecondStartWithoutArgumentsRaisesTheFirstCopysWindow)
{
    ChildProcess &first = firstCopy();
    ChildProcess &second = copy();
    EXPECT_EQ(second.line(), "handed over");
    EXPECT_EQ(second.end(), 0);
    EXPECT_EQ(first.line(), "activate");
}

TEST_F(SingleApplicationTest, ASecondStartWithOneFileHandsItOver)
{
    ChildProcess &first = firstCopy();
    const QString path = file(QString::fromUtf8("Über \"den\" Fluß %1.mkv"));
    EXPECT_EQ(copy({path}).end(), 0);
    EXPECT_EQ(first.line(), "outside");
    EXPECT_EQ(first.line(), "play " + path);
    EXPECT_EQ(first.line(), "activate");
}

TEST_F(SingleApplicationTest, ASecondStartWithTwoFilesOnlyRaisesTheWindow)
{
    ChildProcess &first = firstCopy();
    EXPECT_EQ(copy({file("a.mkv"), file("b.mkv")}).end(), 0);
    EXPECT_EQ(first.line(), "activate");
}

TEST_F(SingleApplicationTest, APathToNothingAndAFolderAreIgnoredButAnswered)
{
    ChildProcess &first = firstCopy();
    EXPECT_EQ(ask("/no/such/film.mkv"), "Hello Client");
    EXPECT_EQ(ask(m_folder.path().toLocal8Bit()), "Hello Client");
    const QString path = file("real.mkv");
    EXPECT_EQ(ask(path.toLocal8Bit()), "Hello Client");
    // Paths are looked at in the order of arrival: a word about the earlier ones would come first.
    EXPECT_EQ(first.line(), "outside");
    EXPECT_EQ(first.line(), "play " + path);
}

TEST_F(SingleApplicationTest, TheStartWordIsReadInAnyCase)
{
    ChildProcess &first = firstCopy();
    EXPECT_EQ(ask("sTARTpLAYER"), "Hello Client");
    EXPECT_EQ(first.line(), "activate");
}

TEST_F(SingleApplicationTest, APathSplitOverTwoWritesIsJoined)
{
    ChildProcess &first = firstCopy();
    const QString path = file("long name of a film.mkv");
    const QByteArray text = path.toLocal8Bit();
    QLocalSocket socket;
    socket.connectToServer(InstanceMessage::ServerName);
    ASSERT_TRUE(socket.waitForConnected(5000));
    socket.write(text.left(text.size() / 2));
    ASSERT_TRUE(socket.waitForBytesWritten(5000) || socket.bytesToWrite() == 0);
    // Something else reaches the copy in between, so that the halves are read apart.
    EXPECT_EQ(ask("/no/such/film.mkv"), "Hello Client");
    QLocalSocket late;
    late.connectToServer(InstanceMessage::ServerName);
    ASSERT_TRUE(late.waitForConnected(5000));
    late.write(text.left(text.size() / 2));
    late.flush();
    late.write(text.mid(text.size() / 2));
    late.flush();
    late.disconnectFromServer();
    EXPECT_EQ(first.line(), "outside");
    EXPECT_EQ(first.line(), "play " + path);
}

TEST_F(SingleApplicationTest, APeerThatSendsTenMegabytesIsDroppedAndTheNextIsServed)
{
    ChildProcess &first = firstCopy();
    QLocalSocket socket;
    socket.connectToServer(InstanceMessage::ServerName);
    ASSERT_TRUE(socket.waitForConnected(5000));
    const qint64 much = 10 * 1024 * 1024;
    qint64 taken = 0;
    QObject::connect(&socket, &QLocalSocket::bytesWritten, [&](qint64 bytes) { taken += bytes; });
    socket.write(QByteArray(int(much), 'x'));
    while (socket.state() == QLocalSocket::ConnectedState && socket.bytesToWrite() > 0)
        socket.waitForBytesWritten(1000);
    EXPECT_NE(socket.state(), QLocalSocket::ConnectedState);
    EXPECT_LT(taken, much / 2);
    EXPECT_EQ(ask("StartPlayer"), "Hello Client");
    EXPECT_EQ(first.line(), "activate");
}

TEST_F(SingleApplicationTest, PeersThatSayNothingDoNotKeepOthersWaiting)
{
    ChildProcess &first = firstCopy();
    std::list<QLocalSocket> silent(20);
    for (QLocalSocket &socket : silent) {
        socket.connectToServer(InstanceMessage::ServerName);
        ASSERT_TRUE(socket.waitForConnected(5000));
    }
    EXPECT_EQ(ask("StartPlayer"), "Hello Client");
    EXPECT_EQ(first.line(), "activate");
    EXPECT_TRUE(silent.front().state() != QLocalSocket::ConnectedState
                || silent.front().waitForDisconnected(10000));
}

TEST_F(SingleApplicationTest, ACopyThatHangsIsHandedOverToWithinTheTime)
{
    ChildProcess &first = firstCopy();
    const qint64 bound = boundMs();
    EXPECT_EQ(first.line(), "activate");
    first.tell("hang");
    QElapsedTimer clock;
    clock.start();
    ChildProcess &second = copy({file("a.mkv")});
    EXPECT_EQ(second.line(), "handed over");
    EXPECT_EQ(second.end(), 0);
    EXPECT_LT(clock.elapsed(), bound);
}

TEST_F(SingleApplicationTest, ACopyThatHangsWithItsQueueFullDoesNotHoldUpTheNext)
{
    ChildProcess &first = firstCopy();
    const qint64 bound = boundMs();
    first.signal(SIGSTOP);
    std::list<QLocalSocket> waiting;
    fillQueue(waiting);
    QElapsedTimer clock;
    clock.start();
    ChildProcess &second = copy();
    EXPECT_EQ(second.line(), "other copy silent");
    EXPECT_EQ(second.end(), 0);
    EXPECT_LT(clock.elapsed(), bound);
    first.signal(SIGCONT);
}

TEST_F(SingleApplicationTest, AllWaitsForACopyThatHangsKeepToOneLimit)
{
    ChildProcess &first = firstCopy();
    const qint64 bound = boundMs();
    first.signal(SIGSTOP);
    std::list<QLocalSocket> waiting;
    fillQueue(waiting);
    // As if the copy had been stopped while it held the lock.
    QLockFile lock(ApplicationInfoManager::instance()->dataFolder() + "/instance.lock");
    ASSERT_TRUE(lock.tryLock());
    QElapsedTimer clock;
    clock.start();
    ChildProcess &second = copy({file("a.mkv")});
    EXPECT_EQ(second.line(), "other copy silent");
    EXPECT_EQ(second.end(), 0);
    EXPECT_LT(clock.elapsed(), bound);
    first.signal(SIGCONT);
}

TEST_F(SingleApplicationTest, AFileIsHandedOverAlthoughTheLockIsHeld)
{
    ChildProcess &first = firstCopy();
    const qint64 bound = boundMs();
    EXPECT_EQ(first.line(), "activate");
    QLockFile lock(ApplicationInfoManager::instance()->dataFolder() + "/instance.lock");
    ASSERT_TRUE(lock.tryLock());
    const QString path = file("a.mkv");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(copy({path}).end(), 0);
    EXPECT_LT(clock.elapsed(), bound);
    EXPECT_EQ(first.line(), "outside");
    EXPECT_EQ(first.line(), "play " + path);
}

TEST_F(SingleApplicationTest, TheLastFileThatComesWhileNobodyListensIsGivenOnLater)
{
    ChildProcess &first = m_copies.emplace_back(QStringList{"busy"});
    ASSERT_EQ(first.line(), "first");
    EXPECT_EQ(ask(file("a.mkv").toLocal8Bit()), "Hello Client");
    const QString last = file("b.mkv");
    EXPECT_EQ(ask(last.toLocal8Bit()), "Hello Client");
    EXPECT_EQ(ask("/no/such/film.mkv"), "Hello Client");
    first.tell("connect");
    EXPECT_EQ(first.line(), "outside");
    EXPECT_EQ(first.line(), "play " + last);
    EXPECT_EQ(first.line(), "activate");
    // Given on once, and later ones come as ever.
    const QString next = file("c.mkv");
    EXPECT_EQ(ask(next.toLocal8Bit()), "Hello Client");
    EXPECT_EQ(first.line(), "outside");
    EXPECT_EQ(first.line(), "play " + next);
}

TEST_F(SingleApplicationTest, TheSocketOfALiveCopyIsNeverTakenAway)
{
    ChildProcess &first = firstCopy();
    const ino_t before = socketInode();
    ASSERT_NE(before, 0u);
    first.signal(SIGSTOP);
    EXPECT_EQ(copy().end(), 0);
    EXPECT_EQ(socketInode(), before);
    first.signal(SIGCONT);
    EXPECT_EQ(first.line(), "activate");
    EXPECT_EQ(ask("StartPlayer"), "Hello Client");
    EXPECT_EQ(first.line(), "activate");
}

TEST_F(SingleApplicationTest, ADeadSocketLeftBehindIsReplaced)
{
    firstCopy().kill();
    ASSERT_TRUE(QFile::exists(socketPath()));
    ChildProcess &next = firstCopy();
    EXPECT_EQ(ask("StartPlayer"), "Hello Client");
    EXPECT_EQ(next.line(), "activate");
}

TEST_F(SingleApplicationTest, ACrashedCopyDoesNotLockOutTheNextStart)
{
    for (int i = 0; i < 3; ++i)
        firstCopy().kill();
    ChildProcess &next = firstCopy();
    EXPECT_EQ(copy().end(), 0);
    EXPECT_EQ(next.line(), "activate");
}

TEST_F(SingleApplicationTest, OfManyCopiesStartedAtOnceExactlyOneStays)
{
    // Once over what a crashed copy has left, once over nothing.
    firstCopy().kill();
    for (int round = 0; round < 2; ++round) {
        std::vector<ChildProcess *> copies;
        for (int i = 0; i < 6; ++i)
            copies.push_back(&copy());
        ChildProcess *first = nullptr;
        for (ChildProcess *one : copies) {
            const QString line = one->line();
            if (line.startsWith("first")) {
                EXPECT_EQ(first, nullptr);
                first = one;
            } else {
                EXPECT_EQ(one->end(), 0);
            }
        }
        ASSERT_NE(first, nullptr);
        // Whoever held the name for a moment, the copy that stayed serves it in the end.
        QElapsedTimer clock;
        clock.start();
        QByteArray answer;
        while (answer.isEmpty() && clock.elapsed() < 5000) {
            QLocalSocket socket;
            socket.connectToServer(InstanceMessage::ServerName);
            if (!socket.waitForConnected(1000))
                continue;
            socket.write("StartPlayer");
            socket.waitForReadyRead(5000);
            answer = socket.readAll();
        }
        EXPECT_EQ(answer, "Hello Client");
        first->tell("quit");
        EXPECT_EQ(first->end(), 0);
    }
}

TEST_F(SingleApplicationTest, ACopyThatEndsLeavesNothingBehind)
{
    ChildProcess &first = firstCopy();
    first.tell("quit");
    EXPECT_EQ(first.end(), 0);
    EXPECT_FALSE(QFile::exists(socketPath()));
    firstCopy();
}

TEST_F(SingleApplicationTest, MessagesOfTheUpdaterBecomeItsStatus)
{
    ChildProcess &first = firstCopy();
    const char *const texts[] = {"[#PAndU#]1:", "[#PAndU#]2:C:/a:b", "[#PAndU#]4:"};
    const char *const lines[] = {"status 1", "status 2", "status 4"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ask(texts[i]), "");
        EXPECT_EQ(first.line(), lines[i]);
    }
}

TEST_F(SingleApplicationTest, TypesThatDoNotExistAndBrokenTagsAreIgnored)
{
    ChildProcess &first = firstCopy();
    for (const char *text : {"[#PAndU#]0:", "[#PAndU#]5:", "[#PAndU#]x:y", "[#PAndU#]", "C:[#PAndU#]1:"})
        EXPECT_EQ(ask(text), "");
    EXPECT_EQ(ask("StartPlayer"), "Hello Client");
    EXPECT_EQ(first.line(), "activate");
}

// Stands in for the updater.
class UpdaterTest : public SingleApplicationTest {
protected:
    UpdaterTest() { EXPECT_TRUE(m_updater.listen(InstanceMessage::UpdaterServerName)); }

    QByteArray heard()
    {
        if (!m_updater.waitForNewConnection(10000))
            return "nothing";
        std::unique_ptr<QLocalSocket> socket(m_updater.nextPendingConnection());
        while (socket->state() == QLocalSocket::ConnectedState && socket->waitForReadyRead(5000)) {
        }
        return socket->readAll();
    }

    QLocalServer m_updater;
};

TEST_F(UpdaterTest, NewsOfANewVersionIsAnswered)
{
    ChildProcess &first = firstCopy();
    EXPECT_EQ(ask("[#PAndU#]3:6.2"), "");
    EXPECT_EQ(first.line(), "status 3");
    EXPECT_EQ(heard(), "[#PAndU#]3:");
}

TEST_F(UpdaterTest, IsToldWhatThePlayerHasToSay)
{
    ChildProcess &first = firstCopy();
    first.tell("message 2");
    EXPECT_EQ(heard(), "[#PAndU#]2:");
    first.tell("picture /pictures/a:b.png");
    EXPECT_EQ(heard(), "[#PAndU#]4:/pictures/a:b.png");
}

TEST_F(SingleApplicationTest, AMessageToAnUpdaterThatDoesNotRunIsSilent)
{
    ChildProcess &first = firstCopy();
    first.tell("message 2");
    EXPECT_EQ(ask("StartPlayer"), "Hello Client");
    EXPECT_EQ(first.line(), "activate");
}

} // namespace
