// Brings the engine up without holding up the window: loads the library, sets the output up and hands over
// the stored preferences on a worker, and comes back to the GUI thread in between to hand over the native
// window.
//
// Lives on the GUI thread; both faces own one. waitUntilDone() is for the thread that plays: a request that
// comes before the engine is up waits there and not in the window.
#pragma once

#include "core/QSimpleThreadPack.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <atomic>
#include <condition_variable>
#include <mutex>

class QPlayer;

class DeferredSetup final : public QObject {
    Q_OBJECT
public:
    // surface: the widget with the native window, on the GUI thread.
    explicit DeferredSetup(QWidget *surface, QObject *parent = nullptr);
    ~DeferredSetup() override;

    // Begins; once. The signals tell the rest.
    void start();
    // Takes the next step now if the worker has done its own, without a turn of the event loop between them:
    // for a window that is complete before its first turn.
    void goOn();

    // The program's player once it has been made; null before.
    [[nodiscard]] QPlayer *player() const { return m_player; }
    [[nodiscard]] bool hasStarted() const { return m_started; }
    [[nodiscard]] bool hasFailed() const { return m_outcome == Failed; }

    // Any thread but the GUI thread: waits for the end of the set-up. False when it failed or was given up.
    [[nodiscard]] bool waitUntilDone();

    // GUI thread: waits for the worker, lets those who wait go, and does no further step.
    void cancel();

signals:
    // The player exists: time to connect to it.
    void playerMade(QPlayer *player);
    void ready();
    void failed();

private:
    enum Outcome { Pending, Ready, Failed, Cancelled };

    static void setUpOutput(void *player);
    static void applyPreferences(QPlayer &output);
    static void applyWaitingSound(void *player);
    void finish(Outcome outcome);

    QPointer<QWidget> m_surface;
    QSimpleThreadPack m_worker;
    QPlayer *m_player{nullptr};
    bool m_started{false};
    bool m_toolStep{false};
    std::mutex m_mutex;
    std::condition_variable m_done;
    std::atomic<Outcome> m_outcome{Pending};
};
