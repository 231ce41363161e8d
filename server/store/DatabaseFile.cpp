#include "DatabaseFile.h"

#include "Connection.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <filesystem>
#include <system_error>

namespace {

const QLatin1String kCheckConnection("quorin-store-check");
// What belongs to the file while it is open and, after a kill, until it is opened again.
const QLatin1String kCompanions[] = {QLatin1String(""), QLatin1String("-wal"), QLatin1String("-shm")};

// SQLite's own numbers for "malformed" and "not a database" (sqlite.org/rescode.html); extended codes carry
// them in the low byte.
bool meansDamage(const QSqlError &error)
{
    constexpr int kCorrupt = 11;
    constexpr int kNotADatabase = 26;
    constexpr int kPrimaryMask = 0xff;
    const int code = error.nativeErrorCode().toInt() & kPrimaryMask;
    return code == kCorrupt || code == kNotADatabase;
}

bool replaceFile(const QString &from, const QString &to)
{
    // QFile::rename() does not replace, and between a removal and a renaming there would be no backup at all.
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return !error;
}

} // namespace

DatabaseFile::DatabaseFile(const QString &path, const QString &backupPath)
    : m_path(path)
    , m_backupPath(backupPath)
{
}

DatabaseFile::State DatabaseFile::check(const QString &path)
{
    State state = State::Unreadable;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kCheckConnection);
        database.setDatabaseName(path);
        QSqlError error;
        if (!database.open()) {
            error = database.lastError();
        } else {
            QSqlQuery query(database);
            if (query.exec(QStringLiteral("PRAGMA quick_check(1)")) && query.next()) {
                const QString verdict = query.value(0).toString();
                state = verdict == QLatin1String("ok") ? State::Whole : State::Damaged;
                if (state == State::Damaged)
                    qWarning().noquote() << "[store] check of the database:" << verdict;
            }
            error = query.lastError();
        }
        if (state == State::Unreadable && error.isValid()) {
            qWarning().noquote() << "[store] check of the database:" << error.text();
            if (meansDamage(error))
                state = State::Damaged;
        }
    }
    QSqlDatabase::removeDatabase(kCheckConnection);
    return state;
}

bool DatabaseFile::makeWhole() const
{
    if (QFile::exists(m_path)) {
        switch (check(m_path)) {
        case State::Whole:
            return true;
        case State::Unreadable:
            return false;
        case State::Damaged:
            break;
        }
        if (!setAside())
            return false;
    }
    if (!QFile::exists(m_backupPath))
        return true;
    if (check(m_backupPath) != State::Whole) {
        qWarning() << "[store] the backup is of no use, a new database begins";
        return true;
    }
    const QString copy = m_path + QStringLiteral(".new");
    QFile::remove(copy);
    if (!QFile::copy(m_backupPath, copy) || !QFile::rename(copy, m_path)) {
        qWarning() << "[store] the backup cannot be put in place";
        return false;
    }
    qWarning() << "[store] the backup was put in place of the database";
    return true;
}

bool DatabaseFile::setAside() const
{
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString target = m_path + QStringLiteral(".damaged-") + stamp;
    for (int attempt = 1; QFile::exists(target); ++attempt)
        target = QStringLiteral("%1.damaged-%2-%3").arg(m_path, stamp).arg(attempt);
    // The journal goes along: on another file it would be replayed into what it does not belong to.
    for (const QLatin1String &companion : kCompanions) {
        if (QFile::exists(m_path + companion) && !QFile::rename(m_path + companion, target + companion)) {
            qWarning() << "[store] the damaged database cannot be set aside as" << target + companion;
            return false;
        }
    }
    qWarning() << "[store] the database is damaged and was set aside as" << target;
    return true;
}

bool DatabaseFile::isBackedUp() const
{
    const QFileInfo backup(m_backupPath);
    if (!backup.exists())
        return false;
    for (const QLatin1String companion : {QLatin1String(""), QLatin1String("-wal")}) {
        const QFileInfo file(m_path + companion);
        if (file.exists() && file.size() > 0 && file.lastModified() >= backup.lastModified())
            return false;
    }
    return true;
}

bool DatabaseFile::backUp(Connection &connection) const
{
    if (isBackedUp())
        return true;
    const QString copy = m_backupPath + QStringLiteral(".new");
    QFile::remove(copy);
    QString quoted = copy;
    quoted.replace(QLatin1Char('\''), QLatin1String("''"));
    if (!connection.execute(QStringLiteral("VACUUM INTO '%1'").arg(quoted))
        || !replaceFile(copy, m_backupPath)) {
        qWarning() << "[store] the database could not be backed up to" << m_backupPath;
        QFile::remove(copy);
        return false;
    }
    qInfo() << "[store] the database was backed up to" << m_backupPath;
    return true;
}
