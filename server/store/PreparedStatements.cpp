#include "PreparedStatements.h"

#include <QHash>

#include <algorithm>

std::size_t PreparedStatements::TextHash::operator()(const QString &sql) const
{
    constexpr qsizetype kHashed = 48;
    const QStringView text(sql);
    return qHash(text.right(qMin(kHashed, text.size()))) + static_cast<uint>(sql.size());
}

PreparedStatements::PreparedStatements(std::size_t capacity)
    : m_capacity(std::max<std::size_t>(capacity, 1))
{
}

PreparedStatements::Query PreparedStatements::find(const QString &sql)
{
    const auto place = m_places.find(sql);
    if (place == m_places.end())
        return nullptr;
    m_entries.splice(m_entries.begin(), m_entries, place->second);
    return place->second->query;
}

void PreparedStatements::insert(const QString &sql, const Query &query)
{
    const auto place = m_places.find(sql);
    if (place != m_places.end()) {
        m_entries.erase(place->second);
        m_places.erase(place);
    }
    while (m_entries.size() >= m_capacity) {
        m_places.erase(m_entries.back().sql);
        m_entries.pop_back();
    }
    m_entries.push_front({sql, query});
    m_places.emplace(sql, m_entries.begin());
}

void PreparedStatements::clear()
{
    m_places.clear();
    m_entries.clear();
}
