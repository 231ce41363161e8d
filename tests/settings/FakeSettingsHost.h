// What lies outside of the settings dialog, as a test wants it, and what the dialog told it.
#pragma once

#include "settings/ISettingsHost.h"

#include <QStringList>

class FakeLibrary final : public ILibraryPaths {
public:
    bool ready{true};
    QStringList video{QStringLiteral("/films"), QStringLiteral("/shows")};
    QStringList music{QStringLiteral("/music")};
    QStringList calls;
    std::function<void()> changed;

    bool isReady() const override { return ready; }
    QStringList folders(Kind kind) const override { return kind == Kind::Video ? video : music; }
    void add(Kind, const QString &folder, bool askForType) override
    {
        calls << QStringLiteral("add %1 %2").arg(folder).arg(askForType);
    }
    void remove(Kind kind, const QString &folder) override
    {
        calls << QStringLiteral("remove %1").arg(folder);
        (kind == Kind::Video ? video : music).removeAll(folder);
    }
    void update() override { calls << QStringLiteral("update"); }
    void rebuild() override { calls << QStringLiteral("rebuild"); }
    void setChangedHandler(std::function<void()> handler) override { changed = std::move(handler); }
};

class FakeSettingsHost : public ISettingsHost {
public:
    SettingsFacts known;
    QList<SettingsAudioDevice> devices{{QStringLiteral("Built-in speakers"), 1, 0},
                                       {QStringLiteral("Headphones"), 1, 0},
                                       {QStringLiteral("Receiver"), 3, 7},
                                       {QStringLiteral("Optical out"), 2, 3}};
    QList<int> modesWithout3D;
    QStringList associated;
    bool takesAssociations{true};
    bool startsPrograms{true};
    SettingsProxy proxyOfSystem{QStringLiteral("proxy.lan"), QStringLiteral("3128")};
    ILibraryPaths *paths{nullptr};
    std::function<void()> devicesFound;
    // Every call, in order.
    QStringList calls;
    QStringList added;
    QStringList removed;

    FakeSettingsHost()
    {
        known.programFolder = QStringLiteral("/opt/player");
        known.picturesFolder = QStringLiteral("/nowhere/Pictures/Quorin Player 6");
        known.logFolder = QStringLiteral("/nowhere/Documents/Quorin Player 6/Log");
    }

    SettingsFacts facts() const override { return known; }
    QList<SettingsAudioDevice> audioDevices() override { return devices; }
    void setAudioDevicesHandler(std::function<void()> handler) override { devicesFound = std::move(handler); }
    bool supports3DMode(int mode) const override { return !modesWithout3D.contains(mode); }
    void applyVideo() override { calls << QStringLiteral("video"); }
    void applyAudio() override { calls << QStringLiteral("audio"); }
    void applySubtitle() override { calls << QStringLiteral("subtitle"); }
    void applyRegion() override { calls << QStringLiteral("region"); }
    void applyProxy() override { calls << QStringLiteral("proxy"); }
    void applyServerProxy() override { calls << QStringLiteral("server proxy"); }
    SettingsProxy systemProxy() const override { return proxyOfSystem; }
    void readAssociations(std::function<void(const QStringList &)> answer) override { answer(associated); }
    void changeAssociations(const QStringList &add, const QStringList &remove,
                            std::function<void(bool)> done) override
    {
        calls << QStringLiteral("associate");
        added = add;
        removed = remove;
        done(takesAssociations);
    }
    void openSystemSettings() override { calls << QStringLiteral("system settings"); }
    bool startProgram(const QString &commandLine) override
    {
        calls << commandLine;
        return startsPrograms;
    }
    ILibraryPaths *library() override { return paths; }
};
