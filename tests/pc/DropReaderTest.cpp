#include "playcontrol/DropReader.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>

namespace {

constexpr int kWaitMs = 10000;

// Files that exist; the name "/stuck.mkv" is answered only when the gate opens.
class DropReaderTest : public testing::Test {
protected:
    DropRule rule()
    {
        return DropRule({[this](const QString &path) {
                             m_thread = QThread::currentThread();
                             if (path == "/stuck.mkv") {
                                 m_begun.release();
                                 m_gate.acquire();
                             }
                             return DropRule::Found{DropRule::Kind::File, true};
                         },
                         [](const QString &) { return false; },
                         [](const QString &, const std::function<bool()> &) { return DropRule::Listing(); }});
    }
    static QList<QUrl> urls(const char *path) { return {QUrl::fromLocalFile(QString::fromLatin1(path))}; }
    static DropRule::Outcome outcome(const QSignalSpy &spy, int index = 0)
    {
        return spy.at(index).at(0).value<DropRule::Outcome>();
    }

    std::atomic<QThread *> m_thread{nullptr};
    QSemaphore m_begun;
    QSemaphore m_gate;
};

} // namespace

TEST_F(DropReaderTest, AnswersOnceFromAnotherThread)
{
    DropReader reader(rule());
    QSignalSpy spy(&reader, &DropReader::decided);
    reader.read(urls("/a.mkv"), false);
    EXPECT_TRUE(reader.isReading());
    EXPECT_TRUE(spy.isEmpty());
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_EQ(outcome(spy).first, "/a.mkv");
    EXPECT_FALSE(reader.isReading());
    EXPECT_NE(m_thread.load(), QThread::currentThread());
    EXPECT_EQ(spy.size(), 1);
}

TEST_F(DropReaderTest, LaterDropReplacesOneThatHangs)
{
    DropReader reader(rule());
    QSignalSpy spy(&reader, &DropReader::decided);
    reader.read(urls("/stuck.mkv"), false);
    ASSERT_TRUE(m_begun.tryAcquire(1, kWaitMs));
    reader.read(urls("/b.mkv"), false);
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_EQ(outcome(spy).first, "/b.mkv");

    // The answer of the first comes too late to count.
    m_gate.release();
    reader.read(urls("/c.mkv"), false);
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_EQ(spy.size(), 2);
    EXPECT_EQ(outcome(spy, 1).first, "/c.mkv");
}

TEST_F(DropReaderTest, CancelledDropIsNotTold)
{
    DropReader reader(rule());
    QSignalSpy spy(&reader, &DropReader::decided);
    reader.read(urls("/stuck.mkv"), false);
    ASSERT_TRUE(m_begun.tryAcquire(1, kWaitMs));
    reader.cancel();
    EXPECT_FALSE(reader.isReading());
    m_gate.release();
    reader.read(urls("/a.mkv"), false);
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_EQ(spy.size(), 1);
    EXPECT_EQ(outcome(spy).first, "/a.mkv");
}

TEST_F(DropReaderTest, EndsWhileADropIsBeingRead)
{
    {
        DropReader reader(rule());
        reader.read(urls("/stuck.mkv"), false);
        ASSERT_TRUE(m_begun.tryAcquire(1, kWaitMs));
        m_gate.release();
    }
    EXPECT_EQ(m_gate.available(), 0);
}

TEST_F(DropReaderTest, TenThousandLinksAreAnswered)
{
    QList<QUrl> links;
    for (int i = 0; i < 10000; ++i)
        links << QUrl(QStringLiteral("http://example.org/%1.mkv").arg(i));
    DropReader reader(rule());
    QSignalSpy spy(&reader, &DropReader::decided);
    reader.read(links, true);
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_TRUE(outcome(spy).first.isEmpty());
    EXPECT_EQ(outcome(spy).messages.size(), 1);
    EXPECT_EQ(m_thread.load(), nullptr);
}
