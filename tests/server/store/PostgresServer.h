// A PostgreSQL server of the tests' own: its files and its socket lie in a temporary folder, no port is
// opened. Ends with the object.
#pragma once

#include <QProcess>
#include <QString>

#include <memory>

class QTemporaryDir;

class PostgresServer final {
public:
    PostgresServer();
    ~PostgresServer();

    // Empty once the server runs; else why there is none.
    [[nodiscard]] QString start();
    // The folder of the socket, which stands for the host.
    [[nodiscard]] QString host() const;
    [[nodiscard]] static QString user();

private:
    [[nodiscard]] QString run(const QString &program, const QStringList &arguments);
    // The program as a user that may run a server.
    static void prepare(QProcess *process, const QString &program, const QStringList &arguments);

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcess m_server;
};
