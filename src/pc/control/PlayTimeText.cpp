#include "PlayTimeText.h"

#include <QStringList>

namespace PlayTimeText {

namespace {

constexpr int MostDigits = 6; // of one group; keeps the sum far from any overflow

std::optional<qint64> secondsOf(const QString &text)
{
    const QStringList groups = text.trimmed().split(QLatin1Char(':'));
    if (groups.size() > 3)
        return std::nullopt;
    qint64 seconds = 0;
    for (const QString &group : groups) {
        if (group.isEmpty() || group.size() > MostDigits)
            return std::nullopt;
        for (const QChar c : group) {
            if (c < QLatin1Char('0') || c > QLatin1Char('9'))
                return std::nullopt;
        }
        seconds = seconds * 60 + group.toInt();
    }
    return seconds;
}

} // namespace

std::optional<Times> parse(const QString &metaText)
{
    const QStringList parts = metaText.split(QLatin1Char('/'));
    if (parts.size() != 2)
        return std::nullopt;
    const auto position = secondsOf(parts.at(0));
    const auto total = secondsOf(parts.at(1));
    if (!position || !total)
        return std::nullopt;
    return Times{*position, *total};
}

} // namespace PlayTimeText
