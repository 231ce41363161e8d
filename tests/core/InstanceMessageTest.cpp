#include "core/InstanceMessage.h"

#include <gtest/gtest.h>

namespace {

using InstanceMessage::Kind;

struct Row {
    const char *text;
    Kind kind;
    int type;
    const char *payload;
};

TEST(InstanceMessageTest, TextsAreToldApart)
{
    const Row rows[] = {
        {"StartPlayer", Kind::Activate, 0, "StartPlayer"},
        {"startplayer", Kind::Activate, 0, "startplayer"},
        {"/films/startplayer", Kind::Text, 0, "/films/startplayer"},
        {"", Kind::Text, 0, ""},
        {"[#PAndU#]1:", Kind::Tagged, 1, ""},
        {"[#PAndU#]4:C:/a:b", Kind::Tagged, 4, "C:/a:b"},
        {"[#PAndU#]abc:x", Kind::Tagged, 0, "x"},
        {"[#PAndU#]:x", Kind::Tagged, 0, "x"},
        {"[#PAndU#]2", Kind::BrokenTag, 0, ""},
        {"C:/[#PAndU#]2:x", Kind::BrokenTag, 0, ""},
    };
    for (const Row &row : rows) {
        const InstanceMessage::Parsed parsed = InstanceMessage::parse(row.text);
        EXPECT_EQ(parsed.kind, row.kind) << row.text;
        EXPECT_EQ(parsed.type, row.type) << row.text;
        EXPECT_EQ(parsed.payload, row.payload) << row.text;
    }
}

TEST(InstanceMessageTest, WhatIsWrittenForTheUpdaterReadsBack)
{
    const QString text = InstanceMessage::tagged(SendMsgType::BackgroundImage, "D:/x.png");
    EXPECT_EQ(text, "[#PAndU#]4:D:/x.png");
    const InstanceMessage::Parsed parsed = InstanceMessage::parse(text);
    EXPECT_EQ(parsed.kind, Kind::Tagged);
    EXPECT_EQ(parsed.type, 4);
    EXPECT_EQ(parsed.payload, "D:/x.png");
}

} // namespace
