// Which port the server listens on: the agreed one, unless the environment names another.
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace PortChoice {

inline constexpr char Variable[] = "QUORIN_LIBRARY_PORT";

// 0 to 65535 in decimal; 0 lets the system choose. Empty gives the fallback; anything else is logged and
// gives it too.
[[nodiscard]] quint16 read(const QByteArray &text, quint16 fallback);

} // namespace PortChoice
