#include "JRegReader.h"

#include "HiveOperator_linux.h"

std::optional<std::string> JRegReader::stringValue(RegRoot root, const std::string &keyPath,
                                                   const std::string &name) const
{
    return HiveOperator().stringValue(root, keyPath, name);
}

std::optional<std::uint32_t> JRegReader::dwordValue(RegRoot root, const std::string &keyPath,
                                                    const std::string &name) const
{
    return HiveOperator().dwordValue(root, keyPath, name);
}

bool JRegReader::hasKey(RegRoot root, const std::string &keyPath) const
{
    return HiveOperator().hasKey(root, keyPath);
}
