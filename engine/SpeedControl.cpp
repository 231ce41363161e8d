#include "SpeedControl.h"

#include "EngineLog.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr float speeds[] = {-32, -16,   -8,   -4,    -2, 0, 0.25f, 0.5f, 0.75f,
                            1,   1.25f, 1.5f, 1.75f, 2,  4, 8,     16,   32};
static_assert(std::size(speeds) == SpeedControl::indexCount);

// A speed above this one is a search through the source: pausing ends it.
constexpr float searchSpeed = 2;
// Exact pictures are kept as long as they come at least this often.
constexpr std::chrono::milliseconds slowStep{160};
// A picture nearer than this to the shown one is not worth a seek.
constexpr double smallestStep = 0.02;
// A fast forward that stays below this part of its speed turns to steps.
constexpr double paceShare = 0.7;
constexpr std::chrono::milliseconds paceTime{1500};

double seconds(SpeedControl::Clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

} // namespace

float SpeedControl::speedOf(int index)
{
    return index >= 0 && index < indexCount ? speeds[index] : 1.0f;
}

void SpeedControl::select(int index)
{
    if (index < 0 || index >= indexCount)
        return;
    const float speed = speeds[index];
    if (speed == 0) {
        stopStepping(Clock::now());
        m_paused = true;
        m_speed = 1;
        m_host.applyPause(true);
        m_host.applySpeed(1);
        m_host.tellSpeed(0);
        return;
    }
    if (speed < 0 && !m_host.canStep()) {
        engineLog("[Engine] this source cannot be rewound");
        m_host.tellSpeed(m_paused ? 0 : m_speed);
        return;
    }
    m_paused = false;
    if (speed < 0)
        startStepping(speed, Clock::now());
    else
        playAt(speed, Clock::now());
    m_host.tellSpeed(speed);
}

void SpeedControl::togglePause()
{
    if (!m_paused) {
        pause();
        return;
    }
    m_paused = false;
    m_host.applyPause(false);
    m_host.tellResumed();
    if (m_speed != 1)
        m_host.tellSpeed(m_speed);
}

void SpeedControl::pause()
{
    if (m_paused)
        return;
    stopStepping(Clock::now());
    m_paused = true;
    m_pacing = false;
    m_host.applyPause(true);
    if (m_speed < 0 || m_speed > searchSpeed) {
        m_speed = 1;
        m_host.applySpeed(1);
    }
    m_host.tellPaused();
}

double SpeedControl::steppedPosition(Clock::time_point now) const
{
    const double reached = m_stepBase + static_cast<double>(m_speed) * seconds(now - m_stepStart);
    const double total = m_host.sourceLength();
    return std::clamp(reached, 0.0, total > 0 ? total : reached + 1);
}

void SpeedControl::tick(Clock::time_point now)
{
    if (!m_stepping || m_stepRuns)
        return;
    const double position = steppedPosition(now);
    const bool atStart = m_speed < 0 && position <= 0;
    const bool atEnd = m_speed > 0 && m_host.sourceLength() > 0 && position >= m_host.sourceLength();
    if (atStart || atEnd) {
        playAt(1, now);
        m_host.tellSpeed(1);
        return;
    }
    if (std::abs(position - m_lastStep) < smallestStep)
        return;
    m_lastStep = position;
    m_stepRuns = true;
    m_stepAsked = now;
    m_host.applyStep(position, m_exact);
}

void SpeedControl::stepDone(Clock::time_point now)
{
    if (!m_stepRuns)
        return;
    m_stepRuns = false;
    if (m_exact && now - m_stepAsked > slowStep)
        m_exact = false;
}

void SpeedControl::reposition(double position, Clock::time_point now)
{
    m_stepBase = position;
    m_stepStart = now;
    m_lastStep = position;
}

void SpeedControl::checkPace(double position, Clock::time_point now)
{
    if (m_stepping || m_paused || m_speed <= searchSpeed || !m_host.canStep()) {
        m_pacing = false;
        return;
    }
    if (!m_pacing || position < m_paceBase) {
        m_pacing = true;
        m_paceBase = position;
        m_paceStart = now;
        return;
    }
    const double elapsed = seconds(now - m_paceStart);
    if (now - m_paceStart < paceTime)
        return;
    const bool keepsUp = position - m_paceBase >= paceShare * elapsed * static_cast<double>(m_speed);
    m_pacing = false;
    if (!keepsUp)
        startStepping(m_speed, now);
}

void SpeedControl::startStepping(float speed, Clock::time_point now)
{
    const double from = m_stepping ? steppedPosition(now) : m_host.currentPosition();
    m_speed = speed;
    m_pacing = false;
    if (!m_stepping) {
        m_host.applyPause(true);
        m_host.applySpeed(1);
        m_exact = true;
        m_stepRuns = false;
    }
    m_stepping = true;
    reposition(from, now);
}

void SpeedControl::stopStepping(Clock::time_point now)
{
    if (!m_stepping)
        return;
    const double position = steppedPosition(now);
    m_stepping = false;
    m_stepRuns = false;
    m_host.applyPosition(position);
}

void SpeedControl::playAt(float speed, Clock::time_point now)
{
    stopStepping(now);
    m_speed = speed;
    m_pacing = false;
    m_host.applySpeed(static_cast<double>(speed));
    m_host.applyPause(false);
}
