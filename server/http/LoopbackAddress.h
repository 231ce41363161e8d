// The address that only this machine reaches, in the form in which a socket is bound to it.
#pragma once

#include <QByteArray>
#include <QtGlobal>

// The bytes of a sockaddr_in.
[[nodiscard]] QByteArray loopbackAddress(quint16 port);
