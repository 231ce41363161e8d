#include "InstanceMessage.h"

InstanceMessage::Parsed InstanceMessage::parse(const QString &text)
{
    const QString mark = QString::fromLatin1(UpdaterMark);
    if (!text.contains(mark)) {
        const bool activate = text.compare(QLatin1String(StartPlayer), Qt::CaseInsensitive) == 0;
        return {activate ? Kind::Activate : Kind::Text, 0, text};
    }
    const int colon = text.indexOf(QLatin1Char(':'));
    QString head = text.left(colon);
    if (colon < 0 || !head.contains(mark))
        return {Kind::BrokenTag, 0, {}};
    return {Kind::Tagged, head.remove(mark).toInt(), text.mid(colon + 1)};
}

QString InstanceMessage::tagged(SendMsgType type, const QString &payload)
{
    return QString::fromLatin1(UpdaterMark) + QString::number(static_cast<int>(type)) + QLatin1Char(':')
           + payload;
}
