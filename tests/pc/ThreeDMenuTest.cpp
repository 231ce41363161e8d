#include "TestSettings.h"

#include "transport/ThreeDMenu.h"

#include "core/SettingsKeys.h"

#include <QAction>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class ThreeDMenus : public testing::Test {
protected:
    void SetUp() override
    {
        menu.setSystemTest([this] { return oldSystem; });
    }
    QAction *entry(const QString &text)
    {
        QList<QMenu *> menus{menu.build()};
        while (!menus.isEmpty()) {
            const auto actions = menus.takeFirst()->actions();
            for (QAction *action : actions) {
                if (action->menu() != nullptr)
                    menus << action->menu();
                if (action->text() == text)
                    return action;
            }
        }
        return nullptr;
    }
    TestSettings settings;
    ThreeDMenu menu{*settings};
    bool oldSystem{false};
};

} // namespace

TEST_F(ThreeDMenus, OffersItsEntriesInOrder)
{
    QStringList texts;
    const auto actions = menu.build()->actions();
    for (const QAction *action : actions) {
        if (action->isSeparator())
            continue;
        texts << action->text();
        if (action->menu() != nullptr) {
            const auto formats = action->menu()->actions();
            for (const QAction *format : formats)
                texts << format->text();
        }
    }
    EXPECT_EQ(texts, QStringList({"Play 3D Media in 3D", "Convert 2D Media to 3D", "3D Source Format",
                                  "Auto Detect", "Side by Side", "Top / Bottom", "More 3D Settings"}));
}

TEST_F(ThreeDMenus, MarksShowTheDefaultsAndThenTheSettings)
{
    EXPECT_TRUE(entry("Play 3D Media in 3D")->isChecked());
    EXPECT_FALSE(entry("Convert 2D Media to 3D")->isChecked());
    EXPECT_TRUE(entry("Auto Detect")->isChecked());
    settings->setValue(SettingsKeys::PC_PlayIn3D, false);
    settings->setValue(SettingsKeys::PC_ConvertTo3D, true);
    settings->setValue(SettingsKeys::PC_3DSourceType, 2);
    EXPECT_FALSE(entry("Play 3D Media in 3D")->isChecked());
    EXPECT_TRUE(entry("Convert 2D Media to 3D")->isChecked());
    EXPECT_TRUE(entry("Top / Bottom")->isChecked());
    EXPECT_FALSE(entry("Auto Detect")->isChecked());
}

TEST_F(ThreeDMenus, ChoicesAreStoredAndTheSetUpIsDue)
{
    QSignalSpy due(&menu, &ThreeDMenu::setupDue);
    menu.deal(entry("Play 3D Media in 3D"));
    EXPECT_FALSE(settings->value(SettingsKeys::PC_PlayIn3D).toBool());
    menu.deal(entry("Convert 2D Media to 3D"));
    EXPECT_TRUE(settings->value(SettingsKeys::PC_ConvertTo3D).toBool());
    EXPECT_TRUE(menu.isOn());
    menu.deal(entry("Side by Side"));
    EXPECT_EQ(settings->value(SettingsKeys::PC_3DSourceType).toInt(), 1);
    EXPECT_EQ(due.count(), 3);
}

TEST_F(ThreeDMenus, AnOldSystemIsToldAndNothingChanges)
{
    oldSystem = true;
    QSignalSpy due(&menu, &ThreeDMenu::setupDue);
    QSignalSpy refused(&menu, &ThreeDMenu::refused);
    menu.deal(entry("Convert 2D Media to 3D"));
    menu.deal(entry("Side by Side"));
    ASSERT_EQ(refused.count(), 2);
    EXPECT_EQ(refused.at(0).at(0).toString(),
              "Oops! 3D playback support is only available on Windows 8/10 for now.");
    EXPECT_FALSE(settings->contains(SettingsKeys::PC_ConvertTo3D));
    EXPECT_FALSE(settings->contains(SettingsKeys::PC_3DSourceType));
    EXPECT_TRUE(due.isEmpty());
}

TEST_F(ThreeDMenus, MoreSettingsOnlyAsksForThem)
{
    QSignalSpy due(&menu, &ThreeDMenu::setupDue);
    QSignalSpy more(&menu, &ThreeDMenu::moreSettingsWanted);
    menu.deal(entry("More 3D Settings"));
    EXPECT_EQ(more.count(), 1);
    EXPECT_TRUE(due.isEmpty());
}

TEST_F(ThreeDMenus, AnActionOfSomebodyElseIsIgnored)
{
    oldSystem = true;
    QSignalSpy refused(&menu, &ThreeDMenu::refused);
    QAction other(QStringLiteral("Stop"));
    menu.deal(&other);
    menu.deal(nullptr);
    EXPECT_TRUE(refused.isEmpty());
}
