// The seek bar in its smallest form: a thin line along the lower edge of the picture while the bars rest,
// where the settings want the progress in view.
//
// Shown for a source of known length alone. Takes no mouse. GUI thread.
#pragma once

#include "ui/OverlayWidget.h"

class SettingsManager;

class PlayedLine final : public OverlayWidget {
    Q_OBJECT

public:
    explicit PlayedLine(QWidget *parent = nullptr);
    explicit PlayedLine(SettingsManager &settings, QWidget *parent = nullptr);

    // In seconds; a length of 0 is not known.
    void setTime(int seconds, int totalSeconds);
    // The bars rest over a source.
    void setResting(bool resting);
    // The setting may be another.
    void updateShown();

    // From 0 to 1.
    [[nodiscard]] double played() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] bool takesMouseAt(const QPoint &position) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    SettingsManager &m_settings;
    int m_seconds{0};
    int m_totalSeconds{0};
    bool m_isResting{false};
};
