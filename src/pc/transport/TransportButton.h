// Button of the transport controls: a picture that lights up under the pointer, with a disc behind the
// primary one.
//
// Never takes the keyboard by a click, and shows the keyboard's cursor when that is in use. GUI thread.
#pragma once

#include "ui/HoverHeat.h"

#include <QAbstractButton>
#include <QPixmap>

class TransportButton : public QAbstractButton {
    Q_OBJECT

public:
    // icon: name in the resource file; iconSize: design pixels.
    TransportButton(const QString &icon, int iconSize, QWidget *parent = nullptr);

    void setPrimary(bool primary);
    // A picture instead of the icon, as a cover.
    void setCover(const QPixmap &cover);
    [[nodiscard]] bool hasCover() const { return !m_cover.isNull(); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void paintGround(QPainter &painter) const;
    void paintCover(QPainter &painter) const;

    QString m_icon;
    int m_iconSize;
    bool m_primary{false};
    QPixmap m_cover;
    HoverHeat m_heat;
};
