// One open key of the registry and the calls that take it; owns the handle.
//
// The calls that work within a transaction, and the deletion within a view, are looked up when they are made:
// the oldest systems lack them.
#pragma once

#include <windows.h>

class JRegKey final {
public:
    // All rights of reading and writing.
    static constexpr REGSAM Access = 0x2001F;
    static constexpr REGSAM Access64 = Access | KEY_WOW64_64KEY;

    JRegKey() = default;
    ~JRegKey();
    JRegKey(const JRegKey &) = delete;
    JRegKey &operator=(const JRegKey &) = delete;

    // Each returns the system's error code.
    [[nodiscard]] LONG open(HKEY parent, const char *path, REGSAM access);
    // Opens the key, or makes it with all on the way to it.
    [[nodiscard]] LONG create(HKEY parent, const char *path, REGSAM access);
    // A subkey that has no subkeys of its own.
    [[nodiscard]] LONG deleteSubKey(const char *name) const;
    void close();

    [[nodiscard]] HKEY handle() const { return m_key; }
    [[nodiscard]] REGSAM viewFlags() const { return m_viewFlags; }
    void setTransaction(HANDLE transaction) { m_transaction = transaction; }

private:
    HKEY m_key{nullptr};
    REGSAM m_viewFlags{0};
    HANDLE m_transaction{nullptr};
};
