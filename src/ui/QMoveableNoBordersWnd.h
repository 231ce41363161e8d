// Frameless dialog that moves when it is dragged by its title area: the base of the program's dialogs.
#pragma once

#include <QDialog>
#include <QPoint>

class QMoveableNoBordersWnd : public QDialog {
    Q_OBJECT
public:
    explicit QMoveableNoBordersWnd(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    // Height of the area that moves the window, from its top edge; a press exactly at this height still
    // counts.
    void setTitleHeight(int height) { m_titleHeight = height; }
    [[nodiscard]] int titleHeight() const { return m_titleHeight; }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int m_titleHeight{0};
    bool m_dragging{false};
    QPoint m_dragOffset;
};
