#include "RegistrySandbox.h"

#include <cstdlib>

void RegistrySandbox::enter()
{
    for (const char *name : {"TMPDIR", "XDG_DATA_HOME"}) {
        const char *before = std::getenv(name);
        m_environmentBefore.emplace_back(name, before ? before : "");
    }
    ::setenv("TMPDIR", m_folder.c_str(), 1);
    ::setenv("XDG_DATA_HOME", (m_folder / "data").c_str(), 1);
}

void RegistrySandbox::leave()
{
    for (const auto &[name, value] : m_environmentBefore) {
        if (value.empty())
            ::unsetenv(name.c_str());
        else
            ::setenv(name.c_str(), value.c_str(), 1);
    }
}
