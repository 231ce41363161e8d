// The least program that can use the engine library: loads it, opens one source in a window and hears of its
// seeks.
//
// Owns the library and everything made by it. Notifications arrive on an engine thread and are handed to the
// waiting one.
#pragma once

#include "contract/Orbix.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

class EngineHost final {
public:
    using Clock = std::chrono::steady_clock;

    EngineHost(const std::string &library, const std::string &logFolder, std::uint32_t window, int width,
               int height);
    ~EngineHost();
    EngineHost(const EngineHost &) = delete;
    EngineHost &operator=(const EngineHost &) = delete;

    // Both wait for the engine's answer; false when it fails or does not come.
    [[nodiscard]] bool open(const std::string &path);
    // Milliseconds from the request to the new picture go into milliseconds.
    [[nodiscard]] bool seek(double seconds, double &milliseconds);

private:
    class Config;
    class Notes;
    class Surface;
    class Output;
    class Events;

    std::unique_ptr<Config> m_config;
    std::unique_ptr<Notes> m_notes;
    std::unique_ptr<Surface> m_surface;
    std::unique_ptr<Output> m_output;
    std::unique_ptr<Events> m_events;
    void *m_library{nullptr};
    libvp::ReleaseVDPlayerFunction m_release{nullptr};
    libvp::IVDEngineCore *m_core{nullptr};
    libvp::IVDPlayTool *m_tool{nullptr};
    libvp::IVDPlay *m_play{nullptr};
};
