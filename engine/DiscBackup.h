// Copies one disc or image, sector by sector, into an image file.
//
// Owns the thread that copies. State may be asked from any thread and answers at once.
#pragma once

#include "BackupFile.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <thread>

class DiscBackup final {
public:
    // Reads at an offset like LocalFile::readAt().
    class Source {
    public:
        virtual ~Source() = default;
        [[nodiscard]] virtual std::int64_t size() const = 0;
        virtual std::int64_t readAt(std::int64_t offset, void *buffer, std::size_t bytes) = 0;
    };

    // The bytes of a device or an image; null for all that is no disc, and for folders, which have no
    // sectors.
    [[nodiscard]] static std::unique_ptr<Source> openSource(const std::string &path);

    // Null when the target cannot be written.
    [[nodiscard]] static std::unique_ptr<DiscBackup> start(std::unique_ptr<Source> source,
                                                           const std::string &target, bool replace);
    DiscBackup(const DiscBackup &) = delete;
    DiscBackup &operator=(const DiscBackup &) = delete;
    // Stops and waits; a file that is not whole is gone then.
    ~DiscBackup();

    // 0 to 1.0.
    [[nodiscard]] double progress() const;
    [[nodiscard]] bool isFinished() const { return m_state == State::Finished; }
    [[nodiscard]] bool isFailed() const { return m_state == State::Failed; }
    [[nodiscard]] bool isRunning() const { return m_state == State::Running; }

private:
    enum class State { Running, Finished, Failed };

    DiscBackup() = default;
    void run();
    bool copy();
    bool readChunk(std::int64_t offset, std::size_t bytes, char *buffer);

    std::unique_ptr<Source> m_source;
    BackupFile m_file;
    std::string m_target;
    std::int64_t m_size{0};
    std::atomic<std::int64_t> m_done{0};
    std::atomic<State> m_state{State::Running};
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};
