#include "RegistrySandbox.h"

#include <cstdlib>

#include <windows.h>

void RegistrySandbox::enter()
{
    const char *before = std::getenv("TMP");
    m_environmentBefore.emplace_back("TMP", before ? before : "");
    SetEnvironmentVariableA("TMP", m_folder.string().c_str());
}

void RegistrySandbox::leave()
{
    for (const auto &[name, value] : m_environmentBefore)
        SetEnvironmentVariableA(name.c_str(), value.c_str());
}
