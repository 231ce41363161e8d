// Where the main window of PC mode stands, from one run to the next. Pure over the settings and the screen;
// GUI thread.
#pragma once

#include <QRect>
#include <QSize>

class SettingsManager;

class WindowPlacement final {
public:
    // Stored values of the size policy.
    static constexpr char RememberLast[] = "Always remember the last choice";
    static constexpr char MatchVideo[] = "Always match to the original video size";

    explicit WindowPlacement(SettingsManager &settings)
        : m_settings(settings)
    {
    }

    // The place to open at: the last one if it is to be remembered and can still be seen on a screen, else
    // the default size in the middle of the available area.
    [[nodiscard]] QRect restored(const QSize &defaultSize, const QRect &available) const;
    [[nodiscard]] bool startsMaximized() const;
    [[nodiscard]] bool startsFullScreen() const;
    [[nodiscard]] bool matchesVideo() const;

    void store(const QRect &normalGeometry, bool maximized, bool fullScreen);

private:
    SettingsManager &m_settings;
};
