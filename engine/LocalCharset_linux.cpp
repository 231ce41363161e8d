#include "LocalCharset.h"

namespace LocalCharset {

bool isNeeded()
{
    return false;
}

int guess(const std::string &)
{
    return 0;
}

std::optional<std::string> toUtf8(const std::string &, int)
{
    return std::nullopt;
}

} // namespace LocalCharset
