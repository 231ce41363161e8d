// A program that is measured: started, looked at from outside, ended. Its output is thrown away.
//
// Owns the process: what still runs when the object goes is killed. One thread.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

class ChildProcess final {
public:
    // The variables ("NAME=value") are set on top of this process's own.
    ChildProcess(const std::vector<std::string> &command, const std::vector<std::string> &variables);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    [[nodiscard]] pid_t id() const { return m_id; }
    [[nodiscard]] bool isRunning();

    // Seconds of processor time so far, of all its threads, in user and kernel mode.
    [[nodiscard]] double processorSeconds() const;
    // Largest resident size so far, in megabytes.
    [[nodiscard]] double peakMemory() const;

    // Waits until it ends by itself. False when the time is over first.
    [[nodiscard]] bool waitForEnd(double seconds);

private:
    pid_t m_id{-1};
    int m_handle{-1}; // readable once the process has ended
};
