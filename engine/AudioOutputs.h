// The sound devices of this machine as the player lists them, and what of them libmpv is told.
//
// Read at the first need, which waits for the sound system, and not again once there are any. May be used
// from any thread.
#pragma once

#include "MpvValue.h"

#include "contract/VDRecords.h"

#include <functional>
#include <mutex>
#include <string>
#include <vector>

class AudioOutputs final {
public:
    // read: libmpv's property "audio-device-list".
    explicit AudioOutputs(std::function<MpvValue()> read)
        : m_read(std::move(read))
    {
    }

    // The first one leaves the choice to the sound system; empty while that tells of none. Valid as long as
    // this object.
    const libvp::VDAudioDeviceList &devices();

    // libmpv's name of a device, empty when there is none of that name.
    [[nodiscard]] std::string nativeName(const std::string &name);

    // Connection that a device's names tell of.
    [[nodiscard]] static int connectionOf(const std::string &nativeName, const std::string &description);

    // Formats to pass through for a mask of VD_AudioCapability.
    [[nodiscard]] static std::string passThroughFormats(unsigned mask);

    // Channel layouts for 0 stereo, 1 5.1, 2 7.1.
    [[nodiscard]] static std::string channelLayouts(int layout);

private:
    void readOnce();

    std::function<MpvValue()> m_read;
    std::mutex m_mutex;
    std::vector<libvp::VDAudioDevice> m_devices;
    std::vector<std::string> m_nativeNames; // same order
    libvp::VDAudioDeviceList m_list;
    // Apart from the other: an answer that was given is not written to any more.
    const libvp::VDAudioDeviceList m_none;
};
