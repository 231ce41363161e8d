#include "EngineSettings.h"

#include <algorithm>

void EngineSettings::setOption(const std::string &name, MpvValue value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    MpvValue &stored = m_options[name];
    stored = std::move(value);
    for (Follower *follower : m_followers)
        follower->optionChanged(name, stored);
}

MpvMap EngineSettings::options() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_options;
}

void EngineSettings::change(const std::function<void(PlayPreferences &)> &edit)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    edit(m_preferences);
    for (Follower *follower : m_followers)
        follower->preferencesChanged();
}

PlayPreferences EngineSettings::preferences() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_preferences;
}

void EngineSettings::follow(Follower *follower)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_followers.push_back(follower);
}

void EngineSettings::unfollow(Follower *follower)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_followers.erase(std::remove(m_followers.begin(), m_followers.end(), follower), m_followers.end());
}
