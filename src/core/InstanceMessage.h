// The texts on the local socket: what another copy of the program or the updater says, and what goes to the
// updater. Pure functions.
#pragma once

#include "CommunicationManager.h"

#include <QString>

namespace InstanceMessage {

inline constexpr char ServerName[] = "Quorin Player 5 Server";
inline constexpr char UpdaterServerName[] = "Quorin Player Update Server";
inline constexpr char UpdaterMark[] = "[#PAndU#]";
inline constexpr char StartPlayer[] = "StartPlayer";
inline constexpr char Greeting[] = "Hello Client";

enum class Kind {
    // From the updater; the type is 0 when it is not a number.
    Tagged,
    // Carries the updater's mark, but not in its form.
    BrokenTag,
    // Another copy was started without a file.
    Activate,
    // Anything else, perhaps a path.
    Text,
};

struct Parsed {
    Kind kind{Kind::Text};
    int type{0};
    QString payload;
};

[[nodiscard]] Parsed parse(const QString &text);

// The tagged form of a message to the updater.
[[nodiscard]] QString tagged(SendMsgType type, const QString &payload = {});

} // namespace InstanceMessage
