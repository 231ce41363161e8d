// Arguments of the output's operations, made safe.
#pragma once

#include <cmath>
#include <string>

namespace ToolArguments {

// Null counts as empty.
[[nodiscard]] inline std::string textOf(const char *text)
{
    return text ? text : "";
}

[[nodiscard]] inline float finiteOr(float value, float fallback)
{
    return std::isfinite(value) ? value : fallback;
}

} // namespace ToolArguments
