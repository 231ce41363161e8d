#include "PcSettingsHost.h"

#include "core/ThreadWorker.h"
#include "player/EnginePreferences.h"
#include "player/QPlayer.h"
#include "shell/FileAssociation.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace {

constexpr int kStopMs = 500;
constexpr char kDefaultPrograms[] = "ms-settings:defaultapps";

} // namespace

PcSettingsHost::PcSettingsHost(SettingsManager &settings, std::function<QPlayer *()> player)
    : m_settings(settings)
    , m_player(std::move(player))
    , m_worker(std::make_unique<ThreadWorker>(1))
{
}

PcSettingsHost::~PcSettingsHost()
{
    m_worker->stop(kStopMs);
}

QList<SettingsAudioDevice> PcSettingsHost::audioDevices() const
{
    QList<SettingsAudioDevice> devices;
    QPlayer *player = m_player();
    if (player == nullptr)
        return devices;
    // Asked on the worker of the set-up already.
    const auto known = player->audioDevices();
    for (const PlayerAudioDevice &device : known)
        devices.append({device.name, device.connection, device.capability});
    return devices;
}

void PcSettingsHost::applyVideo()
{
    if (QPlayer *player = m_player())
        EnginePreferences(m_settings, *player).applyVideo();
}

void PcSettingsHost::applyAudio()
{
    if (QPlayer *player = m_player())
        EnginePreferences(m_settings, *player).applyAudio(EnginePreferences::Occasion::Save);
}

void PcSettingsHost::applySubtitle()
{
    if (QPlayer *player = m_player())
        EnginePreferences(m_settings, *player).applySubtitle();
}

void PcSettingsHost::applyRegion()
{
    if (QPlayer *player = m_player())
        EnginePreferences(m_settings, *player).applyRegion();
}

void PcSettingsHost::applyProxy()
{
    if (QPlayer *player = m_player())
        EnginePreferences(m_settings, *player).applyProxy();
}

void PcSettingsHost::readAssociations(std::function<void(const QStringList &)> answer)
{
    const auto found = std::make_shared<QStringList>();
    m_worker->addTask([found] { *found = FileAssociation::associatedExtensions(); },
                      [found, answer = std::move(answer)] { answer(*found); });
}

void PcSettingsHost::changeAssociations(const QStringList &add, const QStringList &remove,
                                        std::function<void(bool)> done)
{
    const auto isDone = std::make_shared<bool>(false);
    m_worker->addTask([isDone, add, remove] { *isDone = FileAssociation::ChangeExtensions(add, remove); },
                      [isDone, done = std::move(done)] { done(*isDone); });
}

void PcSettingsHost::openSystemSettings()
{
    QDesktopServices::openUrl(QUrl(QLatin1String(kDefaultPrograms)));
}

bool PcSettingsHost::startProgram(const QString &commandLine)
{
    QStringList parts = QProcess::splitCommand(commandLine);
    return !parts.isEmpty() && QProcess::startDetached(parts.takeFirst(), parts);
}
