#include "HiveFile_linux.h"

#include "ProgramPlace.h"
#include "RegistryLog.h"
#include "ReplacedFile_linux.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include <unistd.h>

namespace {

constexpr char kFolder[] = "quorin-player-6";
constexpr char kFileName[] = "registry.hive";
constexpr char kMachineFolder[] = "/var/lib";
constexpr char kDamagedEnding[] = ".damaged";
// So many cut files are kept; who has more has another trouble.
constexpr int kMaxDamaged = 9;

constexpr std::string_view kFirstLine = "quorin hive 1";
constexpr std::string_view kKey = "key ";
constexpr std::string_view kText = "text ";
constexpr std::string_view kNumber = "number ";
constexpr std::string_view kEnd = "end ";
constexpr char kSeparator = '\t';
constexpr char kEscape = '%';
constexpr char kHexDigits[] = "0123456789ABCDEF";

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code >= 0x20 && code != 0x7F && letter != kEscape) {
            result += letter;
            continue;
        }
        result += kEscape;
        result += kHexDigits[code >> 4];
        result += kHexDigits[code & 0xF];
    }
    return result;
}

template<typename Number>
std::optional<Number> numberIn(std::string_view text, int base = 10)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return number;
}

std::optional<std::string> unescaped(std::string_view text)
{
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != kEscape) {
            result += text[index];
            continue;
        }
        const auto code = numberIn<unsigned>(text.substr(index + 1, 2), 16);
        if (!code || index + 2 >= text.size())
            return std::nullopt;
        result += static_cast<char>(*code);
        index += 2;
    }
    return result;
}

