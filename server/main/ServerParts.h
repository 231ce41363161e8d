// The one place that knows which classes stand behind the server's interfaces.
#pragma once

#include "IServerParts.h"

#include <memory>

class DataFolder;
struct ServerConfiguration;

namespace ServerParts {

[[nodiscard]] std::unique_ptr<IServerParts> make(const DataFolder &folder,
                                                 const ServerConfiguration &configuration);

} // namespace ServerParts
