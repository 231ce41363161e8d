#include "ui/TextBrowseLabel.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class TextBrowse : public testing::Test {
protected:
    void showWith(const QString &text, int width)
    {
        label.setText(text);
        label.setBrowseEnabled(true);
        label.resize(width, 30);
        label.show();
        QCoreApplication::processEvents();
    }
    TextBrowseLabel label;
    const QString longText = QString(40, QLatin1Char('w'));
};

} // namespace

TEST_F(TextBrowse, TextThatFitsNeverStartsTheScrollTimer)
{
    showWith("short", 400);
    EXPECT_FALSE(label.needsBrowse());
    EXPECT_FALSE(label.isBrowsing());
}

TEST_F(TextBrowse, LongTextScrollsWhileItIsVisible)
{
    showWith(longText, 60);
    EXPECT_TRUE(label.isBrowsing());
    label.hide();
    EXPECT_FALSE(label.isBrowsing());
    label.show();
    EXPECT_TRUE(label.isBrowsing());
    label.setBrowseEnabled(false);
    EXPECT_FALSE(label.isBrowsing());
}

TEST_F(TextBrowse, GrowingPastTheTextStopsTheScroll)
{
    showWith(longText, 60);
    label.resize(4000, 30);
    QCoreApplication::processEvents();
    EXPECT_FALSE(label.isBrowsing());
}

TEST_F(TextBrowse, PositionWrapsWhenTheFirstCopyHasPassed)
{
    showWith("wwwwwwwwwwww", 20);
    ASSERT_TRUE(label.needsBrowse());
    label.slot_paintBrowse();
    EXPECT_EQ(label.position(), 1);
    int last = 1;
    for (int i = 0; i < 10000 && label.position() >= last; ++i) {
        last = label.position();
        label.slot_paintBrowse();
    }
    EXPECT_EQ(label.position(), 0);
}
