// Carries out one order to play off the GUI thread, ahead of everything else the process does. GUI thread but
// for run().
#pragma once

#include "player/PlayOrder.h"

#include <QThread>

class DeferredSetup;

class TvPlayingThread final : public QThread {
    Q_OBJECT
public:
    explicit TvPlayingThread(DeferredSetup &setUp, QObject *parent = nullptr);
    ~TvPlayingThread() override;

    // False while an earlier order is being carried out.
    bool start(const PlayOrder &order);

protected:
    void run() override;

private:
    DeferredSetup &m_setUp;
    PlayOrder m_order;
};
