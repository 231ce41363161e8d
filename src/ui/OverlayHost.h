// Keeps everything that hovers over the picture in its place.
//
// The engine draws into a native window, above which no child widget can be translucent. So each overlay
// becomes a frameless translucent tool window that takes no activation. The host owns none of them (the main
// window does); it places them over an area of the main window and follows its moves, sizes, states and
// screens, keeps them in the order of their levels, fades them where the display blends windows and cuts them
// to their opaque shape where it does not. Clicks on the shade of an overlay go on to the picture. GUI
// thread.
#pragma once

#include "OverlayRule.h"

#include <QObject>
#include <QPointer>
#include <QVariantAnimation>

#include <functional>
#include <memory>
#include <vector>

class QMouseEvent;
class QWidget;

class OverlayHost final : public QObject {
    Q_OBJECT

public:
    using CompositingQuery = std::function<bool()>;

    // mainWindow: the top-level window, which becomes the parent. area: the widget of it that shows the
    // picture; the whole window without one.
    explicit OverlayHost(QWidget *mainWindow, QWidget *area = nullptr);
    ~OverlayHost() override;

    // Takes an overlay in, hidden. An OverlayWidget is shown and hidden by what it wants from then on.
    void add(QWidget *overlay, const OverlayRule &rule);
    void setRule(QWidget *overlay, const OverlayRule &rule);
    void setArea(QWidget *area);

    void show(QWidget *overlay);
    void hide(QWidget *overlay);
    // Every overlay, at once and without a fade: the picture goes, or the window closes.
    void hideAll();
    // What was asked for; a minimised window shows no overlay and keeps this.
    [[nodiscard]] bool isShown(const QWidget *overlay) const;
    // True when the pointer, in global coordinates, is on an overlay that is there.
    [[nodiscard]] bool covers(const QPoint &globalPosition) const;

    // Places all overlays anew; called by itself on each change that the host can see.
    void updatePlaces();
    [[nodiscard]] QRect areaRect() const;

    [[nodiscard]] bool isBlending() const { return m_blending; }
    void setCompositingQuery(CompositingQuery query);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Entry {
        QPointer<QWidget> widget;
        OverlayRule rule;
        bool wanted{false};
        std::unique_ptr<QVariantAnimation> fade;
    };

    [[nodiscard]] Entry *find(const QObject *overlay);
    [[nodiscard]] const Entry *find(const QObject *overlay) const;
    [[nodiscard]] bool isAreaVisible() const;
    void forget(QObject *overlay);
    void apply(Entry &entry, bool animated);
    void applyAll();
    void place(Entry &entry);
    void reveal(Entry &entry, bool animated);
    void conceal(Entry &entry, bool animated);
    void finishFade(Entry &entry);
    void restack();
    void readCompositing();
    void cut(Entry &entry);
    void followScreen();
    void onMainWindowEvent(QEvent *event);
    bool passToPicture(QWidget *overlay, QMouseEvent *event);

    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_area;
    std::vector<std::unique_ptr<Entry>> m_entries;
    CompositingQuery m_query;
    bool m_blending{true};
    QMetaObject::Connection m_screenConnection;
    QPointer<QWidget> m_mouseGrabber;
};
