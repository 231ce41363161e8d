#include "ServerNameProbe.h"

#include <QLocalSocket>

ServerState probeServerName(const QString &name, int timeoutMs)
{
    QLocalSocket socket;
    socket.connectToServer(name, QIODevice::ReadWrite);
    if (socket.waitForConnected(timeoutMs)) {
        socket.abort();
        return ServerState::Alive;
    }
    switch (socket.error()) {
    case QLocalSocket::ServerNotFoundError:
        return ServerState::Free;
    case QLocalSocket::ConnectionRefusedError:
        return ServerState::Dead;
    default:
        // A time-out or a refused access: someone is there, but busy or somebody else's.
        return ServerState::Alive;
    }
}
