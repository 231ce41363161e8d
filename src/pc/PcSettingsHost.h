// What the settings dialog asks of the program: the engine, the desktop's file types, other programs.
//
// GUI thread. File types are read and changed on a worker. Refers to the store, which outlives it.
#pragma once

#include "settings/ISettingsHost.h"

#include <memory>

class QPlayer;
class SettingsManager;
class ThreadWorker;

class PcSettingsHost final : public ISettingsHost {
public:
    // player: null until there is one.
    PcSettingsHost(SettingsManager &settings, std::function<QPlayer *()> player);
    ~PcSettingsHost() override;

    [[nodiscard]] QList<SettingsAudioDevice> audioDevices() const override;
    void applyVideo() override;
    void applyAudio() override;
    void applySubtitle() override;
    void applyRegion() override;
    void applyProxy() override;

    void readAssociations(std::function<void(const QStringList &)> answer) override;
    void changeAssociations(const QStringList &add, const QStringList &remove,
                            std::function<void(bool)> done) override;
    void openSystemSettings() override;
    bool startProgram(const QString &commandLine) override;

private:
    SettingsManager &m_settings;
    std::function<QPlayer *()> m_player;
    std::unique_ptr<ThreadWorker> m_worker;
};
