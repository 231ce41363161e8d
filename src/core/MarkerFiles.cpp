#include "MarkerFiles.h"

#include "ApplicationInfoManager.h"
#include "PlatformNames.h"

#include <QFile>

bool MarkerFiles::exists(const QString &drivePath)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = m_answers.constFind(drivePath);
    if (known != m_answers.constEnd())
        return *known;
    const QString path =
        m_resolver ? m_resolver(drivePath)
                   : PlatformNames::markerFile(drivePath, ApplicationInfoManager::instance()->dataFolder());
    const bool found = QFile::exists(path);
    m_answers.insert(drivePath, found);
    return found;
}

void MarkerFiles::setResolver(Resolver resolver)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_resolver = std::move(resolver);
    m_answers.clear();
}
