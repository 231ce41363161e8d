// The thumbnail sessions by their handles. Every operation may be called from any thread; only the session
// itself is waited for, never another one.
#pragma once

#include "ThumbnailSession.h"

#include <map>
#include <memory>
#include <mutex>

class ThumbnailSessions final {
public:
    // More sessions than this at a time are refused: a caller that forgets to close must not eat all memory.
    static constexpr std::size_t MostSessions = 32;

    ThumbnailSessions() = default;
    ThumbnailSessions(const ThumbnailSessions &) = delete;
    ThumbnailSessions &operator=(const ThumbnailSessions &) = delete;
    ~ThumbnailSessions() { closeAll(); }

    // Handle from 1, 0 when it cannot be opened.
    int open(const ThumbnailSession::Request &request);
    void close(int handle);
    void closeAll();
    bool grab(int handle, int positionMs, bool exact, Picture &picture);

private:
    [[nodiscard]] std::shared_ptr<ThumbnailSession> take(int handle);

    std::mutex m_mutex;
    std::map<int, std::shared_ptr<ThumbnailSession>> m_sessions;
    int m_lastHandle{0};
};
