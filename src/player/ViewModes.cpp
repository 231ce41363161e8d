#include "ViewModes.h"

#include "contract/VDTypes.h"

#include <iterator>

namespace ViewModes {

namespace {

constexpr int firstFixed = 8;
constexpr double ratios[] = {1.0, 1.6, 2.21, 2.35, 2.39, 1.25};

} // namespace

std::optional<double> fixedRatio(int mode)
{
    const int row = mode - firstFixed;
    if (row < 0 || row >= static_cast<int>(std::size(ratios)))
        return std::nullopt;
    return ratios[row];
}

bool isPreset(int mode)
{
    return mode >= libvp::VD_View_Default && mode <= libvp::VD_View_2_35;
}

} // namespace ViewModes
