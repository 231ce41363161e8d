#include "EngineLoader.h"

#include "platform/LibraryNeeds.h"
#include "platform/ProgramFolder.h"

#include <QDebug>
#include <QFileInfo>

#include <future>
#include <system_error>
#include <thread>

namespace {

// The reading ahead, once it has begun.
std::shared_future<void> &readAhead()
{
    static std::shared_future<void> done;
    return done;
}

QString defaultFile()
{
    const QString chosen = qEnvironmentVariable("QUORIN_ENGINE");
    return chosen.isEmpty() ? programFolder() + QStringLiteral("/Orbix") : chosen;
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
    std::packaged_task<void()> read([file = defaultFile()] {
        const QFileInfo named(file);
        LibraryNeeds::load(
            named.isFile() ? file : QStringLiteral("%1/lib%2.so").arg(named.path(), named.fileName()));
        // Not unloaded at the end of the object: whoever plays takes it over.
        QLibrary(file).load();
    });
    const std::shared_future<void> done = read.get_future();
    try {
        std::thread(std::move(read)).detach();
        readAhead() = done;
    } catch (const std::system_error &error) {
        qInfo() << "[Engine] nothing is read ahead:" << error.what();
    }
}

bool LibraryEngineLoader::load()
{
    // Loaded meanwhile it would come with all that is not there yet in one call.
    if (readAhead().valid())
        readAhead().wait();
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
