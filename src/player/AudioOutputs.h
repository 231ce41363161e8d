// What follows from the sound devices of this machine: which one is meant, whether it takes compressed sound,
// and which formats. Stateless; the list itself is asked once and kept by QPlayer::audioDevices().
#pragma once

#include "QPlayerTypes.h"

#include <optional>

namespace AudioOutputs {

using Devices = QList<PlayerAudioDevice>;

// The device of that name; the first one when there is none of that name. Nothing without devices.
[[nodiscard]] std::optional<PlayerAudioDevice> choose(const Devices &devices, const QString &name);

[[nodiscard]] bool contains(const Devices &devices, const QString &name);

// Those of one libvp::VD_AudioConnection.
[[nodiscard]] Devices ofConnection(const Devices &devices, int connection);

// Only digital connections carry compressed sound.
[[nodiscard]] bool allowsPassThrough(int connection);

// Bits as in libvp::VD_AudioCapability.
[[nodiscard]] unsigned codecMask(bool ac3, bool dts, bool trueHd);

// What the engine is told to pass through: the formats that the receiver takes, and the device can carry.
[[nodiscard]] int codecValue(int connection, unsigned capability, unsigned mask);

} // namespace AudioOutputs
