#include "platform/SystemLanguage.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

TEST(SystemLanguageTest, IsThatOfTheSystemsLocale)
{
    const SystemLanguageId id = systemLanguage();
    const SystemLanguageId wanted = SystemLanguageId::fromLocale(QLocale::system());
    EXPECT_EQ(id.primary, wanted.primary);
    EXPECT_EQ(id.sub, wanted.sub);
}

} // namespace
