// A connection to the database with its prepared statements. Lives and ends on the thread that made it.
#pragma once

#include "ConnectionSettings.h"
#include "PreparedStatements.h"
#include "Statement.h"

#include <QSqlDatabase>
#include <QString>

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

    // The statement stays prepared for the next use, while no more than so many others are used in between.
    // Two uses of the same text must not overlap.
    [[nodiscard]] Statement prepare(const QString &sql);
    // Runs a statement once, without values.
    bool execute(const QString &sql);

    [[nodiscard]] bool begin(Durability durability);
    [[nodiscard]] bool commit();
    void rollback();

    // All that was run over this connection, for tests of the cost of an operation.
    [[nodiscard]] const StatementCounters &counters() const { return m_counters; }
    // How many statements are kept prepared, for tests of the memory.
    [[nodiscard]] std::size_t preparedCount() const { return m_prepared.size(); }

private:
    bool configure(Access access);

    ConnectionSettings m_settings;
    QString m_name;
    QSqlDatabase m_database;
    PreparedStatements m_prepared;
    StatementCounters m_counters;
    Durability m_durability{Durability::Relaxed};
};
