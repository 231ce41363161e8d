// What stays prepared is bounded, whatever lists are asked for.
#include "StoreFixture.h"

#include "store/PreparedStatements.h"

#include <random>

namespace {

constexpr int kLists = 5000;
constexpr int kMostFilters = 32;
const char *const kFields[] = {"country", "genre", "year"};

class PreparedStatementsTest : public StoreFixture {
protected:
    [[nodiscard]] std::size_t kept() const { return database->reader().preparedCount(); }

    // What the request costs in statements: one more where its order has to be made.
    [[nodiscard]] qint64 costOf(const QVector<FieldFilter> &filters) const
    {
        ListRequest request = everything();
        request.filters = filters;
        const qint64 before = database->reader().counters().statements;
        (void)videos->movies(Role::Movies, request);
        return database->reader().counters().statements - before;
    }
};

PreparedStatements::Query someQuery()
{
    return std::make_shared<QSqlQuery>(QSqlDatabase());
}

} // namespace

TEST_F(PreparedStatementsTest, ThousandsOfDifferentListsKeepABoundedNumber)
{
    std::mt19937 random(20261);
    for (int list = 0; list < kLists; ++list) {
        ListRequest request = everything(SortMethod(random() % 4), random() % 2 == 0);
        const int filters = 1 + int(random() % kMostFilters);
        for (int i = 0; i < filters; ++i)
            request.filters.append({kFields[random() % std::size(kFields)], QString::number(i)});
        EXPECT_EQ(videos->movies(Role::Movies, request).total, 0);
        ASSERT_LE(kept(), PreparedStatements::UsualCapacity) << list;
    }
    EXPECT_EQ(kept(), PreparedStatements::UsualCapacity) << "fewer lists than fill it prove nothing";
}

TEST_F(PreparedStatementsTest, TheSameConditionsInAnotherOrderAreTheSameList)
{
    const FieldFilter drama{"genre", "Drama"};
    const FieldFilter crime{"genre", "Crime"};
    const FieldFilter france{"country", "France"};
    (void)costOf({drama, crime, france});
    const std::size_t before = kept();
    const qint64 known = costOf({drama, crime, france});
    for (const QVector<FieldFilter> &order : {QVector<FieldFilter>{france, crime, drama},
                                              {crime, france, drama},
                                              {drama, france, crime, drama},
                                              {FieldFilter{"genre", "DRAMA"}, crime, france}})
        EXPECT_EQ(costOf(order), known);
    EXPECT_EQ(kept(), before);
}

TEST_F(PreparedStatementsTest, AStatementThatIsLetGoDuringItsUseIsUsedToItsEnd)
{
    Connection &connection = database->reader();
    const QString text = "SELECT 1 UNION SELECT 2 UNION SELECT 3 ORDER BY 1";
    Statement outer = connection.prepare(text);
    ASSERT_TRUE(outer.run());
    ASSERT_TRUE(outer.next());
    for (std::size_t i = 0; i < 2 * PreparedStatements::UsualCapacity; ++i) {
        Statement inner = connection.prepare(QStringLiteral("SELECT %1 + 1000").arg(i));
        ASSERT_TRUE(inner.run() && inner.next());
        EXPECT_EQ(inner.integer(0), int(i) + 1000);
    }
    EXPECT_TRUE(outer.next());
    EXPECT_EQ(outer.integer(0), 2);
    EXPECT_TRUE(outer.next());
    EXPECT_FALSE(outer.next());
}

TEST(PreparedStatementsOrderTest, TheOneThatNobodyUsedForLongestGoesFirst)
{
    PreparedStatements kept(3);
    for (const char *text : {"a", "b", "c"})
        kept.insert(text, someQuery());
    EXPECT_TRUE(kept.find("a"));
    kept.insert("d", someQuery());
    EXPECT_EQ(kept.size(), 3U);
    for (const char *text : {"a", "c", "d"})
        EXPECT_TRUE(kept.find(text)) << text;
    EXPECT_FALSE(kept.find("b"));
    const PreparedStatements::Query again = someQuery();
    kept.insert("d", again);
    EXPECT_EQ(kept.size(), 3U);
    EXPECT_EQ(kept.find("d"), again);
    kept.clear();
    EXPECT_EQ(kept.size(), 0U);
    EXPECT_FALSE(kept.find("a"));
}
