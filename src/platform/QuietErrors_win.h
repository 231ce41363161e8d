// While it lives, the system shows no dialog for a drive without a medium on this thread.
#pragma once

#include <windows.h>

class QuietErrors final {
public:
    QuietErrors() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &m_before); }
    ~QuietErrors() { SetThreadErrorMode(m_before, nullptr); }
    QuietErrors(const QuietErrors &) = delete;
    QuietErrors &operator=(const QuietErrors &) = delete;

private:
    DWORD m_before{0};
};
