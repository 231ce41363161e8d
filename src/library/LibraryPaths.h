// The folders of a library as both of its faces answer them.
#pragma once

#include <QMap>
#include <QString>

#include <optional>

struct JsonRpcReply;

namespace LibraryPaths {

using Map = QMap<int, QString>; // from the folder's id at the server

// The id of the first library that the answer names.
[[nodiscard]] std::optional<int> firstLibrary(const JsonRpcReply &reply);
// Nothing where the answer is no good.
[[nodiscard]] std::optional<Map> folders(const JsonRpcReply &reply);
// The id of a folder that was added.
[[nodiscard]] std::optional<int> addedFolder(const JsonRpcReply &reply);

} // namespace LibraryPaths
