// What the user asked the video lists to be filtered, sorted and searched by. Sort method and order live on
// in the settings. Set by the GUI thread, read by the loaders: every operation is safe on every thread.
#pragma once

#include <QString>

#include <array>
#include <mutex>

class SettingsManager;

// A copy of all of it, taken for one request.
struct LibraryQuery {
    struct Filter {
        QString country;
        QString genre;
        QString year;
    };

    Filter movie;
    Filter tvShow;
    QString sortMethod;
    QString sortOrder;
    QString pattern;
};

class LibraryFilters final {
public:
    // settings: outlives this object. Takes sort method and order from it; where they are absent "title" and
    // ascending.
    explicit LibraryFilters(SettingsManager &settings);

    [[nodiscard]] LibraryQuery query() const;

    // Stored; an index beyond "rating" is stored, too, and leaves what is asked for as it is.
    void setSortMethod(int index);
    void setSortOrder(bool ascending);
    void setPattern(const QString &pattern);

    // type: "movie" or "tvshow"; any other is logged and changes nothing, or reads as empty. Empty is no
    // filter.
    void setCountry(const QString &type, const QString &country);
    void setGenre(const QString &type, const QString &genre);
    void setYear(const QString &type, const QString &year);
    [[nodiscard]] QString country(const QString &type) const;
    [[nodiscard]] QString genre(const QString &type) const;
    [[nodiscard]] QString year(const QString &type) const;

private:
    using Field = QString LibraryQuery::Filter::*;
    void set(const QString &type, Field field, const QString &value);
    [[nodiscard]] QString get(const QString &type, Field field) const;

    SettingsManager &m_settings;
    mutable std::mutex m_mutex;
    LibraryQuery m_query;
};
