// Decodes the sound of a source a second time and delivers it when it is heard.
//
// The tap owns one thread; the clock and the sink are called on it alone. The clock tells the position that
// is heard now in seconds, or NaN while nothing is heard (paused, seeking). Where it jumps, the tap follows.
// Samples are interleaved, signed 16 bit or 32-bit float, in the layout and rate of the source.
#pragma once

#include "contract/VDRecords.h"

#include <functional>
#include <memory>
#include <string>

class PcmTap final {
public:
    using Clock = std::function<double()>;
    using Sink = std::function<void(const libvp::VDPcmFrame &)>;

    // ffAudioStreamIndex: index of the stream in the file; below 0 the best audio stream.
    PcmTap(std::string source, int ffAudioStreamIndex, Clock clockSeconds, Sink sink);
    PcmTap(const PcmTap &) = delete;
    PcmTap &operator=(const PcmTap &) = delete;
    // Ends the thread, also while it waits for the file. Must not be called from the sink.
    ~PcmTap();

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};
