#include "Side.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

Side::Side(std::vector<std::string> line, const std::string &folder, const std::vector<std::string> &more)
    : command(std::move(line))
    , home(folder)
    , variables(more)
{
    for (const auto &[name, place] :
         {std::pair("HOME", ""), std::pair("XDG_DATA_HOME", "/data"), std::pair("XDG_CONFIG_HOME", "/config"),
          std::pair("XDG_CACHE_HOME", "/cache"), std::pair("XDG_RUNTIME_DIR", "/run"),
          std::pair("TMPDIR", "/tmp")})
        variables.push_back(std::string(name) + '=' + home + place);
}

void Side::makeHome() const
{
    for (const char *name : {"/data", "/config", "/cache", "/run", "/tmp", "/Documents", "/Pictures"})
        fs::create_directories(home + name);
    fs::permissions(home + "/run", fs::perms::owner_all);
}

void Side::forgetClip() const
{
    for (const char *name : {"/data", "/config", "/tmp"})
        fs::remove_all(home + name);
    makeHome();
}

void giveUp(const Side &side, const char *why)
{
    std::fprintf(stderr, "benchmark: %s: %s\n", side.command.front().c_str(), why);
    std::exit(1);
}
