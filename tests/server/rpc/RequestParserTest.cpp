#include "rpc/RequestParser.h"

#include "rpc/IdListDocument.h"

#include <gtest/gtest.h>

namespace {

QByteArray nested(int depth)
{
    return QByteArray(R"({"method":"a","params":{"x":)") + QByteArray(depth, '[') + QByteArray(depth, ']')
           + "}}";
}

} // namespace

TEST(RequestParserTest, RefusesWhatIsNoRequestAndTellsWhy)
{
    struct Row {
        QByteArray body;
        const char *error;
    };
    const Row rows[] = {
        {"", "empty"},
        {" \r\n\t", "empty"},
        {"{", "no JSON"},
        {"nonsense", "no JSON"},
        {"{\"method\":\"a\"} trailing", "no JSON"},
        {QByteArray("{\"method\":\"\xff\xfe\"}"), "no JSON"},
        {"[]", "no JSON object"},
        {"[{\"method\":\"a\"}]", "no JSON object"},
        {"{}", "\"method\" is missing"},
        {R"({"Method":"a"})", "\"method\" is missing"},
        {R"({"method":7})", "\"method\" must be a text"},
        {R"({"method":null})", "\"method\" must be a text"},
        {R"({"method":""})", "names no method"},
        {R"({"method":")" + QByteArray(129, 'm') + R"("})", "names no method"},
        {R"({"method":"a","params":[]})", "\"params\" must be an object"},
        {R"({"method":"a","params":null})", "\"params\" must be an object"},
        {R"({"method":"a","params":"{}"})", "\"params\" must be an object"},
        {nested(RequestParser::DeepestBody), "nested deeper"},
        {QByteArray(1000000, '['), "nested deeper"},
        {"[" + QByteArray("1,").repeated(RequestParser::MostValues) + "1]", "more than"},
        {QByteArray(RequestParser::LargestBody + 1, 'x'), "larger than"},
    };
    for (const Row &row : rows) {
        const ParsedRequest parsed = RequestParser::parse(row.body);
        EXPECT_NE(parsed.error.toStdString().find(row.error), std::string::npos)
            << row.body.left(60).constData() << " gives " << qPrintable(parsed.error);
    }
}

TEST(RequestParserTest, TakesAnyValidForm)
{
    struct Row {
        QByteArray body;
        bool hasParams;
    };
    const Row rows[] = {
        {R"({"method":"a"})", false},
        {"  {\n \"method\" : \"\\u0061\" }\r\n", false},
        {"\xef\xbb\xbf{\"method\":\"a\"}", false},
        {R"({"method":"a","params":{}})", true},
        {R"({"params":{"x":[[[]]]},"method":"a","more":{"y":1}})", true},
        {R"({"method":"a","params":{"x":"[[[[{{{{,,,,\\\"[["}})", true},
        {nested(RequestParser::DeepestBody - 2), true},
    };
    for (const Row &row : rows) {
        const ParsedRequest parsed = RequestParser::parse(row.body);
        EXPECT_TRUE(parsed.isGood()) << row.body.constData() << ' ' << qPrintable(parsed.error);
        EXPECT_EQ(parsed.request.method, QStringLiteral("a")) << row.body.constData();
        EXPECT_EQ(parsed.request.hasParams, row.hasParams) << row.body.constData();
    }
}

TEST(RequestParserTest, RefusesAnObjectThatNamesAKeyTwice)
{
    const auto wrong = [](const char *params) {
        return RequestParser::parse(QByteArray(R"({"jsonrpc":"2.0","method":"M","id":1,"params":)") + params
                                    + "}")
            .error.contains(QLatin1String("twice"));
    };
    EXPECT_TRUE(wrong(R"({"a":[1],"a":[2]})"));
    EXPECT_TRUE(wrong(R"({"a":1, "b":{"c":{}, "d":1, "c":{}}})"));
    EXPECT_TRUE(wrong(R"({"a":1,"\u0061":2})"));
    EXPECT_TRUE(wrong(R"({"\"":1,"\u0022":2})"));
    EXPECT_FALSE(wrong(R"({"a":{"a":["a","a",{"a":"a"}]},"b":"a,a"})"));
    EXPECT_FALSE(wrong(R"({"a":"{\"a\":1,\"a\":2}","A":[{"b":1},{"b":1}]})"));
}

TEST(RequestParserTest, KeepsTheIdBesideAnError)
{
    const ParsedRequest parsed = RequestParser::parse(R"({"id":"7","method":1})");
    EXPECT_FALSE(parsed.isGood());
    EXPECT_EQ(parsed.request.id, QJsonValue("7"));
}

TEST(IdListDocumentTest, ReadsTheIdsOfTheTextWithinTheText)
{
    struct Row {
        const char *text;
        QVector<int> ids;
        bool good;
    };
    const Row rows[] = {
        {"{\n    \"idFile\": [\n        \"12\",\n        \"13\"\n    ]\n}\n", {12, 13}, true},
        {R"({"idFile":[12,"13"]})", {12, 13}, true},
        {R"({"idFile":["5","5",5]})", {5}, true},
        {R"({"idFile":[]})", {}, true},
        {R"({"idFile":["a"]})", {}, false},
        {R"({"idFile":[1.5]})", {}, false},
        {R"({"idFile":[true]})", {}, false},
        {R"({"idFile":["-1"]})", {}, false},
        {R"({"idFile":["99999999999"]})", {}, false},
        {R"({"idFile":"12"})", {}, false},
        {R"({"other":[]})", {}, false},
        {"[12]", {}, false},
        {"12", {}, false},
        {"", {}, false},
        {"[[[[[[[[", {}, false},
    };
    for (const Row &row : rows) {
        const IdList list = IdListDocument::parse(QString::fromUtf8(row.text));
        EXPECT_EQ(list.error.isEmpty(), row.good) << row.text;
        EXPECT_EQ(list.ids, row.ids) << row.text;
        EXPECT_EQ(list.error.contains(QStringLiteral("\"idFile\"")), !row.good) << row.text;
    }
}
