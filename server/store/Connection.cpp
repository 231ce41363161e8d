#include "Connection.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>

#include <atomic>

namespace {

// How long a connection waits for another process that writes, in milliseconds.
const QLatin1String kBusyTimeout("QSQLITE_BUSY_TIMEOUT=10000");

// The journal grows to 16 MB before it is taken into the file, for which a change waits until the disk has
// both: four times the usual, since a scan changes the same pages with each of its batches.
constexpr int kCheckpointPages = 4000;

QString nextName()
{
    static std::atomic<quint64> serial{0};
    return QStringLiteral("quorin-store-%1").arg(++serial);
}

} // namespace

Connection::Connection(const ConnectionSettings &settings, Access access)
    : m_settings(settings)
    , m_name(nextName())
    , m_database(QSqlDatabase::addDatabase(settings.driver, m_name))
{
    m_database.setDatabaseName(settings.name);
    if (isFile()) {
        m_database.setConnectOptions(kBusyTimeout);
    } else {
        m_database.setHostName(settings.host);
        m_database.setPort(settings.port);
        m_database.setUserName(settings.user);
        m_database.setPassword(settings.password);
    }
    if (!m_database.open()) {
        qWarning().noquote() << "[store] cannot open the database:" << m_database.lastError().text();
        return;
    }
    if (!configure(access))
        m_database.close();
}

Connection::~Connection()
{
    m_prepared.clear();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

bool Connection::configure(Access access)
{
    if (!isFile()) {
        return execute(QStringLiteral("SET client_min_messages TO warning"))
               && (access == Access::Write
                   || execute(QStringLiteral("SET SESSION CHARACTERISTICS AS TRANSACTION READ ONLY")));
    }
    if (access == Access::Read) {
        return execute(QStringLiteral("PRAGMA temp_store = MEMORY"))
               && execute(QStringLiteral("PRAGMA query_only = ON"));
    }
    return execute(QStringLiteral("PRAGMA journal_mode = WAL"))
           && execute(QStringLiteral("PRAGMA wal_autocheckpoint = %1").arg(kCheckpointPages))
           && execute(QStringLiteral("PRAGMA synchronous = NORMAL"))
           && execute(QStringLiteral("PRAGMA foreign_keys = ON"))
           && execute(QStringLiteral("PRAGMA temp_store = MEMORY"));
}

bool Connection::isOpen() const
{
    return m_database.isOpen();
}

Statement Connection::prepare(const QString &sql)
{
    if (PreparedStatements::Query known = m_prepared.find(sql))
        return Statement(std::move(known), &m_counters);
    auto query = std::make_shared<QSqlQuery>(m_database);
    // A server's rows are fetched at once: read one by one they would shut out every other statement
    // meanwhile.
    query->setForwardOnly(isFile());
    if (!isOpen() || !query->prepare(sql)) {
        qWarning().noquote() << "[store] cannot prepare:" << query->lastError().text() << "in" << sql;
        return Statement(nullptr, &m_counters);
    }
    m_prepared.insert(sql, query);
    return Statement(std::move(query), &m_counters);
}

bool Connection::execute(const QString &sql)
{
    QSqlQuery query(m_database);
    ++m_counters.statements;
    if (query.exec(sql))
        return true;
    qWarning().noquote() << "[store] statement refused:" << query.lastError().text() << "in" << sql;
    return false;
}

bool Connection::begin(Durability durability)
{
    if (!isOpen())
        return false;
    if (!isFile())
        return execute(QStringLiteral("BEGIN"));
    if (durability != m_durability) {
        if (!execute(durability == Durability::Full ? QStringLiteral("PRAGMA synchronous = FULL")
                                                    : QStringLiteral("PRAGMA synchronous = NORMAL")))
            return false;
        m_durability = durability;
    }
    // The lock for writing at once: another process that writes is waited for here and not in the middle.
    return execute(QStringLiteral("BEGIN IMMEDIATE"));
}

bool Connection::commit()
{
    return execute(QStringLiteral("COMMIT"));
}

void Connection::rollback()
{
    if (isOpen())
        execute(QStringLiteral("ROLLBACK"));
}
