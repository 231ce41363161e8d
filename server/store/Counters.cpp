#include "Counters.h"

#include "Connection.h"

qint64 Counters::take(Connection &connection, const QString &name, int count)
{
    const bool taken = connection
                           .prepare(QStringLiteral("INSERT INTO counters (name, value) VALUES (?, ?) "
                                                   "ON CONFLICT (name) DO UPDATE "
                                                   "SET value = counters.value + excluded.value"))
                           .run(name, count);
    Statement read = connection.prepare(QStringLiteral("SELECT value FROM counters WHERE name = ?"));
    if (!taken || !read.run(name) || !read.next())
        return 0;
    return read.number(0) - count + 1;
}

qint64 Counters::version(Connection &connection, Area area)
{
    Statement read = connection.prepare(QStringLiteral("SELECT value FROM data_versions WHERE area = ?"));
    return read.run(static_cast<int>(area)) && read.next() ? read.number(0) : 0;
}

bool Counters::raise(Connection &connection, Area area)
{
    return connection
        .prepare(QStringLiteral("INSERT INTO data_versions (area, value) VALUES (?, 1) "
                                "ON CONFLICT (area) DO UPDATE SET value = data_versions.value + 1"))
        .run(static_cast<int>(area));
}
