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

void PcSettingsHost::refreshAssociations()
{
    const auto found = std::make_shared<QStringList>();
    m_worker->addTask([found] { *found = FileAssociation::associatedExtensions(); },
                      [this, found] { m_associated = *found; });
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

QStringList PcSettingsHost::associatedExtensions() const
{
    return m_associated;
}

void PcSettingsHost::changeAssociations(const QStringList &add, const QStringList &remove,
                                        std::function<void(bool)> done)
{
    struct Outcome {
        bool isDone{false};
        QStringList associated;
    };
    const auto outcome = std::make_shared<Outcome>();
    m_worker->addTask(
        [outcome, add, remove] {
            outcome->isDone = FileAssociation::ChangeExtensions(add, remove);
            outcome->associated = FileAssociation::associatedExtensions();
        },
        [this, outcome, done = std::move(done)] {
            m_associated = outcome->associated;
            done(outcome->isDone);
        });
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
