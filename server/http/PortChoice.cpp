#include "PortChoice.h"

#include <QDebug>

namespace PortChoice {

quint16 read(const QByteArray &text, quint16 fallback)
{
    if (text.isEmpty())
        return fallback;
    bool good = false;
    const ushort port = text.toUShort(&good);
    if (good)
        return port;
    qWarning() << "[http] is no port:" << Variable << text;
    return fallback;
}

} // namespace PortChoice
