// Small note with the speed while it differs from normal, and a button back to normal. GUI thread.
#pragma once

#include "PlayerCommands.h"

#include "player/QPlayer.h"
#include "ui/OverlayWidget.h"

class TransportButton;

class NormalPlaySpeedBar final : public OverlayWidget {
    Q_OBJECT

public:
    explicit NormalPlaySpeedBar(QWidget *parent = nullptr);
    explicit NormalPlaySpeedBar(PlayerCommands commands, QWidget *parent = nullptr);

    // As in the speed table.
    [[nodiscard]] QString text() const { return m_text; }

    void retranslate();
    [[nodiscard]] QSize sizeHint() const override;

public slots:
    void on_pushButton_close_clicked(bool);
    void slot_updateSpeed(QPlayer::QPlayerStatus status);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QString shownText() const;

    PlayerCommands m_commands;
    TransportButton *m_close;
    QString m_text;
    bool m_rewinding{false};
};
