#include "ProfileFile.h"

#include "IniText.h"
#include "RegistryLog.h"
#include "ReplacedFile_linux.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>

struct ProfileFile::Store {
    std::string path;
    IniText text;
    // Why the file can't be read, when it is there.
    int error{0};
};

namespace {

std::string withoutQuotes(std::string value)
{
    if (value.size() > 1 && value.front() == value.back() && (value.front() == '"' || value.front() == '\''))
        return value.substr(1, value.size() - 2);
    return value;
}

void complain(const char *verb, const std::string &path, int error)
{
    RegistryLog::write(std::string("[Registry] cannot ") + verb + ' ' + path + ": " + std::strerror(error));
}

} // namespace

ProfileFile::ProfileFile(const std::string &path)
    : m_store(std::make_unique<Store>(Store{path, IniText(IniText::Names::AnyCase)}))
{
    int error = 0;
    if (const auto text = ReplacedFile::read(path, error)) {
        m_store->text = IniText(IniText::Names::AnyCase, *text);
    } else if (error != ENOENT) {
        m_store->error = error;
        complain("read", path, error);
    }
}

ProfileFile::~ProfileFile() = default;

std::string ProfileFile::readString(const std::string &section, const std::string &key,
                                    const std::string &fallback) const
{
    const auto value = m_store->text.value(section, key);
    return (value ? withoutQuotes(*value) : fallback).substr(0, MaxValueLength);
}

int ProfileFile::readInt(const std::string &section, const std::string &key, int fallback) const
{
    const std::string text = readString(section, key, std::string());
    if (text.empty())
        return fallback;
    const long long number = std::strtoll(text.c_str(), nullptr, 10);
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<unsigned>::max())
        return 0;
    return static_cast<int>(number);
}

std::vector<std::string> ProfileFile::sectionNames() const
{
    return m_store->text.sections();
}

bool ProfileFile::writeSections(const std::vector<Section> &sections)
{
    int error = m_store->error;
    if (error == 0) {
        IniText text = m_store->text;
        for (const Section &section : sections) {
            IniText::Keys keys;
            for (const auto &[key, value] : section.keys)
                keys.emplace_back(key, guarded(value));
            text.replaceSection(section.name, keys);
        }
        error = ReplacedFile::write(m_store->path, text.text());
        if (error == 0)
            m_store->text = std::move(text);
    }
    if (error != 0)
        complain("write", m_store->path, error);
    return error == 0;
}
