// Checks the parameters of a call against the keys that its method's row names.
//
// Pure; any thread. Numbers are whole numbers, whatever their notation ("1", "1.0", "1e0" are the same to
// JSON); those that leave the range of an int are clamped to it, so that a limit "to the end" may be any
// large number.
#pragma once

#include "Params.h"

#include <QJsonObject>
#include <QVector>

enum class ParamType {
    Integer,
    Text,
    LooseText, // a text, or a whole number of up to 2^53 in place of one
    Document,  // a text that is JSON itself, and so may be long
    Flag,
    Limits,
    Sort,
    Filter
};

enum class Need { Required, Optional };

struct ParamRow {
    QLatin1String key;
    ParamType type{ParamType::Text};
    Need need{Need::Required};
};

struct CheckedParams {
    Params params;
    QString error; // empty: all is there; else it names the key

    [[nodiscard]] bool isGood() const { return error.isEmpty(); }
};

namespace ParameterChecker {

inline constexpr int LongestText = 65536; // characters
inline constexpr int MostFilters = 32;

[[nodiscard]] CheckedParams check(const QVector<ParamRow> &rows, const QJsonObject &params);

} // namespace ParameterChecker
