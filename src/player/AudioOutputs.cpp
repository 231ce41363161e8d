#include "AudioOutputs.h"

#include <algorithm>

namespace {

auto named(const QString &name)
{
    return [&name](const PlayerAudioDevice &device) { return device.name == name; };
}

} // namespace

namespace AudioOutputs {

std::optional<PlayerAudioDevice> choose(const Devices &devices, const QString &name)
{
    if (devices.isEmpty())
        return std::nullopt;
    const auto found = std::find_if(devices.begin(), devices.end(), named(name));
    return found == devices.end() ? devices.first() : *found;
}

bool contains(const Devices &devices, const QString &name)
{
    return std::any_of(devices.begin(), devices.end(), named(name));
}

Devices ofConnection(const Devices &devices, int connection)
{
    Devices chosen;
    std::copy_if(devices.begin(), devices.end(), std::back_inserter(chosen),
                 [connection](const PlayerAudioDevice &device) { return device.connection == connection; });
    return chosen;
}

bool allowsPassThrough(int connection)
{
    return connection != libvp::VD_Connection_None && connection != libvp::VD_Connection_Analog;
}

unsigned codecMask(bool ac3, bool dts, bool trueHd)
{
    return (ac3 ? unsigned{libvp::VD_Capability_AC3} : 0U) | (dts ? unsigned{libvp::VD_Capability_DTS} : 0U)
           | (trueHd ? unsigned{libvp::VD_Capability_TrueHD} : 0U);
}

int codecValue(int connection, unsigned capability, unsigned mask)
{
    return allowsPassThrough(connection) ? static_cast<int>(capability & mask) : 0;
}

} // namespace AudioOutputs
