// The picture modes above those of the engine: fixed ratios, shown through the engine's custom mode.
#pragma once

#include <optional>

namespace ViewModes {

// The ratio of the modes 8 to 13.
[[nodiscard]] std::optional<double> fixedRatio(int mode);

// Modes that the engine knows itself.
[[nodiscard]] bool isPreset(int mode);

} // namespace ViewModes
