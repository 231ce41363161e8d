#include "IServerService.h"

#include "IMediaLibraryApi.h"

#include "core/ApplicationInfoManager.h"

#include <QDebug>

namespace {

constexpr char kLibraryName[] = "MediaLibraryAPI";
constexpr char kEntry[] = "GetMediaLibraryApiInstance";
constexpr char kCatalogue[] = "media";

const char *textOf(const char *argument)
{
    return argument ? argument : "";
}

} // namespace

IServerService::IServerService()
    : IServerService(ApplicationInfoManager::instance()->applicationFolder() + QLatin1Char('/')
                         + QLatin1String(kLibraryName),
                     ApplicationInfoManager::instance()->mediaServerFolder(),
                     ApplicationInfoManager::instance()->posterTempFolder())
{
}

IServerService::IServerService(const QString &libraryPath, const QString &dataFolder,
                               const QString &pictureFolder)
    : m_dataFolder(dataFolder)
    , m_pictureFolder(pictureFolder)
    , m_library(libraryPath)
{
}

IServerService::~IServerService() = default;

bool IServerService::init()
{
    std::lock_guard lock(m_mutex);
    if (m_api)
        return true;
    if (!m_library.load()) {
        qInfo().noquote() << "[library] no pictures of discs:" << m_library.errorString();
        return false;
    }
    try {
        m_api = makeInstance();
    } catch (...) {
        qInfo() << "[library] the library of disc pictures failed";
        m_api = nullptr;
    }
    return true;
}

IMediaLibraryApi *IServerService::makeInstance()
{
    using Entry = IMediaLibraryApi *(*)();
    const auto entry = reinterpret_cast<Entry>(m_library.resolve(kEntry));
    IMediaLibraryApi *api = entry ? entry() : nullptr;
    const QByteArray data = m_dataFolder.toUtf8();
    const QByteArray pictures = m_pictureFolder.toUtf8();
    if (api && api->open(data.constData(), pictures.constData(), kCatalogue, "", "") != 0)
        return api;
    qInfo() << "[library] the library of disc pictures gives no instance";
    return nullptr;
}

const char *IServerService::callService(const char *key, const char *argument1, const char *argument2)
{
    std::lock_guard lock(m_mutex);
    if (!m_api)
        return nullptr;
    try {
        const char *answer = m_api->callService(textOf(key), textOf(argument1), textOf(argument2));
        if (!answer)
            return nullptr;
        m_answer = answer;
        return m_answer.c_str();
    } catch (...) {
        qInfo() << "[library] the library of disc pictures failed";
        return nullptr;
    }
}
