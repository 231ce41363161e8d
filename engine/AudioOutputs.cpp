#include "AudioOutputs.h"

#include "contract/VDTypes.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace {

using namespace libvp;

struct ConnectionRow {
    const char *word; // lower case
    int connection;
};

// The first word that stands in a device's name or description decides.
constexpr ConnectionRow connectionRows[] = {
    {"displayport", VD_Connection_DisplayPort},
    {"display port", VD_Connection_DisplayPort},
    {"hdmi", VD_Connection_Hdmi},
    {"iec958", VD_Connection_Optical},
    {"spdif", VD_Connection_Optical},
    {"s/pdif", VD_Connection_Optical},
    {"optical", VD_Connection_Optical},
    {"toslink", VD_Connection_Optical},
    {"digital output", VD_Connection_Optical},
};

struct FormatRow {
    unsigned bit;
    const char *formats;
};

constexpr FormatRow formatRows[] = {
    {VD_Capability_AC3, "ac3,eac3"}, {VD_Capability_DTS, "dts"}, {VD_Capability_TrueHD, "truehd,dts-hd"}};

// Fewer channels where the device has no more.
constexpr const char *layouts[] = {"stereo", "5.1,stereo", "7.1,5.1,stereo"};

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

unsigned capabilityOf(int connection)
{
    switch (connection) {
    case VD_Connection_Optical:
        return VD_Capability_AC3 | VD_Capability_DTS;
    case VD_Connection_Hdmi:
    case VD_Connection_DisplayPort:
        return VD_Capability_AC3 | VD_Capability_DTS | VD_Capability_TrueHD;
    default:
        return 0;
    }
}

} // namespace

void AudioOutputs::readOnce()
{
    // A sound system that was not there yet may be at the next question.
    if (!m_devices.empty())
        return;
    const MpvValue list = m_read();
    for (const MpvValue &entry : list.list()) {
        const std::string &nativeName = entry.at("name").text();
        std::string name = entry.at("description").text();
        if (nativeName.empty())
            continue;
        if (name.empty())
            name = nativeName;
        const auto isTaken = [this](const std::string &text) {
            return std::any_of(m_devices.begin(), m_devices.end(),
                               [&text](const VDAudioDevice &device) { return text == device.name; });
        };
        // The settings store the name: it must tell the devices apart.
        if (isTaken(name))
            name += " (" + nativeName + ")";
        VDAudioDevice device;
        device.connection = connectionOf(nativeName, name);
        device.capability = capabilityOf(device.connection);
        std::size_t length = std::min(name.size(), sizeof device.name - 1);
        while (length > 0 && length < name.size()
               && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80)
            --length;
        std::copy_n(name.data(), length, device.name);
        m_devices.push_back(device);
        m_nativeNames.push_back(nativeName);
    }
    if (m_devices.empty())
        return;
    m_list.count = static_cast<int>(m_devices.size());
    m_list.devices = m_devices.data();
}

const VDAudioDeviceList &AudioOutputs::devices()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    readOnce();
    return m_devices.empty() ? m_none : m_list;
}

std::string AudioOutputs::nativeName(const std::string &name)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    readOnce();
    for (std::size_t i = 0; i < m_devices.size(); ++i) {
        if (name == m_devices[i].name)
            return m_nativeNames[i];
    }
    return {};
}

int AudioOutputs::connectionOf(const std::string &nativeName, const std::string &description)
{
    const std::string text = lower(nativeName + " " + description);
    for (const ConnectionRow &row : connectionRows) {
        if (text.find(row.word) != std::string::npos)
            return row.connection;
    }
    return VD_Connection_Analog;
}

std::string AudioOutputs::passThroughFormats(unsigned mask)
{
    std::string formats;
    for (const FormatRow &row : formatRows) {
        if (mask & row.bit)
            formats += (formats.empty() ? "" : ",") + std::string(row.formats);
    }
    return formats;
}

std::string AudioOutputs::channelLayouts(int layout)
{
    const int index = layout >= 0 && layout < static_cast<int>(std::size(layouts)) ? layout : 0;
    return layouts[index];
}
