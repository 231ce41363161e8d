#include "TaskbarDesktop.h"

#include <QDebug>

#include <windows.h>

#include <shobjidl.h>

struct TaskbarProgress::Desktop::Way {
    HWND window{nullptr};
    ITaskbarList3 *taskbar{nullptr};
    bool hasLibrary{false};
};

TaskbarProgress::Desktop::Desktop(const QString &desktopName, WId window)
    : m_way(std::make_unique<Way>())
{
    Q_UNUSED(desktopName)
    m_way->window = reinterpret_cast<HWND>(window);
    m_way->hasLibrary = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    void *made = nullptr;
    if (FAILED(
            CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, &made))) {
        qInfo() << "[Taskbar] the system shows no progress";
        return;
    }
    m_way->taskbar = static_cast<ITaskbarList3 *>(made);
    if (FAILED(m_way->taskbar->HrInit())) {
        m_way->taskbar->Release();
        m_way->taskbar = nullptr;
    }
}

TaskbarProgress::Desktop::~Desktop()
{
    if (m_way->taskbar != nullptr)
        m_way->taskbar->Release();
    if (m_way->hasLibrary)
        CoUninitialize();
}

void TaskbarProgress::Desktop::tell(int step, bool isPaused)
{
    if (m_way->taskbar == nullptr)
        return;
    if (step < 0) {
        m_way->taskbar->SetProgressState(m_way->window, TBPF_NOPROGRESS);
        return;
    }
    m_way->taskbar->SetProgressState(m_way->window, isPaused ? TBPF_PAUSED : TBPF_NORMAL);
    m_way->taskbar->SetProgressValue(m_way->window, ULONGLONG(step), ULONGLONG(Steps));
}
