// The part of the start-up that no window waits for: proxy, usage report, update check.
//
// Runs once on a thread of its own, which nobody joins: the process may end while it still waits for the
// network. One object a process, never destroyed, and what the thread works with is owned by the thread
// itself.
#pragma once

#include "core/Singleton.h"
#include "online/ProxyConfiguration.h"

#include <atomic>
#include <functional>

struct BackgroundTasks {
    std::function<ProxyConfiguration()> readProxy;
    std::function<void(const ProxyConfiguration &)> applyProxy;
    std::function<void()> reportUsage;
    std::function<bool()> wantsUpdateCheck;
    std::function<void()> checkUpdate;
};

class BackgroundStart final : public Singleton<BackgroundStart> {
public:
    // The steps in their order, on the caller's thread.
    static void runSteps(const BackgroundTasks &tasks);

    // The steps on a thread of their own. Once a process.
    void start(BackgroundTasks tasks);

    // True from start() until the last step has ended.
    [[nodiscard]] bool isRunning() const { return m_running; }

private:
    friend class Singleton<BackgroundStart>;
    BackgroundStart() = default;

    std::atomic<bool> m_running{false};
};
