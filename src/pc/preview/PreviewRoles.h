// What a row of the strip's model holds; the text of the row is its time as "00:00:00".
#pragma once

#include <Qt>

namespace PreviewRoles {

inline constexpr int Picture = Qt::UserRole + 1; // QByteArray: a PNG file, empty where there is no picture
inline constexpr int Seconds = Qt::UserRole + 2; // int
inline constexpr int Playing = Qt::UserRole + 3; // bool: the part of the source that plays now

} // namespace PreviewRoles
