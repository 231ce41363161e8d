#include "SettingsFacts.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsManager.h"

#include <QGuiApplication>
#include <QOperatingSystemVersion>

SettingsFacts SettingsFacts::ofThisMachine()
{
    const QOperatingSystemVersion system = QOperatingSystemVersion::current();
    const auto *application = ApplicationInfoManager::instance();
    SettingsFacts facts;
    facts.isWindows = system.type() == QOperatingSystemVersion::Windows;
    facts.isWindows8OrLater = facts.isWindows && system >= QOperatingSystemVersion::Windows8;
    facts.isWindows7 = facts.isWindows && !facts.isWindows8OrLater;
    facts.screenCount = int(QGuiApplication::screens().size());
    facts.systemLanguage = SettingsManager::instance()->systemLanguage();
    facts.programFolder = application->applicationFolder();
    facts.picturesFolder = application->picturesFolder();
    facts.logFolder = application->logFolder();
    return facts;
}
