#include "online/HttpPostClient.h"

#include "StandInServer.h"

#include "support/TestLog.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr char kMissing[] = "crt file missing!";

StandInReply ok(const StandInRequest &)
{
    return httpReply("200 OK", "OK");
}

TEST(HttpPostClientTest, AFormArrivesWithItsFields)
{
    const StandInServer server(ok);
    HttpPostClient client;
    client.SetUrl(server.url("/record"));
    client.AddField("content", "<a b=\"1\"/>\n");
    client.AddField(QString::fromUtf8("größe"), "2&3=4");
    EXPECT_TRUE(client.Perform());
    EXPECT_EQ(client.Response(), "OK");
    EXPECT_EQ(client.HttpStatus(), 200);
    const StandInRequest request = server.requests().constFirst();
    EXPECT_TRUE(request.header("Content-Type").startsWith("multipart/form-data"));
    EXPECT_TRUE(request.body.contains("name=\"content\"\r\n\r\n<a b=\"1\"/>\n\r\n"))
        << request.body.constData();
    EXPECT_TRUE(request.body.contains("name=\"größe\"\r\n\r\n2&3=4\r\n")) << request.body.constData();
}

TEST(HttpPostClientTest, ANextCallForgetsTheAnswerBefore)
{
    int calls = 0;
    const StandInServer server([&](const StandInRequest &) {
        return ++calls == 1 ? httpReply("200 OK", "first") : httpReply("200 OK", "");
    });
    HttpPostClient client;
    client.SetUrl(server.url("/"));
    client.AddField("content", "one");
    EXPECT_TRUE(client.Perform());
    EXPECT_EQ(client.Response(), "first");
    client.ClearFields();
    EXPECT_TRUE(client.Perform());
    EXPECT_EQ(client.Response(), "");
    EXPECT_EQ(server.requests().at(1).body, "");
    EXPECT_EQ(server.requests().at(1).header("Content-Length"), "0");
}

TEST(HttpPostClientTest, AnErrorStatusFailsAndIsLogged)
{
    const StandInServer server([](const StandInRequest &) { return httpReply("503 Busy", "later"); });
    HttpPostClient client;
    client.SetUrl(server.url("/"));
    EXPECT_FALSE(client.Perform());
    EXPECT_EQ(client.HttpStatus(), 503);
    EXPECT_EQ(client.Response(), "later");
    EXPECT_EQ(TestLog::infoLines(),
              QStringList{"error curl post: HTTP response code said error, http status code: 503"});
}

TEST(HttpPostClientTest, AnAnswerThatTakesTooLongFails)
{
    const StandInServer server([](const StandInRequest &) {
        return StandInReply{{}, StandInReply::Then::KeepStill};
    });
    HttpPostClient client;
    client.SetUrl(server.url("/"));
    client.SetTimeout(1);
    EXPECT_FALSE(client.Perform());
    EXPECT_EQ(TestLog::infoLines(), QStringList{"error curl post: Timeout was reached, http status code: 0"});
}

TEST(HttpPostClientTest, AStoppedClientEndsItsCall)
{
    HttpPostClient client;
    const StandInServer server([&](const StandInRequest &) {
        client.Stop();
        return StandInReply{{}, StandInReply::Then::KeepStill};
    });
    client.SetUrl(server.url("/"));
    EXPECT_FALSE(client.Perform());
    EXPECT_EQ(server.requests().size(), 1);
}

TEST(HttpPostClientTest, APlainPostAsksForNoCertificateFile)
{
    const StandInServer server(ok);
    QTemporaryDir empty;
    HttpPostClient client(empty.path());
    client.SetUrl(server.url("/"));
    EXPECT_TRUE(client.Perform());
    EXPECT_FALSE(TestLog::infoLines().contains(kMissing));
}

// The peer is reached and can't show a certificate: it is not one that speaks TLS.
TEST(HttpPostClientTest, ASecuredPostRunsWithoutTheCertificateFileAfterALogLine)
{
    const StandInServer server(ok);
    QTemporaryDir empty;
    HttpPostClient client(empty.path());
    client.SetUrl(server.url("/").replace("http:", "https:"));
    client.SetTimeout(2);
    EXPECT_FALSE(client.Perform());
    ASSERT_EQ(TestLog::infoLines().size(), 2);
    EXPECT_EQ(TestLog::infoLines().at(0), kMissing);
    EXPECT_TRUE(TestLog::infoLines().at(1).startsWith("error curl post: "));
}

TEST(HttpPostClientTest, TheCertificateFileBesideTheProgramIsTaken)
{
    const StandInServer server(ok);
    QTemporaryDir folder;
    QFile file(folder.filePath("kelcom.crt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no certificate\n");
    file.close();
    HttpPostClient client(folder.path());
    client.SetUrl(server.url("/").replace("http:", "https:"));
    client.SetTimeout(2);
    EXPECT_FALSE(client.Perform());
    // A file that holds none is told before a word goes out: it was read.
    EXPECT_EQ(
        TestLog::infoLines(),
        QStringList{
            "error curl post: Problem with the SSL CA cert (path? access rights?), http status code: 0"});
}

TEST(HttpPostClientTest, AProxyCarriesThePost)
{
    const StandInServer proxy(ok);
    HttpPostClient client;
    client.SetUrl("http://records.invalid/send");
    client.SetProxy({ProxyKind::Http, {"127.0.0.1", proxy.port(), {}, {}}});
    EXPECT_TRUE(client.Perform());
    EXPECT_EQ(proxy.requests().constFirst().line(), "POST http://records.invalid/send HTTP/1.1");
}

} // namespace
