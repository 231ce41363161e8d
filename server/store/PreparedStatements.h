// The statements of a connection that are kept prepared, by their text: a fixed number at most, those that
// were used last. Requests choose the texts of lists, so nothing else bounds how many there are. Lives on the
// thread of its connection.
#pragma once

#include <QSqlQuery>
#include <QString>

#include <list>
#include <memory>
#include <unordered_map>

class PreparedStatements final {
public:
    using Query = std::shared_ptr<QSqlQuery>;

    // All that the library asks by itself, and the lists of a player, have room several times over.
    static constexpr std::size_t UsualCapacity = 200;

    explicit PreparedStatements(std::size_t capacity = UsualCapacity);
    PreparedStatements(const PreparedStatements &) = delete;
    PreparedStatements &operator=(const PreparedStatements &) = delete;

    // Null where the text is not kept. Whoever holds the query may use it also when it is let go meanwhile.
    [[nodiscard]] Query find(const QString &sql);
    // Keeps the query, in the place of the one that nobody has used for longest where there is no room.
    void insert(const QString &sql, const Query &query);
    void clear();
    [[nodiscard]] std::size_t size() const { return m_entries.size(); }

private:
    struct Entry {
        QString sql;
        Query query;
    };
    using Entries = std::list<Entry>; // the last used first

    // The end of a statement and its length tell most from each other: reading a long text whole for each use
    // costs as much as some uses do.
    struct TextHash {
        [[nodiscard]] std::size_t operator()(const QString &sql) const;
    };

    const std::size_t m_capacity;
    Entries m_entries;
    std::unordered_map<QString, Entries::iterator, TextHash> m_places;
};
