#include "Database.h"

#include "DatabaseFile.h"
#include "Migrations.h"
#include "Schema.h"

#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"

#include <QDateTime>
#include <QDebug>

#include <algorithm>
#include <vector>

namespace {

// The connections of one thread; more than one only where a program has more than one database.
class ThreadConnections final {
public:
    Connection &of(const std::shared_ptr<int> &life, const ConnectionSettings &settings)
    {
        // What is left from a database that has been closed, or from a server that closed the connection.
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                       [](const Entry &entry) {
                                           return entry.life.expired() || !entry.connection->isOpen();
                                       }),
                        m_entries.end());
        for (const Entry &entry : m_entries) {
            if (!entry.life.owner_before(life) && !life.owner_before(entry.life))
                return *entry.connection;
        }
        m_entries.push_back({life, std::make_unique<Connection>(settings, Connection::Access::Read)});
        return *m_entries.back().connection;
    }

    void forget(const std::shared_ptr<int> &life)
    {
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                       [&life](const Entry &entry) {
                                           return !entry.life.owner_before(life)
                                                  && !life.owner_before(entry.life);
                                       }),
                        m_entries.end());
    }

private:
    struct Entry {
        std::weak_ptr<int> life;
        std::unique_ptr<Connection> connection;
    };
    std::vector<Entry> m_entries;
};

ThreadConnections &threadConnections()
{
    thread_local ThreadConnections connections;
    return connections;
}

} // namespace

Database::Database(const DataFolder &folder, const ServerConfiguration &configuration, Clock clock)
    : m_clock(clock ? std::move(clock) : Clock(&QDateTime::currentMSecsSinceEpoch))
{
    m_settings.driver = configuration.databaseDriver;
    if (m_settings.isFile()) {
        m_settings.name = folder.databasePath();
        m_backupPath = folder.backupPath();
        return;
    }
    m_settings.name = configuration.databaseName;
    m_settings.host = configuration.databaseHost;
    m_settings.port = configuration.databasePort;
    m_settings.user = configuration.databaseUser;
    m_settings.password = configuration.databasePassword;
}

Database::~Database()
{
    m_writer.reset();
    threadConnections().forget(m_life);
}

bool Database::open()
{
    if (m_settings.isFile() && !DatabaseFile(m_settings.name, m_backupPath).makeWhole()) {
        qWarning() << "[store] the database cannot be opened:" << m_settings.name;
        return false;
    }
    m_writer = std::make_unique<WriterThread>(m_settings);
    const auto prepare = [](Connection &connection) { return Migrations(Schema::steps()).apply(connection); };
    if (!m_writer->submit(Urgency::User, prepare, WriterThread::Frame::Alone).get()) {
        qWarning() << "[store] the database cannot be brought up to date:" << m_settings.name;
        m_writer.reset();
        return false;
    }
    if (m_settings.isFile()) {
        // Nobody waits for it, but every change does: the copy is of the file as it was found.
        static_cast<void>(m_writer->submit(
            Urgency::User,
            [file = DatabaseFile(m_settings.name, m_backupPath)](Connection &connection) {
                return file.backUp(connection);
            },
            WriterThread::Frame::Alone));
    }
    return true;
}

Connection &Database::reader() const
{
    return threadConnections().of(m_life, m_settings);
}

bool Database::write(Urgency urgency, const WriterThread::Job &job) const
{
    if (!m_writer || m_writer->isOwnThread()) {
        qWarning() << "[store] a change was asked for where none can be made";
        return false;
    }
    return m_writer->submit(urgency, job).get();
}
