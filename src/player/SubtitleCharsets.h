// The character sets that the user can choose for subtitle files, and what the engine is told for them.
#pragma once

#include <QString>

#include <vector>

namespace SubtitleCharsets {

struct Row {
    const char *name; // as the user reads it; translated in the context "SubtitleCharsets"
    int codePage;     // of Windows, 0: found out for each file
};

[[nodiscard]] const std::vector<Row> &rows();

// Text of the code for the engine: of a stored code or of a stored name. "0" for what is neither, with a line
// in the log.
[[nodiscard]] QString code(const QString &stored);

} // namespace SubtitleCharsets
