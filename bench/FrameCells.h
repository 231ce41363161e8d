// The number of a frame as the clip shows it: a row of cells in the middle of the picture's height, one
// white, the bits of the number from the lowest, one black. scripts/bench draws them.
#pragma once

#include "Screen.h"

#include <optional>

namespace FrameCells {

inline constexpr int Left = 40;
inline constexpr int CellWidth = 40;
inline constexpr int Bits = 12;
inline constexpr int White = 200;
inline constexpr int Black = 56;

// Nothing when the screen does not show such a row.
[[nodiscard]] inline std::optional<int> read(const Screen &screen)
{
    constexpr int cells = Bits + 2;
    const std::vector<std::uint8_t> row =
        screen.brightnessOfRow(Left, screen.height() / 2, cells * CellWidth);
    if (row.empty())
        return std::nullopt;
    int number = 0;
    for (int cell = 0; cell < cells; ++cell) {
        const int brightness = row[std::size_t(cell) * CellWidth + CellWidth / 2];
        const bool isWhite = brightness >= White;
        if ((!isWhite && brightness > Black) || (cell == 0 && !isWhite) || (cell == cells - 1 && isWhite))
            return std::nullopt;
        if (isWhite && cell > 0)
            number |= 1 << (cell - 1);
    }
    return number;
}

} // namespace FrameCells
