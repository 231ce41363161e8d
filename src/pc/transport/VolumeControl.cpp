#include "VolumeControl.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QtMath>

namespace {

constexpr int kFullCount = 100;
constexpr int kLoudest = 200; // percent

// In whole percents, so that a hundred steps of one percent make exactly one.
int percentOf(float volume)
{
    return qBound(0, qRound(volume * 100.0F), kLoudest);
}

float volumeOf(int percent)
{
    return float(percent) / 100.0F;
}

} // namespace

VolumeControl::VolumeControl(PlayerCommands commands, SettingsManager &settings, QObject *parent)
    : QObject(parent)
    , m_commands(std::move(commands))
    , m_settings(settings)
{
    readSettings();
}

void VolumeControl::changeVolume(int step)
{
    if (!m_commands.hasSource())
        return;
    const int percent = percentOf(m_commands.volume()) + (step < 1 ? -1 : 1);
    const float volume = volumeOf(qBound(0, percent, kLoudest));
    showVolume(volume);
    m_commands.setVolume(volume);
}

void VolumeControl::setFromSlider(int count)
{
    const float volume = volumeOf(qBound(0, count, kFullCount));
    // Who moves the slider wants to hear it.
    if (m_muted && volume > 0)
        setMute(false);
    showVolume(volume);
    m_commands.setVolume(volume);
}

void VolumeControl::toggleMute()
{
    setMute(!m_muted);
}

void VolumeControl::setMute(bool muted)
{
    m_commands.setMute(muted);
    m_settings.setValue(QLatin1String(SettingsKeys::PC_VolumeMute), muted);
    showMute(muted);
}

void VolumeControl::restore()
{
    readSettings();
    reapply();
}

void VolumeControl::readSettings()
{
    const int count = m_settings.valueOr(QLatin1String(SettingsKeys::PC_VolumeCount), kFullCount);
    const bool muted = m_settings.valueOr(QLatin1String(SettingsKeys::PC_VolumeMute), false);
    showVolume(volumeOf(qBound(0, count, kFullCount)));
    showMute(muted);
}

void VolumeControl::reapply()
{
    m_commands.setVolume(m_volume);
    m_commands.setMute(m_muted);
}

void VolumeControl::store()
{
    m_settings.setValue(QLatin1String(SettingsKeys::PC_VolumeCount), m_volumeCount);
}

void VolumeControl::showVolume(float volume)
{
    const int percent = percentOf(volume);
    m_volume = volumeOf(percent);
    m_volumeCount = qMin(percent, kFullCount);
    emit volumeShown(m_volumeCount, m_volume);
}

void VolumeControl::showMute(bool muted)
{
    m_muted = muted;
    emit muteShown(muted);
}
