#include "StoredPreferences.h"

#include "PreferenceValues.h"

#include "core/SettingsManager.h"
#include "core/StoredValue.h"

#include <QDebug>

namespace {

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
    if (const std::optional<bool> flag = StoredValue::flag(value))
        return *flag;
    tellUnusable(row.key, value, row.fallback);
    return row.fallback;
}

int StoredPreferences::number(const NumberRow &row)
{
    const QVariant value = stored(row.key, row.fallback);
    if (!value.isValid())
        return row.fallback;
    const int taken = PreferenceValues::number(row, value).value_or(row.fallback);
    if (StoredValue::number(value) != taken)
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
    const QString color = text(row);
    if (const std::optional<QString> taken = PreferenceValues::color(color))
        return *taken;
    tellUnusable(row.key, color, QLatin1String(row.fallback));
    return QLatin1String(row.fallback);
}
