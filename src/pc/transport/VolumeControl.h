// Volume and mute as the user sets them: the rule of the volume keys, what the slider shows, and the two
// settings.
//
// Knows no widget; what is to be shown goes out as signals. GUI thread.
#pragma once

#include "PlayerCommands.h"

#include <QObject>

class SettingsManager;

class VolumeControl final : public QObject {
    Q_OBJECT

public:
    VolumeControl(PlayerCommands commands, SettingsManager &settings, QObject *parent = nullptr);

    // What the slider shows, 0 to 100.
    [[nodiscard]] int volumeCount() const { return m_volumeCount; }
    // What plays, 0 to 2.0.
    [[nodiscard]] float volume() const { return m_volume; }
    [[nodiscard]] bool isMuted() const { return m_muted; }

    // One step of a key or of the wheel: below 1 quieter, else louder. Needs a source.
    void changeVolume(int step);
    void setFromSlider(int count);
    void toggleMute();

    // Takes volume and mute from the settings and hands them to the player, at the program's start.
    void restore();
    // Gives them to a source that has just started.
    void reapply();
    // Writes the slider's value.
    void store();

    // What the engine reports.
    void showVolume(float volume);
    void showMute(bool muted);

signals:
    void volumeShown(int count, float volume);
    void muteShown(bool muted);

private:
    void readSettings();
    void setMute(bool muted);

    PlayerCommands m_commands;
    SettingsManager &m_settings;
    int m_volumeCount{100};
    float m_volume{1.0F};
    bool m_muted{false};
};
