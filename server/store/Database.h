// The library's database: one file in the data folder, or a database of a PostgreSQL server. Owns the thread
// that writes; every thread that reads gets a connection of its own, which goes with the thread.
#pragma once

#include "Connection.h"
#include "WriterThread.h"

#include <functional>
#include <memory>

class DataFolder;
struct ServerConfiguration;

class Database final {
public:
    using Urgency = WriterThread::Urgency;
    // Milliseconds since the epoch, UTC.
    using Clock = std::function<qint64()>;

    Database(const DataFolder &folder, const ServerConfiguration &configuration, Clock clock = {});
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    // Looks whether the file is whole, puts the backup in the place of a damaged one, brings the tables up to
    // date and starts a backup. False with the reason in the log.
    [[nodiscard]] bool open();

    // The reading connection of the calling thread. Where the database cannot be reached its statements fail.
    [[nodiscard]] Connection &reader() const;
    // Runs the change in a transaction on the writer's thread and waits for it. True once it stands.
    bool write(Urgency urgency, const WriterThread::Job &job) const;

    [[nodiscard]] qint64 now() const { return m_clock(); }

private:
    ConnectionSettings m_settings;
    QString m_backupPath;
    Clock m_clock;
    // Held by this object alone: the threads' connections learn from it that they have outlived their
    // database.
    std::shared_ptr<int> m_life{std::make_shared<int>()};
    std::unique_ptr<WriterThread> m_writer;
};
