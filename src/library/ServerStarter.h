// Starts the program of the media server as a child process. Owns the process; its output goes nowhere, so
// that nothing fills up that nobody reads.
#pragma once

#include "IServerStarter.h"

#include <atomic>
#include <memory>
#include <mutex>

class QProcess;

class ServerStarter final : public IServerStarter {
public:
    ServerStarter();
    ~ServerStarter() override;

    [[nodiscard]] bool isHeld() const override;
    // Without the file nothing is tried.
    [[nodiscard]] bool start(const QString &program, const QString &dataFolder, int waitMs) override;
    [[nodiscard]] bool isRunning() const override;
    [[nodiscard]] bool startPlain(const QString &program) override;
    void release() override;

private:
    // What the system offers for the second way.
    [[nodiscard]] static bool startBySystem(const QString &program);

    mutable std::mutex m_mutex;
    std::unique_ptr<QProcess> m_process;
    // Of the process that was started last. Set in the thread that notices its end; the process may outlive
    // this.
    std::shared_ptr<std::atomic<bool>> m_isRunning{std::make_shared<std::atomic<bool>>(false)};
};
