#include "rpc/ParameterChecker.h"

#include "rpc/Keys.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr int highest = std::numeric_limits<int>::max();

CheckedParams check(const QVector<ParamRow> &rows, const QByteArray &params)
{
    return ParameterChecker::check(rows, QJsonDocument::fromJson(params).object());
}

} // namespace

TEST(ParameterCheckerTest, NamesTheKeyThatIsMissingOrOfAWrongType)
{
    const QVector<ParamRow> integer{{Keys::idFile, ParamType::Integer}};
    const QVector<ParamRow> text{{Keys::title, ParamType::Text}};
    const QVector<ParamRow> loose{{Keys::port, ParamType::LooseText}};
    const QVector<ParamRow> flag{{Keys::deleteFile, ParamType::Flag}};
    const QVector<ParamRow> limits{{Keys::limits, ParamType::Limits}};
    const QVector<ParamRow> sort{{Keys::sort, ParamType::Sort}};
    const QVector<ParamRow> filter{{Keys::filter, ParamType::Filter}};
    struct Row {
        QVector<ParamRow> rows;
        QByteArray params;
        const char *error;
    };
    const Row rows[] = {
        {integer, "{}", "key \"idFile\" is missing"},
        {integer, R"({"idfile":1})", "key \"idFile\" is missing"},
        {integer, R"({"idFile":"1"})", "key \"idFile\" must be a whole number"},
        {integer, R"({"idFile":1.5})", "key \"idFile\" must be a whole number"},
        {integer, R"({"idFile":null})", "key \"idFile\" must be a whole number"},
        {integer, R"({"idFile":true})", "key \"idFile\" must be a whole number"},
        {text, R"({"title":1})", "key \"title\" must be a text"},
        {text, R"({"title":")" + QByteArray(ParameterChecker::LongestText + 1, 'x') + R"("})",
         "key \"title\" must be a shorter text"},
        {loose, R"({"port":1.5})", "key \"port\" must be a text"},
        {loose, R"({"port":[]})", "key \"port\" must be a text"},
        {loose, R"({"port":1e300})", "key \"port\" must be a text"},
        {loose, R"({"port":-1e300})", "key \"port\" must be a text"},
        {loose, R"({"port":9007199254740994})", "key \"port\" must be a text"},
        {flag, R"({"deleteFile":1})", "key \"deleteFile\" must be true or false"},
        {flag, R"({"deleteFile":"true"})", "key \"deleteFile\" must be true or false"},
        {limits, R"({"limits":[0,1]})", "key \"limits\" must be an object"},
        {limits, R"({"limits":{"start":0}})", "key \"limits.end\" is missing"},
        {limits, R"({"limits":{"start":"0","end":1}})", "key \"limits.start\" must be a whole number"},
        {sort, R"({"sort":"title"})", "key \"sort\" must be an object"},
        {sort, R"({"sort":{"order":"ascending"}})", "key \"sort.method\" is missing"},
        {sort, R"({"sort":{"method":"size","order":"ascending"}})",
         "key \"sort.method\" has an unknown value \"size\""},
        {sort, R"({"sort":{"method":"Title","order":"ascending"}})",
         "key \"sort.method\" has an unknown value"},
        {sort, R"({"sort":{"method":"title","order":"up"}})",
         "key \"sort.order\" has an unknown value \"up\""},
        {filter, R"({"filter":[]})", "key \"filter\" must be an object"},
        {filter, R"({"filter":{"and":{}}})", "key \"filter.and\" must be an array"},
        {filter, R"({"filter":{"and":[1]}})", "key \"filter.and\" must be an array of objects"},
        {filter, R"({"filter":{"and":[{"field":"director","operator":"contains","value":"x"}]}})",
         "key \"filter.field\" has an unknown value \"director\""},
        {filter, R"({"filter":{"and":[{"field":"genre","operator":"is","value":"x"}]}})",
         "key \"filter.operator\" has an unknown value"},
        {filter, R"({"filter":{"and":[{"field":"genre","operator":"contains"}]}})",
         "key \"filter.value\" is missing"},
    };
    for (const Row &row : rows) {
        const CheckedParams checked = check(row.rows, row.params);
        EXPECT_EQ(checked.error.toStdString().find(row.error), 0u)
            << row.params.left(80).constData() << " gives " << qPrintable(checked.error);
    }
}

