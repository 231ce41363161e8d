#include "MpvValue.h"

namespace {

template<typename T>
const T &valueOrEmpty(const MpvValue::Data &data)
{
    static const T empty{};
    const T *value = std::get_if<T>(&data);
    return value ? *value : empty;
}

} // namespace

bool MpvValue::flag(bool fallback) const
{
    const bool *value = std::get_if<bool>(&m_data);
    return value ? *value : fallback;
}

std::int64_t MpvValue::integer(std::int64_t fallback) const
{
    if (const auto *value = std::get_if<std::int64_t>(&m_data))
        return *value;
    if (const auto *value = std::get_if<double>(&m_data))
        return static_cast<std::int64_t>(*value);
    return fallback;
}

double MpvValue::number(double fallback) const
{
    if (const auto *value = std::get_if<double>(&m_data))
        return *value;
    if (const auto *value = std::get_if<std::int64_t>(&m_data))
        return static_cast<double>(*value);
    return fallback;
}

const std::string &MpvValue::text() const
{
    return valueOrEmpty<std::string>(m_data);
}

const MpvList &MpvValue::list() const
{
    return valueOrEmpty<MpvList>(m_data);
}

const MpvMap &MpvValue::map() const
{
    return valueOrEmpty<MpvMap>(m_data);
}

const MpvBytes &MpvValue::bytes() const
{
    return valueOrEmpty<MpvBytes>(m_data);
}

const MpvValue &MpvValue::at(const char *key) const
{
    static const MpvValue none;
    const MpvMap &entries = map();
    const auto found = entries.find(key);
    return found == entries.end() ? none : found->second;
}
