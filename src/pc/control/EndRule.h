// What follows the end of a source.
#pragma once

#include <QString>

#include <functional>

namespace EndRule {

enum class Next {
    CloseWindow,
    PlayNextEpisode, // at once, the queue is not asked
    AskQueue         // which may have nothing more
};

struct State {
    bool closeAtEnd{false}; // asked for by the command line
    QString nextEpisode;    // path, empty when there is none or the user does not want it
};

// exists tells whether a path is there to be played; it is asked only where the answer counts.
[[nodiscard]] Next after(const State &state, const std::function<bool(const QString &)> &exists);

} // namespace EndRule
