// What the player holds of the library, as JSON in a stable order: records by the number of their id, keys by
// name.
#pragma once

#include <QJsonObject>

class MediaServerManager;

namespace LibraryReport {

[[nodiscard]] QJsonObject of(const MediaServerManager &manager);

} // namespace LibraryReport
