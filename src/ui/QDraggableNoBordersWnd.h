// Makes a frameless window resizable: eight narrow, invisible windows lie around it and are dragged in its
// place.
//
// The helper owns its strips and lives as long as its target; it follows the target's moves, resizes and
// state by an event filter and hides the strips while the target is hidden, maximised or in full screen. GUI
// thread only.
#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>

#include <array>
#include <memory>

class QWidget;

class QDraggableNoBordersWnd final : public QObject {
    Q_OBJECT

public:
    // Which corner or edge is dragged; also the order of the strips.
    enum DragMode {
        NoDrag = 0,
        BottomRight = 1,
        TopLeft = 2,
        Top = 3,
        TopRight = 4,
        Right = 5,
        Bottom = 6,
        BottomLeft = 7,
        Left = 8
    };
    static constexpr int StripThickness = 5; // pixels

    // target: a top-level window; not owned.
    explicit QDraggableNoBordersWnd(QWidget *target);
    ~QDraggableNoBordersWnd() override;

    // Smallest size of the target in design pixels.
    void setMinimumSize(const QSize &size) { m_minSize = size; }
    // Draws a soft edge on the strips, for windows without a shadow of their own.
    void showBorder(bool show);
    void hideAll();
    void showAll();

    [[nodiscard]] int dragMode() const { return m_dragMode; }
    // The strip of a mode: a tool window, and the widget in it that takes the mouse.
    [[nodiscard]] QWidget *strip(DragMode mode) const;
    [[nodiscard]] QWidget *inner(DragMode mode) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void sig_resize();

public slots:
    void slot_resizeBorder();

private:
    struct Strip {
        std::unique_ptr<QWidget> window;
        QWidget *inner{nullptr}; // child of window
    };

    void drag(const QPoint &globalPos);
    void layOutStrips();
    void followTarget(QEvent *event);
    [[nodiscard]] QSize smallestSize() const;

    QWidget *m_target;
    std::array<Strip, 8> m_strips;
    int m_dragMode{NoDrag};
    QPoint m_topLeft;     // of the strips' outer rectangle
    QPoint m_bottomRight; // just outside it
    QSize m_minSize{480, 270};
};
