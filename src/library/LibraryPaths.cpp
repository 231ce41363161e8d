#include "LibraryPaths.h"

#include "JsonFields.h"
#include "JsonRpc.h"
#include "ProtocolNames.h"

namespace LibraryPaths {

namespace {

std::optional<int> whole(const QJsonObject &object, const char *key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isDouble() ? std::optional<int>(value.toInt()) : std::nullopt;
}

} // namespace

std::optional<int> firstLibrary(const JsonRpcReply &reply)
{
    const QJsonArray libraries = JsonFields::array(reply.object(), Rpc::Key::libraries);
    for (const QJsonValue &library : libraries) {
        if (const auto id = whole(library.toObject(), Rpc::Key::Library))
            return id;
    }
    return std::nullopt;
}

std::optional<Map> folders(const JsonRpcReply &reply)
{
    if (!reply.isGood)
        return std::nullopt;
    Map found;
    const QJsonArray paths = JsonFields::array(reply.object(), Rpc::Key::paths);
    for (const QJsonValue &path : paths) {
        const QJsonObject object = path.toObject();
        if (const auto id = whole(object, Rpc::Key::PathId))
            found.insert(*id, JsonFields::text(object, Rpc::Key::path));
    }
    return found;
}

std::optional<int> addedFolder(const JsonRpcReply &reply)
{
    return whole(reply.object(), Rpc::Key::PathId);
}

} // namespace LibraryPaths
