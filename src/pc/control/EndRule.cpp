#include "EndRule.h"

namespace EndRule {

Next after(const State &state, const std::function<bool(const QString &)> &exists)
{
    if (state.closeAtEnd)
        return Next::CloseWindow;
    if (!state.nextEpisode.isEmpty() && exists(state.nextEpisode))
        return Next::PlayNextEpisode;
    return Next::AskQueue;
}

} // namespace EndRule
