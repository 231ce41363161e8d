// The information overlay: the source's name and, a line each, what the player tells about it.
//
// Wanted while the settings say so and a source is named. GUI thread.
#pragma once

#include "player/QPlayer.h"
#include "ui/OverlayWidget.h"

#include <QMap>

class SettingsManager;

class NormalMetaView final : public OverlayWidget {
    Q_OBJECT

public:
    explicit NormalMetaView(QWidget *parent = nullptr);
    explicit NormalMetaView(SettingsManager &settings, QWidget *parent = nullptr);

    // A new source: its name, and none of the old lines.
    void setDisplayName(const QString &name);
    // No source: empty and gone.
    void clear();
    // Reads the setting again, after the menu has changed it.
    void updateShown();

    // Label and text of each line, as shown.
    [[nodiscard]] QVector<QPair<QString, QString>> lines() const;

    [[nodiscard]] QSize sizeHint() const override;

public slots:
    void slot_setMetaInfo(QPlayer::QPlayerMetaType type, QString strInfo);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void textChanged();

    SettingsManager &m_settings;
    QString m_name;
    QMap<int, QString> m_texts; // by the row they stand in
    int m_widest{0};
};
