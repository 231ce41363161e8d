// A connection to the database with its prepared statements. Lives and ends on the thread that made it.
#pragma once

#include "ConnectionSettings.h"
#include "Statement.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <unordered_map>

class Connection final {
public:
    enum class Access { Read, Write };
    // Full: a commit has reached the disk when it is answered, so that not even a power cut takes it back.
    // Relaxed: it has reached the operating system, which survives the end of the process.
    enum class Durability { Relaxed, Full };

    Connection(const ConnectionSettings &settings, Access access);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    // False too once a server has closed the connection.
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] bool isFile() const { return m_settings.isFile(); }
    [[nodiscard]] const ConnectionSettings &settings() const { return m_settings; }

    // The statement stays prepared for the next use. Two uses of the same text must not overlap.
    [[nodiscard]] Statement prepare(const QString &sql);
    // Runs a statement once, without values.
    bool execute(const QString &sql);

    [[nodiscard]] bool begin(Durability durability);
    [[nodiscard]] bool commit();
    void rollback();

    // All that was run over this connection, for tests of the cost of an operation.
    [[nodiscard]] const StatementCounters &counters() const { return m_counters; }

private:
    // The end of a statement and its length tell most from each other: reading a long text whole for each use
    // costs as much as some uses do.
    struct TextHash {
        [[nodiscard]] std::size_t operator()(const QString &sql) const;
    };

    bool configure(Access access);

    ConnectionSettings m_settings;
    QString m_name;
    QSqlDatabase m_database;
    std::unordered_map<QString, QSqlQuery, TextHash> m_prepared;
    StatementCounters m_counters;
    Durability m_durability{Durability::Relaxed};
};
