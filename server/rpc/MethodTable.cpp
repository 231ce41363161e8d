#include "MethodTable.h"

void MethodTable::add(const QVector<MethodRow> &rows)
{
    for (const MethodRow &row : rows) {
        Q_ASSERT(!m_rows.contains(row.name));
        m_rows.insert(row.name, row);
    }
}

const MethodRow *MethodTable::find(const QString &name) const
{
    const auto found = m_rows.constFind(name);
    return found == m_rows.constEnd() ? nullptr : &found.value();
}

QStringList MethodTable::names() const
{
    QStringList names = m_rows.keys();
    names.sort();
    return names;
}
