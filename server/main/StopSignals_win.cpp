#include "StopSignals.h"

#include <QMetaObject>

#include <windows.h>

#include <mutex>

namespace {

std::mutex ownerMutex;
StopSignals *owner = nullptr;

// Called on a thread of the system's own.
BOOL WINAPI onControl(DWORD)
{
    std::lock_guard lock(ownerMutex);
    if (!owner)
        return FALSE;
    QMetaObject::invokeMethod(owner, &StopSignals::stopRequested, Qt::QueuedConnection);
    return TRUE;
}

} // namespace

class StopSignals::Platform final {
public:
    explicit Platform(StopSignals &stopSignals)
    {
        {
            std::lock_guard lock(ownerMutex);
            owner = &stopSignals;
        }
        ::SetConsoleCtrlHandler(onControl, TRUE);
    }

    ~Platform()
    {
        ::SetConsoleCtrlHandler(onControl, FALSE);
        std::lock_guard lock(ownerMutex);
        owner = nullptr;
    }
};

StopSignals::StopSignals(QObject *parent)
    : QObject(parent)
    , m_platform(std::make_unique<Platform>(*this))
{
}

StopSignals::~StopSignals() = default;
