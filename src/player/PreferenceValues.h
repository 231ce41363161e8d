// What a stored value is worth: the one reading of it, for what hands it to the engine and for the page that
// shows it. Stateless; any thread.
#pragma once

#include "PreferenceRows.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace PreferenceValues {

// Nothing for a value that is none of its kind: the row's default takes its place.

// A whole number within the row's range, a flag counting as 1 and 0.
[[nodiscard]] std::optional<int> number(const NumberRow &row, const QVariant &stored);
// "#rrggbb".
[[nodiscard]] std::optional<QString> color(const QVariant &stored);

} // namespace PreferenceValues
