#include "online/DownloadProxy.h"

#include "StandInServer.h"

#include "support/TestLog.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace {

using End = DownloadResult::End;

constexpr int kSize = 500000;
constexpr int kCut = kSize * 40 / 100;
constexpr char kPeer[] = "127.0.0.1";

QByteArray content()
{
    QByteArray bytes(kSize, '\0');
    for (int i = 0; i < kSize; ++i)
        bytes[i] = char((i * 7 + i / 251) % 256);
    return bytes;
}

QString sumOf(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

// Sends what is asked for by "Range: bytes=N-".
StandInReply ranged(const StandInRequest &request)
{
    const QByteArray range = request.header("Range");
    if (range.isEmpty())
        return httpReply("200 OK", content());
    const int from = range.mid(range.indexOf('=') + 1).chopped(1).toInt();
    if (from >= kSize)
        return httpReply("416 Range Not Satisfiable", "none",
                         "Content-Range: bytes */" + QByteArray::number(kSize) + "\r\n");
    return httpReply("206 Partial Content", content().mid(from),
                     "Content-Range: bytes " + QByteArray::number(from) + '-' + QByteArray::number(kSize - 1)
                         + '/' + QByteArray::number(kSize) + "\r\n");
}

class DownloadProxyTest : public testing::Test {
protected:
    [[nodiscard]] QString target() const { return m_folder.filePath("file.zip"); }
    [[nodiscard]] QString temp() const { return target() + "_temp"; }

    [[nodiscard]] DownloadRequest request(const QString &url, const QString &sum = {}) const
    {
        DownloadRequest wanted;
        wanted.url = url;
        wanted.targetPath = target();
        wanted.expectedMd5 = sum;
        wanted.connectTimeoutSeconds = 5;
        return wanted;
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_folder;
};

TEST_F(DownloadProxyTest, AFileArrivesWhole)
{
    const StandInServer server(ranged);
    write(target(), "an older one");
    DownloadProxy download(request(server.url("/a"), sumOf(content()).toUpper()));
    EXPECT_TRUE(download.Start());
    EXPECT_EQ(download.Result().end, End::Done);
    EXPECT_EQ(read(target()), content());
    EXPECT_FALSE(QFile::exists(temp()));
    EXPECT_EQ(download.Progress().received, kSize);
    EXPECT_EQ(download.Progress().total, kSize);
    EXPECT_TRUE(TestLog::infoLines().isEmpty());
}

TEST_F(DownloadProxyTest, ADownloadCutAtFortyPercentGoesOnFromThere)
{
    const StandInServer server([](const StandInRequest &asked) {
        StandInReply reply = ranged(asked);
        if (asked.header("Range").isEmpty())
            reply.bytes.chop(kSize - kCut);
        return reply;
    });
    DownloadProxy first(request(server.url("/a"), sumOf(content())));
    EXPECT_FALSE(first.Start());
    EXPECT_EQ(first.Result().end, End::Transfer);
    EXPECT_FALSE(QFile::exists(target()));
    EXPECT_EQ(read(temp()), content().left(kCut));
    EXPECT_EQ(
        TestLog::infoLines(),
        QStringList{QStringLiteral("Downloader_info: Failed download file: %1, error code is: Transferred a "
                                   "partial file")
                        .arg(server.url("/a"))});

    DownloadProxy second(request(server.url("/a"), sumOf(content())));
    EXPECT_TRUE(second.Start());
    EXPECT_EQ(server.requests().at(1).header("Range"), "bytes=" + QByteArray::number(kCut) + '-');
    EXPECT_EQ(read(target()), content());
    EXPECT_EQ(second.Progress().received, kSize);
    EXPECT_EQ(second.Progress().total, kSize);
}

struct ResumeRow {
    const char *name;
    QByteArray lies;
    StandInReply (*answer)(const StandInRequest &);
    int requests;
};

class ResumeTest : public DownloadProxyTest, public testing::WithParamInterface<ResumeRow> {};

TEST_P(ResumeTest, EndsInTheWholeFile)
{
    const ResumeRow &row = GetParam();
    const StandInServer server(row.answer);
    write(temp(), row.lies);
    DownloadProxy download(request(server.url("/a")));
    EXPECT_TRUE(download.Start()) << qPrintable(download.Result().text);
    EXPECT_EQ(read(target()), content());
    EXPECT_EQ(server.requests().size(), row.requests);
}

StandInReply knowsNoRange(const StandInRequest &)
{
    return httpReply("200 OK", content());
}

StandInReply answersRangesWithNothing(const StandInRequest &asked)
{
    return asked.header("Range").isEmpty() ? httpReply("200 OK", content()) : httpReply("200 OK", {});
}

StandInReply sendsAnotherRange(const StandInRequest &asked)
{
    if (asked.header("Range").isEmpty())
        return httpReply("200 OK", content());
    return httpReply("206 Partial Content", content(),
                     "Content-Range: bytes 0-" + QByteArray::number(kSize - 1) + '/'
                         + QByteArray::number(kSize) + "\r\n");
}

StandInReply leadsElsewhere(const StandInRequest &asked)
{
    if (asked.line().contains("/moved"))
        return ranged(asked);
    return httpReply("302 Found", "moved", "Location: /moved\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Servers, ResumeTest,
    testing::Values(ResumeRow{"KnowsNoRange", content().left(kCut), knowsNoRange, 2},
                    ResumeRow{"WholeAndKnowsNoRange", content(), knowsNoRange, 1},
                    ResumeRow{"WholeAlready", content(), ranged, 1},
                    ResumeRow{"LongerThanTheFile", content() + "more", ranged, 2},
                    ResumeRow{"AnswersRangesWithNothing", content().left(kCut), answersRangesWithNothing, 2},
                    ResumeRow{"SendsAnotherRange", content().left(kCut), sendsAnotherRange, 2},
                    ResumeRow{"LeadsElsewhere", content().left(kCut), leadsElsewhere, 2}),
    [](const auto &row) { return row.param.name; });

TEST_F(DownloadProxyTest, APartThatEndsEarlyIsNoWholeFile)
{
    const StandInServer server([](const StandInRequest &) {
        return httpReply("206 Partial Content", content().mid(kCut, 1000),
                         "Content-Range: bytes " + QByteArray::number(kCut) + '-'
                             + QByteArray::number(kCut + 999) + '/' + QByteArray::number(kSize) + "\r\n");
    });
    write(temp(), content().left(kCut));
    DownloadProxy download(request(server.url("/a")));
    EXPECT_FALSE(download.Start());
    EXPECT_FALSE(QFile::exists(target()));
    EXPECT_EQ(read(temp()), content().left(kCut + 1000));
}

TEST_F(DownloadProxyTest, AStalledTransferFails)
{
    const StandInServer server([](const StandInRequest &asked) {
        StandInReply reply = ranged(asked);
        reply.bytes.chop(kSize - kCut);
        reply.then = StandInReply::Then::KeepStill;
        return reply;
    });
    DownloadProxy download(request(server.url("/a")), 1);
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::Transfer);
    EXPECT_EQ(download.Result().text, "Timeout was reached");
    EXPECT_EQ(read(temp()), content().left(kCut));
}

TEST_F(DownloadProxyTest, StopFromAnotherThreadEndsTheTransferAndStays)
{
    DownloadProxy *running = nullptr;
    const StandInServer server([&](const StandInRequest &asked) {
        StandInReply reply = ranged(asked);
        reply.bytes.chop(kSize - kCut);
        reply.then = StandInReply::Then::KeepStill;
        running->Stop();
        return reply;
    });
    DownloadProxy download(request(server.url("/a")));
    running = &download;
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::Stopped);
    EXPECT_FALSE(QFile::exists(target()));
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::Stopped);
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(DownloadProxyTest, AMissingFileIsRefusedAndItsPageNotKept)
{
    const StandInServer server([](const StandInRequest &) { return httpReply("404 Not Found", "a page"); });
    DownloadProxy download(request(server.url("/a")));
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::Transfer);
    EXPECT_EQ(download.Result().httpStatus, 404);
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(DownloadProxyTest, AnAnswerCutWithinItsHeadIsNoEmptyFile)
{
    const StandInServer server([](const StandInRequest &) {
        return StandInReply{"HTTP/1.1 200 OK\r\nContent-Le", {}};
    });
    DownloadProxy download(request(server.url("/a")));
    EXPECT_FALSE(download.Start());
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(DownloadProxyTest, ARefusalKeepsWhatLiesThere)
{
    const StandInServer server([](const StandInRequest &) { return httpReply("503 Busy", "a page"); });
    write(temp(), content().left(kCut));
    DownloadProxy download(request(server.url("/a")));
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(read(temp()), content().left(kCut));
}

TEST_F(DownloadProxyTest, AnotherSumIsRefusedAndTheNextTryBeginsAnew)
{
    const StandInServer server(ranged);
    write(temp(), QByteArray(kCut, 'x'));
    DownloadProxy download(request(server.url("/a"), sumOf(content())));
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::Md5);
    EXPECT_EQ(TestLog::infoLines(), QStringList{"Download error: Md5 inconsistent."});
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
    EXPECT_TRUE(download.Start());
    EXPECT_EQ(server.requests().at(1).header("Range"), "");
    EXPECT_EQ(read(target()), content());
}

TEST_F(DownloadProxyTest, AFullDiscIsAFailureOfTheFile)
{
    const StandInServer server(ranged);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = kCut;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    DownloadProxy download(request(server.url("/a")));
    const bool isDone = download.Start();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    EXPECT_FALSE(isDone);
    EXPECT_EQ(download.Result().end, End::File);
    EXPECT_FALSE(QFile::exists(target()));
    EXPECT_EQ(read(temp()), content().left(kCut));
    // With room again it goes on from there.
    EXPECT_TRUE(download.Start());
    EXPECT_EQ(read(target()), content());
}

TEST_F(DownloadProxyTest, AFileThatCannotBeMadeAsksNobody)
{
    const StandInServer server(ranged);
    ASSERT_TRUE(QDir().mkpath(temp()));
    DownloadProxy download(request(server.url("/a")));
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::File);
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(DownloadProxyTest, ATargetThatCannotBeReplacedKeepsTheBytes)
{
    const StandInServer server(ranged);
    ASSERT_TRUE(QDir().mkpath(target()));
    DownloadProxy download(request(server.url("/a")));
    EXPECT_FALSE(download.Start());
    EXPECT_EQ(download.Result().end, End::File);
    EXPECT_EQ(read(temp()), content());
}

struct ProxyRow {
    const char *name;
    ProxyKind kind;
    const char *user;
    const char *password;
    const char *log; // behind "Downloader_info: use proxy "; %1 is the port
};

class ProxyTest : public DownloadProxyTest, public testing::WithParamInterface<ProxyRow> {};

TEST_P(ProxyTest, GetsALoginOnlyWithUserAndPassword)
{
    const ProxyRow &row = GetParam();
    const bool isSocks = row.kind == ProxyKind::Socks5;
    const StandInServer proxy(ranged, isSocks ? StandInServer::Speaks::Socks5 : StandInServer::Speaks::Http);
    // The system's address book is not asked: a SOCKS5 proxy gets the address of this machine.
    DownloadRequest wanted = request(isSocks ? "http://127.0.0.1:9/a" : "http://files.invalid/a");
    wanted.proxyKind = row.kind;
    wanted.proxy = {kPeer, proxy.port(), row.user, row.password};
    DownloadProxy download(wanted);
    EXPECT_TRUE(download.Start()) << qPrintable(download.Result().text);
    EXPECT_EQ(read(target()), content());
    EXPECT_EQ(TestLog::infoLines(),
              QStringList{"Downloader_info: use proxy " + QString(row.log).arg(proxy.port())});

    const bool hasLogin = *row.user != '\0' && *row.password != '\0';
    if (isSocks) {
        ASSERT_EQ(proxy.greetings().size(), hasLogin ? 3 : 1);
        EXPECT_EQ(proxy.greetings().at(0).contains('\2'), hasLogin);
        if (hasLogin) {
            EXPECT_EQ(proxy.greetings().at(1), row.user);
            EXPECT_EQ(proxy.greetings().at(2), row.password);
        }
    } else {
        EXPECT_EQ(proxy.requests().constFirst().line(), "GET http://files.invalid/a HTTP/1.1");
        const QByteArray login = QByteArray(row.user) + ':' + row.password;
        EXPECT_EQ(proxy.requests().constFirst().header("Proxy-Authorization"),
                  hasLogin ? "Basic " + login.toBase64() : QByteArray());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ProxyTest,
    testing::Values(ProxyRow{"HttpBare", ProxyKind::Http, "", "", "http: 127.0.0.1:%1"},
                    ProxyRow{"HttpUserAlone", ProxyKind::Http, "jo", "", "http: 127.0.0.1:%1"},
                    ProxyRow{"HttpLogin", ProxyKind::Http, "jo", "p:@%41/ x", "http: jo@127.0.0.1:%1"},
                    ProxyRow{"SocksBare", ProxyKind::Socks5, "", "", "socket: 127.0.0.1:%1"},
                    ProxyRow{"SocksUserAlone", ProxyKind::Socks5, "jo", "", "socket: 127.0.0.1:%1"},
                    ProxyRow{"SocksLogin", ProxyKind::Socks5, "jo", "p:@%41/ x", "socket: jo@127.0.0.1:%1"}),
    [](const auto &row) { return row.param.name; });

} // namespace
