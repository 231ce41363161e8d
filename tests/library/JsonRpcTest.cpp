#include "LibraryFixture.h"

#include "library/JsonRpc.h"

#include <QJsonDocument>

namespace {

class JsonRpcCase : public testing::Test {
protected:
    [[nodiscard]] JsonRpcReply replyTo(const QByteArray &body)
    {
        m_server.answerRaw("Server.Heartbeat", body);
        return m_rpc.call("Server.Heartbeat", {}, 60);
    }

    ScriptedServer m_server;
    std::unique_ptr<LibraryTransport> m_transport{m_server.transport()};
    JsonRpc m_rpc{*m_transport, 32080};
};

TEST_F(JsonRpcCase, RequestIsAnIndentedEnvelopePostedToTheMethodsAddress)
{
    (void)m_rpc.call("Server.Heartbeat", {}, 60);
    const auto requests = m_server.requests();
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests[0].url, "http://127.0.0.1:32080/jsonrpc?Server.Heartbeat");
    EXPECT_EQ(requests[0].timeoutSeconds, 60);
    EXPECT_EQ(requests[0].body, QByteArray("{\n"
                                           "    \"id\": \"-4107005651705192377\",\n"
                                           "    \"jsonrpc\": \"2.0\",\n"
                                           "    \"method\": \"Server.Heartbeat\",\n"
                                           "    \"params\": {\n"
                                           "    }\n"
                                           "}\n"));
}

TEST_F(JsonRpcCase, OnlyADeliveredObjectWithRetZeroIsGood)
{
    struct Row {
        const char *body;
        bool isGood;
    };
    for (const Row &row : {Row{"{\"ret\":0,\"result\":{}}", true}, Row{"{\"ret\":0}", true},
                           Row{"{\"ret\":1,\"result\":{}}", false}, Row{"{\"result\":{}}", false},
                           Row{"{\"ret\":\"0\",\"result\":{}}", false}, Row{"{\"ret\":0.5}", false},
                           Row{"{\"ret\":null}", false}, Row{"[0]", false}, Row{"", false},
                           Row{"{\"ret\":0,", false}, Row{"no json", false}})
        EXPECT_EQ(replyTo(row.body).isGood, row.isGood) << row.body;
}

TEST_F(JsonRpcCase, AnotherIdAndAnErrorMemberAreNotLookedAt)
{
    const JsonRpcReply reply = replyTo(R"({"id":5,"error":"x","ret":0,"result":{"update":true}})");
    EXPECT_TRUE(reply.isGood);
    EXPECT_TRUE(reply.says("update"));
}

TEST_F(JsonRpcCase, AMissingAnswerIsNoData)
{
    const JsonRpcReply reply = m_rpc.call("Server.Heartbeat", {}, 60);
    EXPECT_FALSE(reply.isGood);
    EXPECT_TRUE(reply.object().isEmpty());
    EXPECT_FALSE(reply.says("update"));
}

TEST_F(JsonRpcCase, AResultOfAnotherKindReadsAsAnEmptyObject)
{
    EXPECT_TRUE(replyTo(R"({"ret":0,"result":[1]})").object().isEmpty());
    EXPECT_EQ(replyTo(R"({"ret":0,"result":"text"})").result.toString(), "text");
}

TEST(JsonRpcPort, EnvironmentGivesThePortWhereItIsOne)
{
    struct Row {
        const char *value;
        int port;
    };
    for (const Row &row : {Row{"32099", 32099}, Row{"0", 32080}, Row{"65536", 32080}, Row{"-1", 32080},
                           Row{"x", 32080}, Row{"", 32080}}) {
        qputenv("QUORIN_LIBRARY_PORT", row.value);
        EXPECT_EQ(JsonRpc::configuredPort(), row.port) << row.value;
    }
    qunsetenv("QUORIN_LIBRARY_PORT");
    EXPECT_EQ(JsonRpc::configuredPort(), 32080);
}

} // namespace