TEST(ParameterCheckerTest, ClampsLimitsToAListThatCanBe)
{
    struct Row {
        const char *limits;
        int start;
        int end;
    };
    const Row rows[] = {
        {R"({"start":0,"end":1})", 0, 1},
        {R"({"start":0,"end":0})", 0, 0},
        {R"({"start":-5,"end":3})", 0, 3},
        {R"({"start":-5,"end":-1})", 0, 0},
        {R"({"start":9,"end":3})", 9, 9},
        {R"({"start":0,"end":1e300})", 0, highest},
        {R"({"start":1e18,"end":0})", highest, highest},
        {R"({"start":2.0,"end":4e0})", 2, 4},
    };
    for (const Row &row : rows) {
        const CheckedParams checked =
            check({{Keys::limits, ParamType::Limits}}, QByteArray(R"({"limits":)") + row.limits + '}');
        EXPECT_TRUE(checked.isGood()) << row.limits;
        EXPECT_EQ(checked.params.list().start, row.start) << row.limits;
        EXPECT_EQ(checked.params.list().end, row.end) << row.limits;
    }
}

TEST(ParameterCheckerTest, KnowsEverySortMethodAndOrder)
{
    struct Row {
        const char *text;
        SortMethod method;
    };
    const Row rows[] = {{"title", SortMethod::Title},
                        {"year", SortMethod::Year},
                        {"dateadded", SortMethod::DateAdded},
                        {"rating", SortMethod::Rating},
                        {"modifiedtime", SortMethod::ModifiedTime}};
    for (const Row &row : rows) {
        for (const bool ascending : {true, false}) {
            const QByteArray params = QByteArray(R"({"sort":{"ignorearticle":false,"method":")") + row.text
                                      + R"(","order":")" + (ascending ? "ascending" : "descending")
                                      + R"("}})";
            const CheckedParams checked = check({{Keys::sort, ParamType::Sort}}, params);
            EXPECT_TRUE(checked.isGood()) << row.text;
            EXPECT_EQ(checked.params.list().sort, row.method) << row.text;
            EXPECT_EQ(checked.params.list().ascending, ascending) << row.text;
        }
    }
}

TEST(ParameterCheckerTest, TakesThreeFiltersInTheirOrder)
{
    const CheckedParams checked = check({{Keys::filter, ParamType::Filter}}, R"({"filter":{"and":[
        {"field":"country","operator":"contains","value":"France"},
        {"field":"genre","operator":"contains","value":"Drama"},
        {"field":"year","operator":"contains","value":2016}]}})");
    const QVector<FieldFilter> expected{{QStringLiteral("country"), QStringLiteral("France")},
                                        {QStringLiteral("genre"), QStringLiteral("Drama")},
                                        {QStringLiteral("year"), QStringLiteral("2016")}};
    EXPECT_EQ(checked.params.list().filters, expected);
}

TEST(ParameterCheckerTest, TakesANumberWhereATextMayBeOne)
{
    const QVector<ParamRow> rows{{Keys::port, ParamType::LooseText}};
    EXPECT_EQ(check(rows, R"({"port":8080})").params.text(Keys::port), QStringLiteral("8080"));
    EXPECT_EQ(check(rows, R"({"port":"8080"})").params.text(Keys::port), QStringLiteral("8080"));
    EXPECT_EQ(check(rows, R"({"port":603123456789})").params.text(Keys::port),
              QStringLiteral("603123456789"));
    EXPECT_EQ(check(rows, R"({"port":-9007199254740992})").params.text(Keys::port),
              QStringLiteral("-9007199254740992"));
}
