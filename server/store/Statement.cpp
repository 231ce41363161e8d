#include "Statement.h"

#include <QDebug>
#include <QSqlError>
#include <QVariant>

Statement::Statement(std::shared_ptr<QSqlQuery> query, StatementCounters *counters)
    : m_query(std::move(query))
    , m_counters(counters)
{
}

Statement::~Statement()
{
    if (m_query)
        m_query->finish();
}

void Statement::bind(int value)
{
    if (m_query)
        m_query->bindValue(m_position++, value);
}

void Statement::bind(qint64 value)
{
    if (m_query)
        m_query->bindValue(m_position++, value);
}

void Statement::bind(double value)
{
    if (m_query)
        m_query->bindValue(m_position++, value);
}

void Statement::bind(const QString &value)
{
    if (!m_query)
        return;
    // A tag may hold any character; a server takes no text with this one, and a batch must not fail for it.
    QString text = value.isNull() ? QStringLiteral("") : value;
    text.remove(QChar(QChar::Null));
    m_query->bindValue(m_position++, text);
}

bool Statement::execute()
{
    m_position = 0;
    if (!m_query)
        return false;
    ++m_counters->statements;
    if (m_query->exec())
        return true;
    qWarning().noquote() << "[store] statement refused:" << m_query->lastError().text() << "in"
                         << m_query->lastQuery();
    return false;
}

bool Statement::next()
{
    if (!m_query || !m_query->next())
        return false;
    ++m_counters->rows;
    return true;
}

int Statement::integer(int column) const
{
    return m_query->value(column).toInt();
}

qint64 Statement::number(int column) const
{
    return m_query->value(column).toLongLong();
}

double Statement::real(int column) const
{
    return m_query->value(column).toDouble();
}

QString Statement::text(int column) const
{
    return m_query->value(column).toString();
}

int Statement::changed() const
{
    return m_query ? m_query->numRowsAffected() : 0;
}
