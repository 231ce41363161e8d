#include "SongNames.h"

#include "Connection.h"
#include "TextFold.h"

namespace {

// Three values each; SQLite takes 999 in one statement at least.
constexpr int kRowsAtOnce = 64;

} // namespace

SongNames::SongNames(Connection &connection, const QString &table)
    : m_connection(connection)
    , m_table(table)
{
}

bool SongNames::forget(int song)
{
    return (!m_songs.contains(song) || write())
           && m_connection.prepare(QStringLiteral("DELETE FROM %1 WHERE song_id = ?").arg(m_table)).run(song);
}

void SongNames::add(int song, const QStringList &names)
{
    QSet<QString> keys;
    for (const QString &name : names) {
        const QString key = TextFold::nameKey(name);
        if (keys.contains(key))
            continue;
        keys.insert(key);
        m_rows.append({song, key, name});
    }
    m_songs.insert(song);
}

bool SongNames::write()
{
    int done = 0;
    while (m_rows.size() - done >= kRowsAtOnce) {
        if (!write(done, kRowsAtOnce))
            return false;
        done += kRowsAtOnce;
    }
    // The rest one by one: a statement for each length would have to be kept.
    for (; done < m_rows.size(); ++done) {
        if (!write(done, 1))
            return false;
    }
    m_rows.clear();
    m_songs.clear();
    return true;
}

bool SongNames::write(int first, int count)
{
    QStringList marks;
    marks.reserve(count);
    for (int row = 0; row < count; ++row)
        marks << QStringLiteral("(?, ?, ?)");
    Statement statement =
        m_connection.prepare(QStringLiteral("INSERT INTO %1 (song_id, name_key, name) VALUES %2")
                                 .arg(m_table, marks.join(QStringLiteral(", "))));
    for (int index = first; index < first + count; ++index) {
        const Row &row = m_rows.at(index);
        statement.bind(row.song);
        statement.bind(row.key);
        statement.bind(row.name);
    }
    return statement.execute();
}
