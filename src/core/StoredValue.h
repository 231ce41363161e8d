// What a value of the settings file stands for. The file holds texts; a flag is told as "true" and "false"
// and was a number once. Pure functions; nothing is given for a value that is none of the kind asked for.
#pragma once

#include <QVariant>

#include <optional>

namespace StoredValue {

[[nodiscard]] std::optional<int> number(const QVariant &value);
[[nodiscard]] std::optional<bool> flag(const QVariant &value);

} // namespace StoredValue
