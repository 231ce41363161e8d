// Rewrites the pixel lengths of a style sheet for a display scale.
#pragma once

#include <QString>

namespace StyleSheetScaler {

// Every whole length in "px" that follows a blank or a colon, times the ratio and cut to whole pixels; a
// ratio of exactly 1 leaves the text byte for byte. Lengths that follow anything else, such as a comma, stay:
// a sheet uses that for what must not scale.
[[nodiscard]] QString scaled(const QString &sheet, float ratio);

} // namespace StyleSheetScaler
