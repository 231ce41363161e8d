// A picture that libmpv handed out, turned into what the contract wants. Owns its pixels; a plain value.
#pragma once

#include "MpvValue.h"

#include <vector>

struct LastFrame {
    enum class Order { Bgra, Rgba };

    std::vector<unsigned char> pixels; // four bytes a pixel, opaque, rows without padding
    int width = 0;
    int height = 0;

    [[nodiscard]] bool isNull() const { return pixels.empty(); }

    // From the answer to "screenshot-raw". Null when that holds no picture.
    [[nodiscard]] static LastFrame read(const MpvValue &answer, Order order);

    // The picture inside a box, ratio kept; unchanged where a side is 0 or less.
    [[nodiscard]] LastFrame scaledInto(int boxWidth, int boxHeight) const;
};
