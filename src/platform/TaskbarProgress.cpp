#include "TaskbarProgress.h"

#include "TaskbarDesktop.h"

#include <QtGlobal>

TaskbarProgress::TaskbarProgress() = default;

TaskbarProgress::~TaskbarProgress()
{
    hide();
}

void TaskbarProgress::open(const QString &desktopName, WId window)
{
    m_desktop = std::make_unique<Desktop>(desktopName, window);
}

void TaskbarProgress::show(double played, bool isPaused)
{
    tell(qRound(qBound(0.0, played, 1.0) * Desktop::Steps), isPaused);
}

void TaskbarProgress::hide()
{
    tell(-1, false);
}

void TaskbarProgress::tell(int step, bool isPaused)
{
    if (!m_desktop || (step == m_step && isPaused == m_isPaused))
        return;
    m_step = step;
    m_isPaused = isPaused;
    m_desktop->tell(step, isPaused);
}
