#include "StoredValue.h"

namespace StoredValue {

std::optional<int> number(const QVariant &value)
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

std::optional<bool> flag(const QVariant &value)
{
    const std::optional<int> stored = number(value);
    return stored ? std::make_optional(*stored != 0) : std::nullopt;
}

} // namespace StoredValue
