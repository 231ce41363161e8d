// What the player has set, for the running play and all later ones: options of libmpv by name, and the
// choices that need more than one. May be used from any thread.
#pragma once

#include "MpvValue.h"
#include "PlayPreferences.h"

#include <functional>
#include <mutex>
#include <vector>

class EngineSettings final {
public:
    // A play that follows the settings. Called on the thread that sets, under the settings' lock: must only
    // pass on.
    class Follower {
    public:
        virtual void optionChanged(const std::string &name, const MpvValue &value) = 0;
        virtual void preferencesChanged() = 0;

    protected:
        ~Follower() = default;
    };

    void setOption(const std::string &name, MpvValue value);
    [[nodiscard]] MpvMap options() const;

    void change(const std::function<void(PlayPreferences &)> &edit);
    [[nodiscard]] PlayPreferences preferences() const;

    void follow(Follower *follower);
    void unfollow(Follower *follower);

private:
    mutable std::mutex m_mutex;
    MpvMap m_options;
    PlayPreferences m_preferences;
    std::vector<Follower *> m_followers;
};
