// The records that end a play. Stateless.
#pragma once

#include "PlayFacts.h"

#include <string>

namespace PlayReport {

enum class Outcome { ReachedEnd, Closed, Broken };

// Stop record without its picture.
[[nodiscard]] vdStopPlayInfo stopInfo(const std::string &path, double positionSeconds, double totalSeconds,
                                      Outcome outcome);

// The JSON text of IVDPlayCallback::OnStatistics().
[[nodiscard]] std::string statistics(const PlayFacts &facts, double positionSeconds, Outcome outcome,
                                     int openMs, int seeks);

// Milliseconds, within the range of the contract's int.
[[nodiscard]] int milliseconds(double seconds);

// Flags of a plain file.
[[nodiscard]] unsigned fileFlags(const std::string &codec, int width, int height);

} // namespace PlayReport
