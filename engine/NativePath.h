// Texts of the contract are UTF-8 everywhere; the file functions of each platform take their own form.
#pragma once

#include <filesystem>
#include <string>

inline std::filesystem::path nativePath(const std::string &utf8)
{
    return std::filesystem::u8path(utf8);
}
