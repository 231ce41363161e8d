// What menu entries ask of the window, and what they act on.
#pragma once

#include <QString>

#include <functional>

class QPlayer;
class SettingsManager;

struct MenuHost {
    SettingsManager &settings;
    std::function<QPlayer *()> player; // null until there is one
    std::function<bool()> hasSource;
    std::function<void()> openMedia;
    std::function<void(const QString &drive)> playDisc;
    std::function<void()> loadSubtitle;
    std::function<void()> subtitleSettings;
    std::function<void()> settingsPage;
    std::function<void()> videoControl;
    std::function<void()> colorAdjust;
    std::function<void()> stop;
    std::function<void()> fullScreen;
    std::function<void()> alwaysOnTop;
    std::function<void()> information;
    std::function<void(int seconds)> seek; // where it holds up no window
    std::function<void(const QString &name, const QString &value)> noteUse;
    QString shaderFolder;
};
