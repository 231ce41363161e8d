// A value as libmpv hands it out or takes it: nothing, flag, number, text, list, map or bytes. A plain value.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

class MpvValue;
using MpvList = std::vector<MpvValue>;
using MpvMap = std::map<std::string, MpvValue>;
using MpvBytes = std::vector<unsigned char>;

class MpvValue final {
public:
    MpvValue() = default;
    MpvValue(bool value)
        : m_data(value)
    {
    }
    MpvValue(int value)
        : m_data(std::int64_t{value})
    {
    }
    MpvValue(std::int64_t value)
        : m_data(value)
    {
    }
    MpvValue(double value)
        : m_data(value)
    {
    }
    MpvValue(const char *value)
        : m_data(std::string(value))
    {
    }
    MpvValue(std::string value)
        : m_data(std::move(value))
    {
    }
    MpvValue(MpvList value)
        : m_data(std::move(value))
    {
    }
    MpvValue(MpvMap value)
        : m_data(std::move(value))
    {
    }
    MpvValue(MpvBytes value)
        : m_data(std::move(value))
    {
    }

    using Data =
        std::variant<std::monostate, bool, std::int64_t, double, std::string, MpvList, MpvMap, MpvBytes>;

    [[nodiscard]] bool isNone() const { return std::holds_alternative<std::monostate>(m_data); }

    // The value where it has the wanted kind; numbers turn into each other. Else the fallback.
    [[nodiscard]] bool flag(bool fallback = false) const;
    [[nodiscard]] std::int64_t integer(std::int64_t fallback = 0) const;
    [[nodiscard]] double number(double fallback = 0) const;

    // Empty where the value is of another kind.
    [[nodiscard]] const std::string &text() const;
    [[nodiscard]] const MpvList &list() const;
    [[nodiscard]] const MpvMap &map() const;
    [[nodiscard]] const MpvBytes &bytes() const;

    // Entry of a map, nothing where there is none.
    [[nodiscard]] const MpvValue &at(const char *key) const;

    [[nodiscard]] const Data &data() const { return m_data; }

    bool operator==(const MpvValue &other) const { return m_data == other.m_data; }
    bool operator!=(const MpvValue &other) const { return !(*this == other); }

private:
    Data m_data;
};
