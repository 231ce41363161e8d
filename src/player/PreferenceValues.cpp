#include "PreferenceValues.h"

#include "core/StoredValue.h"

#include <QRegularExpression>

namespace PreferenceValues {

std::optional<int> number(const NumberRow &row, const QVariant &stored)
{
    const std::optional<int> number = StoredValue::number(stored);
    if (!number || (*number >= row.least && *number <= row.most))
        return number;
    return row.outside == Outside::TakesLeast ? row.least : qBound(row.least, *number, row.most);
}

std::optional<QString> color(const QVariant &stored)
{
    static const QRegularExpression form(QStringLiteral("\\A#[0-9a-fA-F]{6}\\z"));
    const QString color = stored.toString();
    return form.match(color).hasMatch() ? std::make_optional(color) : std::nullopt;
}

} // namespace PreferenceValues
