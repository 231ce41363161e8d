#include "SettingBinding.h"

#include "core/SettingsManager.h"
#include "core/StoredValue.h"
#include "player/PreferenceValues.h"

#include <QColor>

#include <algorithm>

namespace {

QVariant asBool(const QVariant &value)
{
    const std::optional<bool> flag = StoredValue::flag(value);
    return flag ? QVariant(*flag) : QVariant();
}

QVariant asInt(const QVariant &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? QVariant(number) : QVariant();
}

// A text that QSettings has read as a list for its commas is not ours.
QVariant asText(const QVariant &value)
{
    return value.canConvert<QString>() && value.type() != QVariant::StringList ? QVariant(value.toString())
                                                                               : QVariant();
}

QVariant asTypeOf(const QVariant &value, const QVariant &pattern)
{
    switch (pattern.type()) {
    case QVariant::Bool:
        return asBool(value);
    case QVariant::Int:
        return asInt(value);
    default:
        return asText(value);
    }
}

} // namespace

SettingBinding::SettingBinding(SettingRow row, QObject *parent)
    : QObject(parent)
    , m_row(std::move(row))
    , m_value(m_row.standard)
    , m_loaded(m_row.standard)
{
}

QString SettingBinding::key() const
{
    return QLatin1String(m_row.key);
}

QVariant SettingBinding::acceptedChoice(const QVariant &value) const
{
    const QVariant typed = asTypeOf(value, m_row.standard);
    const auto has = [&typed](const SettingChoice &choice) { return choice.value == typed; };
    return typed.isValid() && std::any_of(m_row.choices.begin(), m_row.choices.end(), has) ? typed
                                                                                           : QVariant();
}

QVariant SettingBinding::accepted(const QVariant &value) const
{
    switch (m_row.control) {
    case SettingControl::Switch:
        return asBool(value);
    case SettingControl::Choice:
    case SettingControl::Radio:
        return acceptedChoice(value);
    case SettingControl::Slider: {
        const QVariant number = asInt(value);
        return number.isValid() ? QVariant(qBound(m_row.minimum, number.toInt(), m_row.maximum)) : number;
    }
    case SettingControl::Color: {
        const QColor color(value.toString());
        return color.isValid() ? QVariant(color.name()) : QVariant();
    }
    case SettingControl::None:
        return asTypeOf(value, m_row.standard);
    default:
        return asText(value);
    }
}

void SettingBinding::setValue(const QVariant &value)
{
    const QVariant taken = accepted(value);
    if (!taken.isValid() || taken == m_value)
        return;
    m_value = taken;
    setProblem({});
    emit valueChanged(m_value);
}

void SettingBinding::load(const SettingsManager &store)
{
    QVariant stored = m_row.isStored ? store.value(key()) : QVariant();
    if (stored.isValid() && m_fromStore)
        stored = m_fromStore(stored);
    else if (stored.isValid() && m_row.taken)
        stored = m_row.taken(stored);
    const QVariant taken = stored.isValid() ? accepted(stored) : QVariant();
    setValue(taken.isValid() ? taken : m_row.standard);
    setProblem({});
    m_loaded = m_value;
}

void SettingBinding::setDefault()
{
    setValue(m_row.standard);
    setProblem({});
}

bool SettingBinding::save(SettingsManager &store)
{
    if (!m_row.isStored || m_isKept)
        return false;
    // What nobody has changed stays in the words in which it was stored.
    if (isChanged() || m_isAlwaysWritten || !store.contains(key()))
        store.setValue(key(), m_toStore ? m_toStore(m_value) : m_value);
    m_loaded = m_value;
    return true;
}

void SettingBinding::setCode(Code fromStore, Code toStore)
{
    m_fromStore = std::move(fromStore);
    m_toStore = std::move(toStore);
}

void SettingBinding::setProblem(const QString &problem)
{
    if (problem == m_problem)
        return;
    m_problem = problem;
    emit problemChanged(m_problem);
}
