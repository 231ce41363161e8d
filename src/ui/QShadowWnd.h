// Translucent window behind a frameless one that shows its shadow and follows it.
//
// The content widget is not owned. Where no compositor blends windows the shadow stays hidden: it would be a
// black block. GUI thread only.
#pragma once

#include "QShadowPainter.h"

#include <QMargins>
#include <QPointer>
#include <QWidget>

class QShadowWnd final : public QWidget {
    Q_OBJECT

public:
    static constexpr QMargins Margins{36, 21, 36, 51}; // pixels around the content

    explicit QShadowWnd(QWidget *content, QShadowPainter::Set set = QShadowPainter::Set::Window);

    // Keeps the window where it is put instead of following the content on show.
    void setFixedPosition(bool fixed) { m_fixedPosition = fixed; }

signals:
    void sig_updateContentWidget();

public slots:
    // Follows the content to a new position of its top left corner, in screen pixels.
    void slot_updatePosition(QPoint point);

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPointer<QWidget> m_content;
    QShadowPainter m_painter;
    bool m_fixedPosition{false};
};
