#include "FileAssociation.h"

#include "core/ApplicationInfoManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

constexpr char kAutoplayEnding[] = "-autoplay.desktop";
constexpr char kApplicationEnding[] = ".desktop";

// What the desktop calls the media that the player handles on arrival.
constexpr char kDiscTypes[] = "x-content/video-dvd;x-content/video-bluray;x-content/video-vcd;";

QString entryPath(const char *ending)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
           + QStringLiteral("/applications/") + ApplicationInfoManager::desktopName() + QLatin1String(ending);
}

// A desktop entry quotes its command with a backslash before the characters that are special inside quotes.
QString quoted(QString path)
{
    for (const char special : {'\\', '"', '`', '$'})
        path.replace(QLatin1Char(special), QLatin1Char('\\') + QString(QLatin1Char(special)));
    path.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

bool removeEntry(const char *ending)
{
    const QString path = entryPath(ending);
    const bool gone = !QFile::exists(path) || QFile::remove(path);
    qInfo().noquote() << "[File association] remove" << path << (gone ? "success" : "fail");
    return gone;
}

} // namespace

bool FileAssociation::RegisterAutoplay(bool enable)
{
    if (!enable)
        return removeEntry(kAutoplayEnding);
    const QString path = entryPath(kAutoplayEnding);
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    bool written = file.open(QIODevice::WriteOnly | QIODevice::Text);
    if (written) {
        const QString text =
            QStringLiteral("[Desktop Entry]\n"
                           "Type=Application\n"
                           "Name=%1\n"
                           "Exec=%2 %f\n"
                           "MimeType=%3\n"
                           "NoDisplay=true\n")
                .arg(QString(ApplicationInfoManager::instance()->productName()),
                     quoted(QCoreApplication::applicationFilePath()), QLatin1String(kDiscTypes));
        file.write(text.toUtf8());
        written = file.commit();
    }
    qInfo().noquote() << "[File association] write" << path << (written ? "success" : "fail");
    return written;
}

bool FileAssociation::UnregisterApplication()
{
    return removeEntry(kApplicationEnding);
}
