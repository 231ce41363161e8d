#include "LibraryFilters.h"

#include "ProtocolNames.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QDebug>

namespace {

// By the index in the settings.
constexpr std::array<const char *, 4> kSortMethods{Rpc::Text::title, Rpc::Text::year, Rpc::Text::dateadded,
                                                   Rpc::Text::rating};

LibraryQuery::Filter LibraryQuery::*filterOf(const QString &type)
{
    if (type == QLatin1String(Rpc::Text::movie))
        return &LibraryQuery::movie;
    if (type == QLatin1String(Rpc::Text::tvshow))
        return &LibraryQuery::tvShow;
    qInfo().noquote() << "[library] nothing to filter is called" << type;
    return nullptr;
}

} // namespace

LibraryFilters::LibraryFilters(SettingsManager &settings)
    : m_settings(settings)
{
    m_query.sortMethod = QLatin1String(kSortMethods.front());
    setSortMethod(settings.mediaServerSortMethod());
    // A list in falling order is nothing that a new user has asked for.
    setSortOrder(settings.valueOr(QLatin1String(SettingsKeys::PC_MediaServerSortOrder), true));
}

LibraryQuery LibraryFilters::query() const
{
    std::lock_guard lock(m_mutex);
    return m_query;
}

void LibraryFilters::setSortMethod(int index)
{
    if (index >= 0 && std::size_t(index) < kSortMethods.size()) {
        std::lock_guard lock(m_mutex);
        m_query.sortMethod = QLatin1String(kSortMethods[std::size_t(index)]);
    }
    m_settings.setMediaServerSortMethod(index);
}

void LibraryFilters::setSortOrder(bool ascending)
{
    {
        std::lock_guard lock(m_mutex);
        m_query.sortOrder = QLatin1String(ascending ? Rpc::Text::ascending : Rpc::Text::descending);
    }
    m_settings.setMediaServerSortOrder(ascending);
}

void LibraryFilters::setPattern(const QString &pattern)
{
    std::lock_guard lock(m_mutex);
    m_query.pattern = pattern;
}

void LibraryFilters::set(const QString &type, Field field, const QString &value)
{
    const auto filter = filterOf(type);
    if (!filter)
        return;
    std::lock_guard lock(m_mutex);
    m_query.*filter.*field = value;
}

QString LibraryFilters::get(const QString &type, Field field) const
{
    const auto filter = filterOf(type);
    if (!filter)
        return {};
    std::lock_guard lock(m_mutex);
    return m_query.*filter.*field;
}

void LibraryFilters::setCountry(const QString &type, const QString &country)
{
    set(type, &LibraryQuery::Filter::country, country);
}

void LibraryFilters::setGenre(const QString &type, const QString &genre)
{
    set(type, &LibraryQuery::Filter::genre, genre);
}

void LibraryFilters::setYear(const QString &type, const QString &year)
{
    set(type, &LibraryQuery::Filter::year, year);
}

QString LibraryFilters::country(const QString &type) const
{
    return get(type, &LibraryQuery::Filter::country);
}

QString LibraryFilters::genre(const QString &type) const
{
    return get(type, &LibraryQuery::Filter::genre);
}

QString LibraryFilters::year(const QString &type) const
{
    return get(type, &LibraryQuery::Filter::year);
}
