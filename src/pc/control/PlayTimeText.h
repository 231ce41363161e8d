// Reads the time meta text of the player: position and total as "hh:mm:ss / hh:mm:ss".
#pragma once

#include <QString>

#include <optional>

namespace PlayTimeText {

struct Times {
    qint64 position{0}; // seconds
    qint64 total{0};    // seconds
};

// Empty for a text of any other form. One to three groups of digits a time are taken: "5", "1:05", "1:02:03".
[[nodiscard]] std::optional<Times> parse(const QString &metaText);

} // namespace PlayTimeText
