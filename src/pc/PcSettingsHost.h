// What the settings dialog asks of the program: the engine, the desktop's file types, other programs.
//
// GUI thread, which never waits here: one worker speaks to the engine, another to the desktop. Refers to the
// store, which outlives it, and to the player until shutDown().
#pragma once

#include "settings/ISettingsHost.h"

#include <memory>

class EnginePreferences;
class QPlayer;
class SettingsManager;
class ThreadWorker;

class PcSettingsHost final : public ISettingsHost {
public:
    // player: null until there is one.
    PcSettingsHost(SettingsManager &settings, std::function<QPlayer *()> player);
    ~PcSettingsHost() override;

    // Before the player goes: waits for what the engine is being told and forgets the rest.
    void shutDown();

    [[nodiscard]] QList<SettingsAudioDevice> audioDevices() override;
    void setAudioDevicesHandler(std::function<void()> handler) override;
    void applyVideo() override;
    void applyAudio() override;
    void applySubtitle() override;
    void applyRegion() override;
    void applyProxy() override;
    void applyServerProxy() override;
    // As it was when the dialog last asked, from then on being asked for anew: the system may take its time.
    [[nodiscard]] SettingsProxy systemProxy() const override { return m_systemProxy; }
    void askSystemProxy();

    void readAssociations(std::function<void(const QStringList &)> answer) override;
    void changeAssociations(const QStringList &add, const QStringList &remove,
                            std::function<void(bool)> done) override;
    void openSystemSettings() override;
    bool startProgram(const QString &commandLine) override;

    // Makes the library's folders when they are first asked for.
    void setLibrary(std::function<std::unique_ptr<ILibraryPaths>()> make) { m_makeLibrary = std::move(make); }
    [[nodiscard]] ILibraryPaths *library() override;

private:
    // One group of the stored preferences, on the worker.
    void apply(void (*group)(EnginePreferences &));
    void askDevices(QPlayer *player);

    SettingsManager &m_settings;
    std::function<QPlayer *()> m_player;
    std::function<void()> m_devicesHandler;
    std::function<std::unique_ptr<ILibraryPaths>()> m_makeLibrary;
    std::unique_ptr<ILibraryPaths> m_library;
    SettingsProxy m_systemProxy;
    bool m_isAskingDevices{false};
    std::unique_ptr<ThreadWorker> m_desktop;
    std::unique_ptr<ThreadWorker> m_engine;
};
