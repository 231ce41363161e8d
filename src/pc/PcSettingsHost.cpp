#include "PcSettingsHost.h"

#include "core/SettingsManager.h"
#include "core/ThreadWorker.h"
#include "library/MediaServerManager.h"
#include "online/OutgoingProxy.h"
#include "online/WebServiceManager.h"
#include "player/EnginePreferences.h"
#include "player/QPlayer.h"
#include "shell/FileAssociation.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace {

constexpr int kDesktopStopMs = 500;
constexpr int kUntilItEnds = -1;
constexpr char kDefaultPrograms[] = "ms-settings:defaultapps";

} // namespace

PcSettingsHost::PcSettingsHost(SettingsManager &settings, std::function<QPlayer *()> player)
    : m_settings(settings)
    , m_player(std::move(player))
    , m_desktop(std::make_unique<ThreadWorker>(1))
    , m_engine(std::make_unique<ThreadWorker>(1))
{
}

PcSettingsHost::~PcSettingsHost()
{
    shutDown();
}

void PcSettingsHost::shutDown()
{
    m_desktop->stop(kDesktopStopMs);
    // The player is in use until the call has come back.
    m_engine->stop(kUntilItEnds);
}

// ---- the engine

QList<SettingsAudioDevice> PcSettingsHost::audioDevices()
{
    QList<SettingsAudioDevice> devices;
    QPlayer *player = m_player();
    if (player == nullptr)
        return devices;
    const auto known = player->knownAudioDevices();
    for (const PlayerAudioDevice &device : known)
        devices.append({device.name, device.connection, device.capability});
    if (known.isEmpty() && !m_isAskingDevices)
        askDevices(player);
    return devices;
}

void PcSettingsHost::setAudioDevicesHandler(std::function<void()> handler)
{
    m_devicesHandler = std::move(handler);
}

void PcSettingsHost::askDevices(QPlayer *player)
{
    m_isAskingDevices = true;
    const auto isFound = std::make_shared<bool>(false);
    m_engine->addTask([player, isFound] { *isFound = !player->audioDevices().isEmpty(); },
                      [this, isFound] {
                          m_isAskingDevices = false;
                          if (*isFound && m_devicesHandler)
                              m_devicesHandler();
                      });
}

void PcSettingsHost::apply(void (*group)(EnginePreferences &))
{
    QPlayer *player = m_player();
    if (player == nullptr)
        return;
    m_engine->addTask([this, player, group] {
        EnginePreferences preferences(m_settings, *player);
        group(preferences);
    });
}

void PcSettingsHost::applyVideo()
{
    apply([](EnginePreferences &preferences) { preferences.applyVideo(); });
}

void PcSettingsHost::applyAudio()
{
    apply([](EnginePreferences &preferences) { preferences.applyAudio(EnginePreferences::Occasion::Save); });
}

void PcSettingsHost::applySubtitle()
{
    apply([](EnginePreferences &preferences) { preferences.applySubtitle(); });
}

void PcSettingsHost::applyRegion()
{
    apply([](EnginePreferences &preferences) { preferences.applyRegion(); });
}

void PcSettingsHost::applyProxy()
{
    apply([](EnginePreferences &preferences) { preferences.applyProxy(); });
}

void PcSettingsHost::applyServerProxy()
{
    WebServiceManager::instance()->setProxy({m_settings.proxyEnable(), m_settings.proxyType(),
                                             m_settings.proxyHost(), m_settings.proxyPort(),
                                             m_settings.proxyUserName(), m_settings.proxyPasswd()});
    // The server may take two seconds to answer.
    m_desktop->addTask([library = MediaServerManager::instance()] { library->applyProxy(); });
}

void PcSettingsHost::askSystemProxy()
{
    const auto found = std::make_shared<ProxyInfo>();
    m_desktop->addTask([found] { *found = ::systemProxy(); },
                       [this, found] {
                           const bool isSet = !found->host.isEmpty();
                           m_systemProxy = {found->host, isSet ? QString::number(found->port) : QString()};
                       });
}

// ---- the desktop

void PcSettingsHost::readAssociations(std::function<void(const QStringList &)> answer)
{
    const auto found = std::make_shared<QStringList>();
    m_desktop->addTask([found] { *found = FileAssociation::associatedExtensions(); },
                       [found, answer = std::move(answer)] { answer(*found); });
}

void PcSettingsHost::changeAssociations(const QStringList &add, const QStringList &remove,
                                        std::function<void(bool)> done)
{
    const auto isDone = std::make_shared<bool>(false);
    m_desktop->addTask([isDone, add, remove] { *isDone = FileAssociation::ChangeExtensions(add, remove); },
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

ILibraryPaths *PcSettingsHost::library()
{
    if (!m_library && m_makeLibrary)
        m_library = m_makeLibrary();
    return m_library.get();
}
