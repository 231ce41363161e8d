// The text of a sidecar whose encoding nobody tells, or tells wrongly.
//
// A byte order mark decides; else valid UTF-8 is UTF-8; else the declared 8-bit encoding, else the system's,
// else Windows-1252. Pure but for the system's locale; any thread.
#pragma once

#include <QByteArray>
#include <QString>

namespace TextDecoder {

// declared: a name of an encoding, or empty.
[[nodiscard]] QString decode(const QByteArray &bytes, const QByteArray &declared = {});

} // namespace TextDecoder
