#include "library/IServerService.h"

#include <gtest/gtest.h>

namespace {

const QString kLibrary = QStringLiteral(QUORIN_DISC_PICTURES);

TEST(IServerService, MissingLibraryGivesFalseAndNull)
{
    IServerService service(QStringLiteral("/nowhere/MediaLibraryAPI"), QString(), QString());
    EXPECT_FALSE(service.init());
    EXPECT_EQ(service.callService("disc", nullptr, nullptr), nullptr);
}

TEST(IServerService, FirstOperationGetsTheFoldersAndTenthTheTexts)
{
    IServerService service(kLibrary, QStringLiteral("/data/ä"), QStringLiteral("/pictures"));
    EXPECT_EQ(service.callService("disc", "1", "2"), nullptr) << "before init";
    ASSERT_TRUE(service.init());
    EXPECT_STREQ(service.callService("disc", "1", "2"), "/data/ä|/pictures|media|||disc|1|2");
    EXPECT_TRUE(service.init()) << "an instance is held";
}

TEST(IServerService, NullArgumentsArePassedAsEmptyTexts)
{
    IServerService service(kLibrary, QStringLiteral("/data"), QStringLiteral("/pictures"));
    ASSERT_TRUE(service.init());
    EXPECT_STREQ(service.callService(nullptr, nullptr, nullptr), "/data|/pictures|media|||||");
}

TEST(IServerService, RefusedInstanceIsDroppedAndInitStaysTrue)
{
    IServerService service(kLibrary, QStringLiteral("/data/refused"), QStringLiteral("/pictures"));
    EXPECT_TRUE(service.init());
    EXPECT_EQ(service.callService("disc", "1", "2"), nullptr);
}

TEST(IServerService, WhatTheLibraryThrowsOrLeavesOutIsNull)
{
    IServerService service(kLibrary, QStringLiteral("/data"), QStringLiteral("/pictures"));
    ASSERT_TRUE(service.init());
    EXPECT_EQ(service.callService("throw", "", ""), nullptr);
    EXPECT_EQ(service.callService("nothing", "", ""), nullptr);
    EXPECT_NE(service.callService("disc", "", ""), nullptr) << "it goes on";
}

} // namespace
