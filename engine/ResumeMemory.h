// Track choices of the sources that were open in this process, to be taken up when they are opened again.
// May be used from any thread. Keeps the newest ones only.
#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <string>

class ResumeMemory final {
public:
    static constexpr std::size_t capacity = 500;

    struct Choice {
        int audio = -1;    // index, -1: the source's own
        int subtitle = -1; // index, VD_NoSubtitle, -1: the source's own
        int angle = -1;
    };

    void store(const std::string &source, const Choice &choice);
    [[nodiscard]] std::optional<Choice> find(const std::string &source) const;

private:
    struct Entry {
        std::string source;
        Choice choice;
    };

    mutable std::mutex m_mutex;
    std::deque<Entry> m_entries; // newest first
};
