#include "StoredPreferences.h"

#include "core/SettingsManager.h"

#include <QDebug>
#include <QRegularExpression>

#include <optional>

namespace {

// The file holds texts; a flag is told as "true" and "false" and was a number once.
std::optional<int> readNumber(const QVariant &value)
{
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? 1 : 0;
    const QString text = value.toString().trimmed();
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return 1;
    if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return 0;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? std::make_optional(number) : std::nullopt;
}

void tellUnusable(const char *key, const QVariant &value, const QVariant &taken)
{
    constexpr int longest = 80;
    qInfo().noquote().nospace() << "[Engine config] " << key
                                << " holds no usable value: " << value.toString().left(longest)
                                << "; taken: " << taken.toString();
}

} // namespace

QVariant StoredPreferences::stored(const char *key, const QVariant &fallback)
{
    const QString name = QLatin1String(key);
    if (m_settings.contains(name))
        return m_settings.value(name);
    if (m_absent == Absent::IsWritten)
        m_settings.setValue(name, fallback);
    return {};
}

bool StoredPreferences::flag(const FlagRow &row)
{
    const QVariant value = stored(row.key, row.fallback);
    if (!value.isValid())
        return row.fallback;
    if (const std::optional<int> number = readNumber(value))
        return *number != 0;
    tellUnusable(row.key, value, row.fallback);
    return row.fallback;
}

int StoredPreferences::number(const NumberRow &row)
{
    const QVariant value = stored(row.key, row.fallback);
    if (!value.isValid())
        return row.fallback;
    const std::optional<int> number = readNumber(value);
    const int taken = number ? qBound(row.least, *number, row.most) : row.fallback;
    if (number != taken)
        tellUnusable(row.key, value, taken);
    return taken;
}

QString StoredPreferences::text(const TextRow &row)
{
    const QString fallback = QLatin1String(row.fallback);
    const QVariant value = stored(row.key, fallback);
    return value.isValid() ? value.toString() : fallback;
}

QString StoredPreferences::color(const TextRow &row)
{
    static const QRegularExpression form(QStringLiteral("\\A#[0-9a-fA-F]{6}\\z"));
    const QString color = text(row);
    if (form.match(color).hasMatch())
        return color;
    tellUnusable(row.key, color, QLatin1String(row.fallback));
    return QLatin1String(row.fallback);
}
