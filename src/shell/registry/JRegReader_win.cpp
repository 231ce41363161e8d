#include "JRegReader.h"

#include "JRegKey_win.h"

#include <algorithm>
#include <vector>

namespace {

// The size of a value that another process keeps changing is asked for this often.
constexpr int kMaxReads = 4;

std::optional<std::vector<BYTE>> read(RegRoot root, const std::string &keyPath, const std::string &name,
                                      const std::vector<DWORD> &wantedTypes)
{
    JRegKey key;
    if (key.open(static_cast<HKEY>(root), keyPath.c_str(), KEY_READ) != ERROR_SUCCESS)
        return std::nullopt;
    std::vector<BYTE> data;
    for (int attempt = 0; attempt < kMaxReads; ++attempt) {
        DWORD type = REG_NONE;
        DWORD size = static_cast<DWORD>(data.size());
        const LONG error = RegQueryValueExA(key.handle(), name.c_str(), nullptr, &type,
                                            data.empty() ? nullptr : data.data(), &size);
        if ((error != ERROR_SUCCESS && error != ERROR_MORE_DATA)
            || std::find(wantedTypes.begin(), wantedTypes.end(), type) == wantedTypes.end())
            return std::nullopt;
        if (error == ERROR_SUCCESS && size <= data.size()) {
            data.resize(size);
            return data;
        }
        data.resize(size);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> JRegReader::stringValue(RegRoot root, const std::string &keyPath,
                                                   const std::string &name) const
{
    const auto data = read(root, keyPath, name, {REG_SZ, REG_EXPAND_SZ});
    if (!data)
        return std::nullopt;
    std::string text(data->begin(), data->end());
    // A terminator belongs to the value only by habit.
    while (!text.empty() && text.back() == '\0')
        text.pop_back();
    return text;
}

std::optional<std::uint32_t> JRegReader::dwordValue(RegRoot root, const std::string &keyPath,
                                                    const std::string &name) const
{
    const auto data = read(root, keyPath, name, {REG_DWORD});
    if (!data || data->size() != sizeof(DWORD))
        return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < sizeof number; ++index)
        number |= static_cast<std::uint32_t>((*data)[index]) << (8 * index);
    return number;
}

bool JRegReader::hasKey(RegRoot root, const std::string &keyPath) const
{
    JRegKey key;
    return key.open(static_cast<HKEY>(root), keyPath.c_str(), KEY_READ) == ERROR_SUCCESS;
}
