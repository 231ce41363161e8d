#include "DesktopEntries_linux.h"

#include "DesktopEntryTexts.h"
#include "WholeFile_linux.h"

#include "core/ApplicationInfoManager.h"
#include "registry/IniText.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr char kGroup[] = "Desktop Entry";
constexpr char kVerbGroup[] = "Desktop Action PlayWithQuorinSix";
constexpr char kExec[] = "Exec";
constexpr char kTryExec[] = "TryExec";
constexpr char kMimeType[] = "MimeType";
constexpr char kDiscPrefix[] = "x-content/";
// Entries of a user's menu count only when they may be executed: a download must not add one.
constexpr auto kMenuRights = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup
                             | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
constexpr int kRefreshMs = 10000;

QString dataHome()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString applicationsFolder()
{
    return dataHome() + QStringLiteral("/applications");
}

QString menuFile()
{
    return dataHome() + QStringLiteral("/kio/servicemenus/") + DesktopEntries::programEntry();
}

QString userEntry(const QString &name)
{
    return applicationsFolder() + QLatin1Char('/') + name;
}

// An entry quotes its command with a backslash before the characters that are special inside quotes, and each
// backslash is doubled once more as in every text of an entry; a percent sign would begin a field.
QString quoted(QString path)
{
    for (const char special : {'\\', '"', '`', '$'})
        path.replace(QLatin1Char(special), QLatin1Char('\\') + QString(QLatin1Char(special)));
    path.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    path.replace(QLatin1Char('%'), QLatin1String("%%"));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

std::string command()
{
    return (quoted(QCoreApplication::applicationFilePath()) + QStringLiteral(" %f")).toStdString();
}

// A template with this program in the place of the installed command.
std::string withThisProgram(const char *text, const char *tryIn)
{
    IniText entry(IniText::Names::ExactCase, text);
    QString program = QCoreApplication::applicationFilePath();
    program.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    if (tryIn) {
        entry.setValue(tryIn, kTryExec, program.toStdString());
        entry.setValue(tryIn, kExec, command());
    }
    entry.setValue(kVerbGroup, kExec, command());
    return entry.text();
}

std::string contentOf(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll().toStdString()
                                                                      : std::string();
}

bool write(const QString &path, const std::string &text, QFile::Permissions rights = {})
{
    if (contentOf(path) == text && (!rights || (QFile::permissions(path) & rights) == rights))
        return true;
    const QString reason = WholeFile::write(path, text, rights);
    qInfo().noquote() << "[FileAss] write" << path
                      << (reason.isEmpty() ? QStringLiteral("success") : "fail: " + reason);
    return reason.isEmpty();
}

bool remove(const QString &path)
{
    if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
        return true;
    const bool gone = QFile::remove(path);
    qInfo().noquote() << "[FileAss] remove" << path << (gone ? "success" : "fail");
    return gone;
}

// Whether an entry outside the user's own folder starts a program that is there.
bool isInstalledForTheMachine()
{
    const QStringList found =
        QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, DesktopEntries::programEntry());
    for (const QString &path : found) {
        if (path.startsWith(applicationsFolder()))
            continue;
        const IniText entry(IniText::Names::ExactCase, contentOf(path));
        const std::string program = entry.value(kGroup, kTryExec).value_or(std::string());
        if (!QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty())
            return true;
    }
    return false;
}

// The desktop looks types up in an index of the folder's entries.
void refreshIndex()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("update-desktop-database"));
    if (program.isEmpty())
        return;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, {QStringLiteral("-q"), applicationsFolder()});
    if (process.waitForFinished(kRefreshMs))
        return;
    qInfo().noquote() << "[FileAss] no end of" << program << process.errorString();
    process.kill();
    process.waitForFinished(kRefreshMs);
}

} // namespace

QString DesktopEntries::programEntry()
{
    return ApplicationInfoManager::desktopName() + QStringLiteral(".desktop");
}

QString DesktopEntries::autoplayEntry()
{
    return ApplicationInfoManager::desktopName() + QStringLiteral("-autoplay.desktop");
}

QStringList DesktopEntries::types()
{
    const IniText entry(IniText::Names::ExactCase, kDesktopEntryText);
    return QString::fromStdString(entry.value(kGroup, kMimeType).value_or(std::string()))
        .split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

QStringList DesktopEntries::typesOf(const QString &extension)
{
    const QStringList offered = types();
    QStringList found;
    const QList<QMimeType> all = QMimeDatabase().mimeTypesForFileName(QStringLiteral("file.") + extension);
    for (const QMimeType &type : all) {
        // What the program does not offer to open stays as it is: a suffix may stand for other things as
        // well.
        if (offered.contains(type.name()))
            found << type.name();
    }
    return found;
}

QStringList DesktopEntries::discTypes()
{
    QStringList found;
    const QStringList all = types();
    for (const QString &type : all) {
        if (type.startsWith(QLatin1String(kDiscPrefix)))
            found << type;
    }
    return found;
}

bool DesktopEntries::writeProgram()
{
    if (isInstalledForTheMachine())
        return true;
    bool written = write(userEntry(programEntry()), withThisProgram(kDesktopEntryText, kGroup));
    written = write(menuFile(), withThisProgram(kServiceMenuText, nullptr), kMenuRights) && written;
    refreshIndex();
    return written;
}

bool DesktopEntries::removeProgram()
{
    bool gone = remove(userEntry(programEntry()));
    gone = remove(menuFile()) && gone;
    refreshIndex();
    return gone;
}

bool DesktopEntries::writeAutoplay()
{
    IniText entry(IniText::Names::ExactCase);
    entry.setValue(kGroup, "Type", "Application");
    entry.setValue(kGroup, "Name", ApplicationInfoManager::productName().toStdString());
    entry.setValue(kGroup, "Icon", ApplicationInfoManager::desktopName().toStdString());
    entry.setValue(kGroup, kExec, command());
    entry.setValue(kGroup, kMimeType, (discTypes().join(QLatin1Char(';')) + QLatin1Char(';')).toStdString());
    entry.setValue(kGroup, "NoDisplay", "true");
    const bool written = write(userEntry(autoplayEntry()), entry.text());
    refreshIndex();
    return written;
}

bool DesktopEntries::removeAutoplay()
{
    const bool gone = remove(userEntry(autoplayEntry()));
    refreshIndex();
    return gone;
}
