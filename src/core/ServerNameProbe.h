// Whether a live server stands behind a local name.
#pragma once

#include <QString>

enum class ServerState { Free, Dead, Alive };

// Free: nothing has the name. Dead: a socket file without a listener. Alive: somebody listens, be it that he
// does not answer. Waits at most the given time.
[[nodiscard]] ServerState probeServerName(const QString &name, int timeoutMs);
