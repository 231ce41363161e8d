// Where a source was left that is stopped while the program closes, when no queued slot runs any more.
//
// It listens from the moment that the player is known, on the player's own threads; what it hears counts
// between begin() and end() alone. Both are for the GUI thread.
#pragma once

#include "playcontrol/PositionStore.h"
#include "player/QPlayer.h"

#include <QObject>

#include <mutex>
#include <optional>

class LastStop final : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    void connectPlayer(const QPlayer *player);

    void begin();
    // The last stop since begin(), nothing without one.
    [[nodiscard]] std::optional<PositionStore::Stop> end();

    [[nodiscard]] static PositionStore::Stop stopOf(const vdStopPlayInfo &info, const QImage &lastFrame);

private:
    void keep(const vdStopPlayInfo &info);

    const QPlayer *m_player{nullptr};
    std::mutex m_mutex; // guards what follows
    bool m_isListening{false};
    std::optional<PositionStore::Stop> m_stop;
};
