// What the settings have to know of the machine. A plain value: a test writes its own.
#pragma once

#include <QString>

struct SettingsFacts {
    bool isWindows{false};
    bool isWindows7{false};
    bool isWindows8OrLater{false};
    int screenCount{1};
    QString systemLanguage{QStringLiteral("ENU")}; // three-letter code
    QString programFolder;
    QString picturesFolder;
    QString logFolder;

    // The machine that the program runs on. GUI thread.
    [[nodiscard]] static SettingsFacts ofThisMachine();
};
