// The buttons of the transport bar, one row each.
#pragma once

#include "NormalOperateBar.h"

#include <vector>

struct OperateBarRow {
    NormalOperateBar::Button button;
    TransportPlace place;
    const char *objectName;
    const char *icon; // in the resource file
    int iconSize;     // design pixels
    const char *tip;
    int hotKey; // KeyOperateType, -1 without one
    void (NormalOperateBar::*clicked)();
    bool checkable;
    bool primary;
    bool needsSource;
};

namespace OperateBarRows {

// In the order in which the keyboard goes through them.
[[nodiscard]] const std::vector<OperateBarRow> &all();

} // namespace OperateBarRows
