#include "RegistrySandbox.h"

#include "registry/JRegOperator.h"
#include "registry/RegistryLog.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>

namespace {

constexpr char kSoftware[] = "SOFTWARE";
constexpr char kSandbox[] = "QuorinSandbox";

std::filesystem::path freshFolder()
{
    static std::atomic<int> number{0};
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return std::filesystem::temp_directory_path()
           / ("sandbox-" + std::to_string(now) + '-' + std::to_string(++number));
}

} // namespace

RegistrySandbox::RegistrySandbox()
    : m_folder(freshFolder())
{
    std::filesystem::create_directories(m_folder);
    enter();
    RegistryLog::setSink([this](const std::string &line) { m_log.push_back(line); });
}

RegistrySandbox::~RegistrySandbox()
{
    JRegOperator registry;
    registry.DeleteKey(Roots::User, kSoftware, kSandbox);
    registry.DeleteKey(Roots::Machine, kSoftware, kSandbox);
    registry.DeleteKey64(Roots::Machine, kSoftware, kSandbox);
    RegistryLog::setSink({});
    leave();
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

void RegistrySandbox::write(const std::string &name, const std::string &content) const
{
    std::ofstream(m_folder / name, std::ios::binary) << content;
}

std::string RegistrySandbox::content(const std::string &name) const
{
    std::ifstream file(m_folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> RegistrySandbox::names() const
{
    std::vector<std::string> found;
    for (const auto &entry : std::filesystem::directory_iterator(m_folder))
        found.push_back(entry.path().filename().string());
    std::sort(found.begin(), found.end());
    return found;
}

std::string RegistrySandbox::key(const std::string &below)
{
    const std::string top = std::string(kSoftware) + '\\' + kSandbox;
    return below.empty() ? top : top + '\\' + below;
}

bool RegistrySandbox::logged(const std::string &part) const
{
    return std::any_of(m_log.begin(), m_log.end(),
                       [&](const std::string &line) { return line.find(part) != std::string::npos; });
}
