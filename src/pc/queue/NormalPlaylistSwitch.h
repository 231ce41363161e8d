// The tab at the side of the playing window that opens and closes the queue's panel.
//
// As an overlay it stands at the window's edge, or at the panel's while that is open; it grows under the
// pointer. Knows nothing of the panel: it says that it was clicked, and is told what is open. GUI thread.
#pragma once

#include "ui/AnimateObject.h"
#include "ui/OverlayRule.h"
#include "ui/OverlayWidget.h"

class NormalPlaylistSwitch final : public OverlayWidget, public AnimateObject {
    Q_OBJECT

public:
    explicit NormalPlaylistSwitch(QWidget *parent = nullptr);
    ~NormalPlaylistSwitch() override;

    // Where the tab stands over the picture; level as in OverlayRule.
    [[nodiscard]] static OverlayRule rule(bool isPanelOpen, int level);

    [[nodiscard]] bool isPanelOpen() const { return m_isPanelOpen; }
    // From 0, at rest, to 1, under the pointer.
    [[nodiscard]] double warmth() const { return m_warmth; }
    void retranslate();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QPainterPath opaqueShape() const override;
    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

signals:
    // What the click asks for.
    void sig_switched(bool bOpen);

public slots:
    void slot_setPanelOpen(bool bOpen);

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] QRectF tabRect() const;
    void setWarmth(double value);

    double m_warmth{0.0};
    bool m_isPanelOpen{false};
    bool m_isPressed{false};
};
