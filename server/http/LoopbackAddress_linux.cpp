#include "LoopbackAddress.h"

#include <QtEndian>

#include <netinet/in.h>

QByteArray loopbackAddress(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = qToBigEndian(port);
    address.sin_addr.s_addr = qToBigEndian<quint32>(INADDR_LOOPBACK);
    return {reinterpret_cast<const char *>(&address), int(sizeof address)};
}
