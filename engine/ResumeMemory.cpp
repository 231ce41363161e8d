#include "ResumeMemory.h"

#include <algorithm>

void ResumeMemory::store(const std::string &source, const Choice &choice)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                   [&](const Entry &entry) { return entry.source == source; }),
                    m_entries.end());
    m_entries.push_front({source, choice});
    if (m_entries.size() > capacity)
        m_entries.pop_back();
}

std::optional<ResumeMemory::Choice> ResumeMemory::find(const std::string &source) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry &entry) { return entry.source == source; });
    if (found == m_entries.end())
        return std::nullopt;
    return found->choice;
}
