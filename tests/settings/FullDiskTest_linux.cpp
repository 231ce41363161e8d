// OK in the settings while the disk is full.
#include "support/FileSizeLimit_linux.h"

#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "settings/NormalSettingPage.h"
#include "support/TestLog.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>

namespace {

bool isInFile(const SettingsManager &store, const QByteArray &line)
{
    QFile file(store.fileName());
    return file.open(QIODevice::ReadOnly) && file.readAll().split('\n').contains(line);
}

} // namespace

TEST(SettingsOnAFullDisk, TheUserIsToldAndTheSettingsAreInUse)
{
    TestSettings store;
    FakeSettingsHost host;
    store->setValue(SettingsKeys::PC_AutoPlay, true);
    ASSERT_TRUE(store->sync());
    QStringList told;
    NormalSettingPage page(*store, host, nullptr,
                           {[&told](QWidget *, const QString &text) { told << text; },
                            [](QWidget *, const QString &, const QString &) { return false; }});
    page.prepare();
    QSignalSpy saved(&page, &NormalSettingPage::sig_settingsSaved);
    {
        const FileSizeLimit limit(8);
        page.model().setValue(SettingsKeys::PC_AutoPlay, false);
        page.slot_okClicked();
        ASSERT_TRUE(!saved.isEmpty() || saved.wait());
    }
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.first().contains(store->fileName())) << qPrintable(told.first());
    EXPECT_FALSE(store->value(SettingsKeys::PC_AutoPlay).toBool());
    EXPECT_TRUE(isInFile(*store, "PC_AutoPlay=true"));
    // With room again nobody is told anything.
    page.prepare();
    page.slot_okClicked();
    ASSERT_TRUE(saved.size() == 2 || saved.wait());
    EXPECT_EQ(told.size(), 1);
    EXPECT_TRUE(isInFile(*store, "PC_AutoPlay=false"));
}