bool takePrefix(std::string_view &text, std::string_view prefix)
{
    if (text.substr(0, prefix.size()) != prefix)
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

// "<number>\a\b" of a root and a path with separators as they come; empty for a root that is none.
std::string fullPath(RegRoot root, std::string_view path)
{
    const int index = RegRoots::index(root);
    if (index < 0)
        return {};
    std::string full = std::to_string(index);
    while (!path.empty()) {
        const auto end = std::min(path.find('\\'), path.size());
        if (end > 0)
            full.append(1, '\\').append(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return full;
}

void complain(const std::string &what, const std::string &path, int error)
{
    RegistryLog::write("[Registry] " + what + ' ' + path + ": " + std::strerror(error));
}

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

bool HiveFile::AnyCaseLess::operator()(std::string_view one, std::string_view other) const
{
    return std::lexicographical_compare(one.begin(), one.end(), other.begin(), other.end(),
                                        [](char left, char right) { return lower(left) < lower(right); });
}

HiveFile::HiveFile(std::string path)
    : m_path(std::move(path))
{
    // Where the file is a link the one that it names is meant.
    std::error_code error;
    const auto target = std::filesystem::canonical(m_path, error);
    if (!error)
        m_path = target.string();
}

std::string HiveFile::defaultPath()
{
    std::string folder;
    const char *dataHome = std::getenv("XDG_DATA_HOME");
    const char *home = std::getenv("HOME");
    if (dataHome && *dataHome == '/')
        folder = dataHome;
    else if (::geteuid() == 0 || !home || *home != '/')
        folder = kMachineFolder;
    else
        folder = std::string(home) + "/.local/share";
    return ProgramPlace::joined(ProgramPlace::joined(folder, kFolder), kFileName);
}

bool HiveFile::load()
{
    m_keys.clear();
    m_damaged = false;
    m_damagedText.clear();
    int error = 0;
    auto content = ReplacedFile::read(m_path, error);
    if (!content) {
        if (error == ENOENT)
            return true;
        complain("cannot read", m_path, error);
        return false;
    }
    parse(*content);
    if (m_damaged) {
        RegistryLog::write("[Registry] " + m_path
                           + " is damaged; keys that could be read: " + std::to_string(m_keys.size()));
        m_damagedText = std::move(*content);
    }
    return true;
}

bool HiveFile::save()
{
    if (m_damaged && !keepDamaged())
        return false;
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(m_path).parent_path(), ignored);
    const int error = ReplacedFile::write(m_path, text());
    if (error != 0)
        complain("cannot write", m_path, error);
    return error == 0;
}

bool HiveFile::hasKey(RegRoot root, const std::string &path) const
{
    return m_keys.find(fullPath(root, path)) != m_keys.end();
}

std::optional<HiveFile::Value> HiveFile::value(RegRoot root, const std::string &path,
                                               const std::string &name) const
{
    const auto key = m_keys.find(fullPath(root, path));
    if (key == m_keys.end())
        return std::nullopt;
    const auto found = key->second.find(name);
    return found == key->second.end() ? std::nullopt : std::optional<Value>(found->second);
}

bool HiveFile::setValue(RegRoot root, const std::string &path, const std::string &name, Value value)
{
    const std::string full = fullPath(root, path);
    if (full.empty())
        return false;
    made(full)[name] = std::move(value);
    return true;
}

bool HiveFile::deleteValue(RegRoot root, const std::string &path, const std::string &name)
{
    const std::string full = fullPath(root, path);
    if (full.empty())
        return false;
    Values &values = made(full);
    if (const auto found = values.find(name); found != values.end())
        values.erase(found);
    return true;
}

bool HiveFile::deleteKey(RegRoot root, const std::string &path, const std::string &subKey)
{
    const std::string parent = fullPath(root, path);
    if (parent.empty() || subKey.find_first_not_of('\\') == std::string::npos)
        return false;
    made(parent);
    const std::string full = fullPath(root, path + '\\' + subKey);
    const std::string below = full + '\\';
    for (auto key = m_keys.begin(); key != m_keys.end();) {
        const std::string_view begin = std::string_view(key->first).substr(0, below.size());
        const bool goes = !AnyCaseLess()(begin, below) && !AnyCaseLess()(below, begin);
        key = goes ? m_keys.erase(key) : std::next(key);
    }
    if (const auto found = m_keys.find(full); found != m_keys.end())
        m_keys.erase(found);
    return true;
}

void HiveFile::parse(std::string_view text)
{
    std::size_t number = 0;
    bool ended = false;
    bool whole = true;
    Values *values = nullptr;
    while (!text.empty() && !ended) {
        const auto end = text.find('\n');
        if (end == std::string_view::npos)
            break;
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (number++ == 0 && line == kFirstLine)
            continue;
        if (takePrefix(line, kEnd)) {
            ended = numberIn<std::size_t>(line) == number;
            whole = whole && ended;
        } else if (takePrefix(line, kKey)) {
            const auto path = unescaped(line);
            values = path ? &made(*path) : nullptr;
            whole = whole && path;
        } else {
            const bool isText = takePrefix(line, kText);
            const bool isNumber = !isText && takePrefix(line, kNumber);
            const auto separator = std::min(line.find(kSeparator), line.size());
            const auto name = unescaped(line.substr(0, separator));
            const std::string_view data = line.substr(std::min(separator + 1, line.size()));
            const auto valueText = isText ? unescaped(data) : std::nullopt;
            const auto valueNumber = isNumber ? numberIn<std::uint32_t>(data) : std::nullopt;
            const bool good = values && name && separator < line.size() && (valueText || valueNumber);
            whole = whole && good;
            if (good && valueText)
                (*values)[*name] = *valueText;
            else if (good)
                (*values)[*name] = *valueNumber;
        }
    }
    m_damaged = !ended || !whole || !text.empty();
}

std::string HiveFile::text() const
{
    std::string whole(kFirstLine);
    whole += '\n';
    std::size_t lines = 2;
    for (const auto &[path, values] : m_keys) {
        whole.append(kKey).append(escaped(path)).append(1, '\n');
        lines += 1 + values.size();
        for (const auto &[name, value] : values) {
            const auto *string = std::get_if<std::string>(&value);
            whole.append(string ? kText : kNumber).append(escaped(name)).append(1, kSeparator);
            whole.append(string ? escaped(*string) : std::to_string(std::get<std::uint32_t>(value)));
            whole += '\n';
        }
    }
    return whole.append(kEnd).append(std::to_string(lines)).append(1, '\n');
}

bool HiveFile::keepDamaged()
{
    for (int attempt = 1; attempt <= kMaxDamaged && !m_damagedText.empty(); ++attempt) {
        const std::string kept =
            m_path + kDamagedEnding + (attempt > 1 ? '-' + std::to_string(attempt) : std::string());
        std::error_code ignored;
        if (std::filesystem::exists(std::filesystem::symlink_status(kept, ignored)))
            continue;
        const int error = ReplacedFile::write(kept, m_damagedText);
        if (error != 0) {
            complain("cannot keep the damaged file as", kept, error);
            return false;
        }
        RegistryLog::write("[Registry] the damaged file is kept as " + kept);
        m_damagedText.clear();
    }
    m_damaged = !m_damagedText.empty();
    if (m_damaged)
        RegistryLog::write("[Registry] too many damaged files beside " + m_path);
    return !m_damaged;
}

HiveFile::Values &HiveFile::made(const std::string &fullPath)
{
    for (auto end = fullPath.find('\\'); end != std::string::npos; end = fullPath.find('\\', end + 1))
        m_keys.try_emplace(fullPath.substr(0, end));
    return m_keys[fullPath];
}
