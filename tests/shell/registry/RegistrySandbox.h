// A registry and a temporary folder that a test may fill: on Windows keys of its own in the real registry,
// elsewhere a hive file of its own. Gathers what the registry's classes log.
//
// Without Qt: these tests are built for both systems.
#pragma once

#include "registry/IRegOperator.h"

#include <filesystem>
#include <string>
#include <vector>

class RegistrySandbox final {
public:
    RegistrySandbox();
    ~RegistrySandbox();
    RegistrySandbox(const RegistrySandbox &) = delete;
    RegistrySandbox &operator=(const RegistrySandbox &) = delete;

    // Empty at first; the process' temporary folder while this object lives.
    [[nodiscard]] const std::filesystem::path &folder() const { return m_folder; }
    [[nodiscard]] std::string path(const std::string &name) const { return (m_folder / name).string(); }
    void write(const std::string &name, const std::string &content) const;
    [[nodiscard]] std::string content(const std::string &name) const;
    // Names of what lies in the folder, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

    // A key that is not there at first and goes in the end, in the roots of user and machine.
    [[nodiscard]] static std::string key(const std::string &below = {});

    [[nodiscard]] const std::vector<std::string> &log() const { return m_log; }
    [[nodiscard]] bool logged(const std::string &part) const;

private:
    // Points the process to a folder, or back where it was.
    void enter();
    void leave();

    std::filesystem::path m_folder;
    std::vector<std::string> m_log;
    std::vector<std::pair<std::string, std::string>> m_environmentBefore;
};

namespace Roots {

inline const RegRoot Classes = RegRoots::handle(RegRoots::ClassesRoot);
inline const RegRoot User = RegRoots::handle(RegRoots::CurrentUser);
inline const RegRoot Machine = RegRoots::handle(RegRoots::LocalMachine);

} // namespace Roots
