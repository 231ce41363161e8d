// Short note over the picture on a change of state: playing, paused, fast forward, rewind.
//
// Comes only when the settings want such tips, and goes by itself. GUI thread.
#pragma once

#include "ui/OverlayWidget.h"

#include <QTimer>

#include <functional>

class SettingsManager;

class NormalTipLabel final : public OverlayWidget {
    Q_OBJECT

public:
    enum Tip { Playing = 1, Paused = 2, FastForward = 3, Rewind = 4 };

    static constexpr int ShownMs = 1600;

    explicit NormalTipLabel(QWidget *parent = nullptr);
    explicit NormalTipLabel(SettingsManager &settings, QWidget *parent = nullptr);

    // The text of the speed table for tips 3 and 4.
    void setSpeedText(std::function<QString()> speedText) { m_speedText = std::move(speedText); }

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] QSize sizeHint() const override;

public slots:
    // 1 to 4; others are ignored.
    void showTip(int tip);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString textOf(int tip) const;

    SettingsManager &m_settings;
    std::function<QString()> m_speedText;
    QString m_text;
    QString m_icon;
    QTimer m_timer;
};
