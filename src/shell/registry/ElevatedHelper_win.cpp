#include "ElevatedHelper.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

namespace {

// What the shell starts may need the calling thread to speak COM.
class Com final {
public:
    Com()
        : m_started(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)))
    {
    }
    ~Com()
    {
        if (m_started)
            CoUninitialize();
    }
    Com(const Com &) = delete;
    Com &operator=(const Com &) = delete;

private:
    bool m_started;
};

// With the window that the user works in the question comes before it; without one it may wait in the task
// bar.
HWND ownForegroundWindow()
{
    const HWND window = GetForegroundWindow();
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner == GetCurrentProcessId() ? window : nullptr;
}

// Up to this the instance value names an error.
constexpr INT_PTR kLastError = 32;

} // namespace

std::optional<int> ElevatedHelper::run(const std::string &program, const std::string &argument, int limitMs)
{
    const Com com;
    // A path may hold blanks, never quotes.
    const std::string parameters = '"' + argument + '"';
    SHELLEXECUTEINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.hwnd = ownForegroundWindow();
    info.lpVerb = "runas";
    info.lpFile = program.c_str();
    info.lpParameters = parameters.c_str();
    info.nShow = SW_HIDE;
    if (!ShellExecuteExA(&info) || reinterpret_cast<INT_PTR>(info.hInstApp) <= kLastError || !info.hProcess)
        return std::nullopt;
    const DWORD waited =
        WaitForSingleObject(info.hProcess, limitMs < 0 ? INFINITE : static_cast<DWORD>(limitMs));
    if (waited == WAIT_TIMEOUT)
        TerminateProcess(info.hProcess, 1);
    DWORD code = 0;
    const bool told = waited == WAIT_OBJECT_0 && GetExitCodeProcess(info.hProcess, &code);
    CloseHandle(info.hProcess);
    return told ? std::optional<int>(static_cast<int>(code)) : std::nullopt;
}
