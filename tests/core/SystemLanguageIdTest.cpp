#include "core/SystemLanguageId.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

TEST(SystemLanguageIdTest, LocalesBecomePrimaryLanguageAndSublanguage)
{
    using Id = SystemLanguageId;
    const struct {
        const char *locale;
        int primary;
        int sub;
    } rows[] = {
        {"zh_CN", Id::Chinese, 2}, {"zh_SG", Id::Chinese, 2}, {"zh_TW", Id::Chinese, 1},
        {"zh_HK", Id::Chinese, 1}, {"de_AT", Id::German, 1},  {"en_GB", Id::English, 1},
        {"es_MX", Id::Spanish, 1}, {"fr_CA", Id::French, 1},  {"ja_JP", Id::Japanese, 1},
        {"ko_KR", Id::Korean, 1},  {"pl_PL", Id::Unknown, 1}, {"C", Id::Unknown, 1},
    };
    for (const auto &row : rows) {
        const Id id = Id::fromLocale(QLocale(row.locale));
        EXPECT_EQ(id.primary, row.primary) << row.locale;
        EXPECT_EQ(id.sub, row.sub) << row.locale;
    }
}

} // namespace
