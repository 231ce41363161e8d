#include "ProfileFile.h"

bool ProfileFile::canHold(const std::string &text)
{
    return text.find_first_of(std::string("\r\n\0", 3)) == std::string::npos;
}

std::string ProfileFile::guarded(const std::string &value)
{
    if (value.empty())
        return value;
    const auto isBlank = [](char letter) { return letter == ' ' || letter == '\t'; };
    const bool quoted =
        value.size() > 1 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    if (quoted || isBlank(value.front()) || isBlank(value.back()))
        return '"' + value + '"';
    return value;
}
