#include "EngineLoader.h"

#include "core/ApplicationInfoManager.h"

#include <QThread>

namespace {

QString defaultFile()
{
    const QString chosen = qEnvironmentVariable("QUORIN_ENGINE");
    return chosen.isEmpty()
               ? ApplicationInfoManager::instance()->applicationFolder() + QStringLiteral("/Orbix")
               : chosen;
}

} // namespace

LibraryEngineLoader::LibraryEngineLoader()
    : LibraryEngineLoader(defaultFile())
{
}

LibraryEngineLoader::LibraryEngineLoader(const QString &file)
    : m_library(file)
{
}

void LibraryEngineLoader::warmUp()
{
    QThread *reader = QThread::create([file = defaultFile()] {
        // Not unloaded at the end of the object: whoever plays takes it over.
        QLibrary(file).load();
    });
    QObject::connect(reader, &QThread::finished, reader, &QObject::deleteLater);
    reader->start();
}

bool LibraryEngineLoader::load()
{
    if (!m_library.load()) {
        m_error = m_library.errorString();
        return false;
    }
    m_create = reinterpret_cast<libvp::CreateVDPlayerFunction>(m_library.resolve(libvp::CreateVDPlayerName));
    m_release =
        reinterpret_cast<libvp::ReleaseVDPlayerFunction>(m_library.resolve(libvp::ReleaseVDPlayerName));
    if (m_create && m_release)
        return true;
    m_error = QStringLiteral("%1 has not both of %2 and %3")
                  .arg(m_library.fileName(), QLatin1String(libvp::CreateVDPlayerName),
                       QLatin1String(libvp::ReleaseVDPlayerName));
    unload();
    return false;
}

void LibraryEngineLoader::unload()
{
    m_create = nullptr;
    m_release = nullptr;
    if (m_library.isLoaded())
        m_library.unload();
}
