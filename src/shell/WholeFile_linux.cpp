#include "WholeFile_linux.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

QString WholeFile::write(const QString &path, const std::string &content, QFile::Permissions rights)
{
    const QFileInfo facts(path);
    // Root may write everything, but a file without any leave to write was meant to stay.
    constexpr auto anyWriter = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (facts.exists() && !(facts.permissions() & anyWriter))
        return QStringLiteral("it is read-only");
    QDir().mkpath(facts.path());
    QSaveFile file(path);
    // Only here does a full disk show: commit() asks for the errors of write() alone, which fills a buffer,
    // and would put the beginning of the content in the place of the file.
    const bool written = file.open(QIODevice::WriteOnly)
                         && file.write(content.data(), qint64(content.size())) == qint64(content.size())
                         && file.flush() && (!rights || file.setPermissions(rights));
    if (!written) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return reason;
    }
    return file.commit() ? QString() : file.errorString();
}
