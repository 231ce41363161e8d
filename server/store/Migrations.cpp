#include "Migrations.h"

#include "Connection.h"

#include <QDebug>

namespace {

QString forDatabase(QString statement, bool isFile)
{
    // A server's own collation would sort and compare by its language; here the program decides what is
    // compared.
    statement.replace(QLatin1String("{text}"),
                      isFile ? QLatin1String("TEXT") : QLatin1String("TEXT COLLATE \"C\""));
    statement.replace(QLatin1String("{real}"),
                      isFile ? QLatin1String("REAL") : QLatin1String("DOUBLE PRECISION"));
    return statement;
}

} // namespace

Migrations::Migrations(const QVector<Migration> &steps)
    : m_steps(steps)
{
}

int Migrations::version(Connection &connection)
{
    if (!connection.execute(
            QStringLiteral("CREATE TABLE IF NOT EXISTS schema_version (version INTEGER NOT NULL)")))
        return -1;
    Statement read = connection.prepare(QStringLiteral("SELECT version FROM schema_version"));
    if (!read.run())
        return -1;
    return read.next() ? read.integer(0) : 0;
}

bool Migrations::apply(Connection &connection) const
{
    const int present = version(connection);
    if (present < 0)
        return false;
    if (present > m_steps.size()) {
        qWarning() << "[store] the database is of a later program:" << present << "of" << m_steps.size();
        return false;
    }
    for (int step = present; step < m_steps.size(); ++step) {
        if (!connection.begin(Connection::Durability::Full))
            return false;
        if (!applyStep(connection, m_steps.at(step), step + 1) || !connection.commit()) {
            connection.rollback();
            qWarning() << "[store] step" << step + 1 << "failed:" << m_steps.at(step).name;
            return false;
        }
        qInfo() << "[store] step" << step + 1 << "done:" << m_steps.at(step).name;
    }
    return true;
}

bool Migrations::applyStep(Connection &connection, const Migration &step, int number)
{
    for (const QString &statement : step.statements) {
        if (!connection.execute(forDatabase(statement, connection.isFile())))
            return false;
    }
    return connection.execute(QStringLiteral("DELETE FROM schema_version"))
           && connection.prepare(QStringLiteral("INSERT INTO schema_version (version) VALUES (?)"))
                  .run(number);
}
