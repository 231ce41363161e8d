#include "FolderMethods.h"

#include "IServerTasks.h"
#include "ListReplies.h"
#include "store/ILibraryRoots.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace {

// The folder as it can be compared: without links where it exists.
QString comparable(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(path) : canonical;
}

bool isInside(const QString &path, const QString &folder)
{
    const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    return path.size() > prefix.size() && path.startsWith(prefix);
}

} // namespace

FolderMethods::FolderMethods(ILibraryRoots &roots, IServerTasks &tasks)
    : m_roots(roots)
    , m_tasks(tasks)
{
}

void FolderMethods::addTo(MethodTable &table)
{
    struct Face {
        Library library;
        QLatin1String libraries;
        QLatin1String detail;
        QLatin1String addPath;
        QLatin1String deletePath;
    };
    const Face faces[] = {
        {Library::Video, QLatin1String("Server.GetLibraries"), QLatin1String("Server.GetLibraryDetail"),
         QLatin1String("VLibrary.AddPath"), QLatin1String("VLibrary.DeletePath")},
        {Library::Music, QLatin1String("VMusicLibrary.GetLibraries"),
         QLatin1String("VMusicLibrary.GetLibraryDetail"), QLatin1String("VMusicLibrary.AddPath"),
         QLatin1String("VMusicLibrary.DeletePath")},
    };
    for (const Face &face : faces) {
        const Library library = face.library;
        table.add({
            {face.libraries,
             {{Keys::type, ParamType::Text, Need::Optional}},
             [this, library](const Params &) { return libraries(library); }},
            {face.detail,
             {{Keys::LibraryId, ParamType::Integer}},
             [this, library](const Params &params) { return detail(library, params); }},
            {face.addPath,
             {{Keys::LibraryId, ParamType::Integer},
              {Keys::path, ParamType::Text},
              {Keys::name, ParamType::Text, Need::Optional},
              {Keys::type, ParamType::Text, Need::Optional},
              {Keys::autoscan, ParamType::Flag, Need::Optional},
              {Keys::scraperType, ParamType::Text, Need::Optional}},
             [this, library](const Params &params) { return addPath(library, params); }},
            {face.deletePath,
             {{Keys::LibraryId, ParamType::Integer}, {Keys::PathId, ParamType::Integer}},
             [this, library](const Params &params) { return deletePath(library, params); }},
        });
    }
}

int FolderMethods::idOf(Library library) const
{
    return library == Library::Video ? m_roots.videoLibraryId() : m_roots.musicLibraryId();
}

RpcReply FolderMethods::libraries(Library library) const
{
    const QJsonArray array{QJsonObject{{Keys::Library, idOf(library)}}};
    return RpcReply::good(QJsonObject{{Keys::libraries, array}});
}

RpcReply FolderMethods::detail(Library library, const Params &params) const
{
    const int id = params.integer(Keys::LibraryId);
    if (id != idOf(library))
        return ListReplies::unknownLibrary(id);
    return RpcReply::good(QJsonObject{{Keys::paths, RecordJson::array(m_roots.folders(id))}});
}

QString FolderMethods::objectionTo(const QString &path, int libraryId) const
{
    if (path.contains(QChar(0)) || !QDir::isAbsolutePath(path))
        return QStringLiteral("key \"path\" must be an absolute path");
    if (!QFileInfo(path).isDir())
        return QStringLiteral("there is no such folder: %1").arg(path);
    const QString wanted = comparable(path);
    const QVector<RootFolder> folders = m_roots.folders(libraryId);
    for (const RootFolder &folder : folders) {
        const QString known = comparable(folder.path);
        if (isInside(wanted, known))
            return QStringLiteral("the folder lies inside the library folder %1").arg(folder.path);
        if (isInside(known, wanted))
            return QStringLiteral("the folder holds the library folder %1").arg(folder.path);
    }
    return {};
}

RpcReply FolderMethods::addPath(Library library, const Params &params)
{
    const int libraryId = params.integer(Keys::LibraryId);
    if (libraryId != idOf(library))
        return ListReplies::unknownLibrary(libraryId);
    const QString path = QDir::cleanPath(params.text(Keys::path));
    const QString objection = objectionTo(path, libraryId);
    if (!objection.isEmpty())
        return RpcReply::failed(objection);

    // The same folder on another way, through a link, is the folder that is there already.
    const QVector<RootFolder> folders = m_roots.folders(libraryId);
    for (const RootFolder &folder : folders) {
        if (comparable(folder.path) == comparable(path))
            return addAgain(folder, params.text(Keys::scraperType));
    }
    const int id = m_roots.addFolder(libraryId, path, params.text(Keys::scraperType));
    if (id < 0)
        return RpcReply::failed(QStringLiteral("the folder could not be added: %1").arg(path));
    qInfo() << "[library] folder added:" << path;
    m_tasks.foldersChanged();
    return RpcReply::good(QJsonObject{{Keys::PathId, id}});
}

RpcReply FolderMethods::addAgain(const RootFolder &folder, const QString &scraperType)
{
    if (!scraperType.isEmpty() && scraperType != folder.scraperType) {
        if (m_roots.addFolder(folder.libraryId, folder.path, scraperType) != folder.pathId)
            return RpcReply::failed(QStringLiteral("the folder could not be changed: %1").arg(folder.path));
        qInfo() << "[library] folder is read as" << scraperType << "from now on:" << folder.path;
        m_tasks.rescan(folder.pathId);
    }
    return RpcReply::good(QJsonObject{{Keys::PathId, folder.pathId}});
}

RpcReply FolderMethods::deletePath(Library library, const Params &params)
{
    const int libraryId = params.integer(Keys::LibraryId);
    if (libraryId != idOf(library))
        return ListReplies::unknownLibrary(libraryId);
    const int pathId = params.integer(Keys::PathId);
    const QVector<RootFolder> folders = m_roots.folders(libraryId);
    const bool known = std::any_of(folders.begin(), folders.end(),
                                   [&](const RootFolder &folder) { return folder.pathId == pathId; });
    if (!known)
        return RpcReply::failed(QStringLiteral("the library has no folder with this PathId: %1").arg(pathId));
    if (!m_roots.removeFolder(libraryId, pathId))
        return RpcReply::failed(QStringLiteral("the folder could not be taken out: %1").arg(pathId));
    qInfo() << "[library] folder taken out:" << pathId;
    m_tasks.foldersChanged();
    return RpcReply::good(QJsonObject{{Keys::deletePath, true}});
}
