// Hands the stored preferences to the engine, group by group: once when the output exists, and again whenever
// the settings page has been saved.
//
// Refers to settings and player. Any thread: the commands return at once, but for the list of sound devices,
// which waits for the sound system the first time it is asked. Without an output the values are dropped; the
// next call hands them over.
#pragma once

#include <QString>

class QPlayer;
class SettingsManager;

class EnginePreferences final {
public:
    // Set-up, or the save of the settings page, which logs lines of its own.
    enum class Occasion { SetUp, Save };

    EnginePreferences(SettingsManager &settings, QPlayer &player)
        : m_settings(settings)
        , m_player(player)
    {
    }

    void applyVideo();
    // What the menu and the dialog of colours have left, for the plays of another run.
    void applyPicture();
    // Completes the group in the settings, and stores the formats that pass through.
    void applyAudio(Occasion occasion = Occasion::SetUp);
    // Completes the group in the settings.
    void applySubtitle();
    void applyRegion();
    // Empty switches the shader off. A shader that the engine takes is stored for the next start.
    void applyShader(const QString &path);
    void applyProxy();
    // All of them, the shader as it is stored.
    void applyAll();
    void applyAllButSound();
    // Nothing but the engine's own defaults was asked for the last time that the sound was applied, or never
    // anything: a source may begin before.
    [[nodiscard]] bool canSoundWait() const;

private:
    void applyStoredShader();

    SettingsManager &m_settings;
    QPlayer &m_player;
};
