// Turns the key presses of the whole application into operations, and raw mouse events into "the mouse moves"
// and "the mouse rests".
//
// Installed on the application object at start. In PC mode it only watches: a key counts when it reaches the
// main window or one of the bars over the picture, and every event goes on. In TV mode keys never reach the
// widgets. One object a process, on the GUI thread.
#pragma once

#include "KeyOperateType.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

class QKeyEvent;
class QWheelEvent;

class AppEventFilter final : public QObject {
    Q_OBJECT
public:
    // Reads the stored map of a mode; true asks for the TV map.
    using MapReader = std::function<KeyMap(bool tv)>;

    static AppEventFilter *instance();

    // A filter over a map store of its own.
    explicit AppEventFilter(MapReader reader, QObject *parent = nullptr);

    void setIsPcMode(bool pcMode) { m_pcMode = pcMode; }
    void setMouseMoveEnabled(bool enabled) { m_mouseMoveEnabled = enabled; }
    void setKeyEnabled(bool enabled) { m_keyEnabled = enabled; }
    void setKeyBlocked(bool blocked) { m_keyBlocked = blocked; }
    void setOnlyUpDown(bool onlyUpDown) { m_onlyUpDown = onlyUpDown; }

    // The window whose keys count in PC mode, and what a turn of the wheel over it does: the argument is the
    // number of volume steps.
    void setMainWindow(QWidget *window, std::function<void(int)> changeVolume);

    // Asked before a key of PC mode becomes an operation: whether a part of the window that has the keyboard
    // takes the key for itself. Empty while there is no such part.
    void setKeyOwner(std::function<bool(const QKeyEvent &)> takesKey) { m_takesKey = std::move(takesKey); }
    // The key of PC mode that is on its way to the window belongs to an operation, which has had it: whoever
    // receives the key does nothing of its own with it.
    [[nodiscard]] bool isKeySpent() const { return m_isKeySpent; }

    // No event is turned into an operation any more: the window is about to go.
    void stop();

    [[nodiscard]] QString keyText(bool tv, int type) const;
    [[nodiscard]] QKeySequence keySequence(bool tv, int type) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void SLOT_TvUpdateKeyMap();
    void SLOT_PcUpdateKeyMap();
    void SLOT_timeOut();

signals:
    void SIG_TvkeyOperate(KeyOperateType type);
    void SIG_PcKeyOperate(KeyOperateType type);
    void SIG_mouseMove();
    void SIG_mouseStopMove();

private:
    [[nodiscard]] bool isMainWidgetOrBar(const QObject *watched) const;
    [[nodiscard]] bool belongsToMainWidget(const QObject *watched) const;
    void handlePcKey(const QKeyEvent *event);
    bool handleTvKey(const QKeyEvent *event);
    void handleWheel(const QWheelEvent *event);
    void countMouseMove();

    bool m_keyBlocked{false};
    bool m_keyEnabled{true};
    bool m_pcMode{true};
    bool m_mouseMoveEnabled{true};
    bool m_onlyUpDown{false};
    KeyMap m_tvKeyMap;
    KeyMap m_pcKeyMap;
    QTimer m_stopTimer;
    int m_moveCount{0};
    QPointer<QWidget> m_mainWidget;
    std::function<void(int)> m_changeVolume;
    std::function<bool(const QKeyEvent &)> m_takesKey;
    bool m_isKeySpent{false};
    MapReader m_reader;
};
