#include "JRegKey_win.h"

namespace {

constexpr REGSAM kViewMask = 0x300;
constexpr LONG kNoSuchCall = 1;

using OpenTransacted = LONG(WINAPI *)(HKEY, LPCSTR, DWORD, REGSAM, PHKEY, HANDLE, PVOID);
using CreateTransacted = LONG(WINAPI *)(HKEY, LPCSTR, DWORD, LPSTR, DWORD, REGSAM,
                                        const LPSECURITY_ATTRIBUTES, PHKEY, LPDWORD, HANDLE, PVOID);
using DeleteTransacted = LONG(WINAPI *)(HKEY, LPCSTR, REGSAM, DWORD, HANDLE, PVOID);
using DeleteInView = LONG(WINAPI *)(HKEY, LPCSTR, REGSAM, DWORD);

template<typename Call>
Call lookUp(const char *name)
{
    const HMODULE library = GetModuleHandleA("Advapi32.dll");
    if (!library)
        return nullptr;
    // By way of a plain function: the compiler finds no two types of calls alike.
    return reinterpret_cast<Call>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
}

} // namespace

JRegKey::~JRegKey()
{
    close();
}

LONG JRegKey::open(HKEY parent, const char *path, REGSAM access)
{
    close();
    m_viewFlags = access & kViewMask;
    if (!m_transaction)
        return RegOpenKeyExA(parent, path, 0, access, &m_key);
    const auto call = lookUp<OpenTransacted>("RegOpenKeyTransactedA");
    return call ? call(parent, path, 0, access, &m_key, m_transaction, nullptr) : kNoSuchCall;
}

LONG JRegKey::create(HKEY parent, const char *path, REGSAM access)
{
    close();
    m_viewFlags = access & kViewMask;
    if (!m_transaction)
        return RegCreateKeyExA(parent, path, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &m_key,
                               nullptr);
    const auto call = lookUp<CreateTransacted>("RegCreateKeyTransactedA");
    return call ? call(parent, path, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &m_key, nullptr,
                       m_transaction, nullptr)
                : kNoSuchCall;
}

LONG JRegKey::deleteSubKey(const char *name) const
{
    if (m_transaction) {
        const auto call = lookUp<DeleteTransacted>("RegDeleteKeyTransactedA");
        return call ? call(m_key, name, m_viewFlags, 0, m_transaction, nullptr) : kNoSuchCall;
    }
    if (const auto call = lookUp<DeleteInView>("RegDeleteKeyExA"))
        return call(m_key, name, m_viewFlags, 0);
    return RegDeleteKeyA(m_key, name);
}

void JRegKey::close()
{
    if (m_key)
        RegCloseKey(m_key);
    m_key = nullptr;
}
