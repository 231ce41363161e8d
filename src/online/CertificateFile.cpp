#include "CertificateFile.h"

#include "core/ApplicationInfoManager.h"
#include "core/LogHandler.h"

#include <QFileInfo>

namespace {

// The order is that of the search.
using NameSource = QString (*)();
constexpr NameSource kNames[] = {&ApplicationInfoManager::certificateFileName};

} // namespace

QString CertificateFile::find(const QString &folder)
{
    for (const NameSource name : kNames) {
        const QFileInfo file(folder + QLatin1Char('/') + name());
        if (file.isFile())
            return file.absoluteFilePath();
    }
    logPrintf("crt file missing!\n");
    return {};
}
