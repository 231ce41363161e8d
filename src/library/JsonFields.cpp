#include "JsonFields.h"

#include "ProtocolNames.h"

namespace JsonFields {

QJsonObject limits(int start, int end)
{
    return {{Rpc::Key::start, start}, {Rpc::Key::end, end}};
}

int total(const QJsonObject &result, const char *key)
{
    const bool isNested = QLatin1String(key) == QLatin1String(Rpc::Key::limits);
    return isNested ? number(result.value(QLatin1String(key)).toObject(), Rpc::Key::total)
                    : number(result, key);
}

} // namespace JsonFields
