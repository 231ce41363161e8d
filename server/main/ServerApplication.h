// The life of the program: everything made in order, run until it is told to end, and taken down in the
// reverse order.
//
// Owns the log, the lock on the data folder, the HTTP front, the parts and the protocol. Lives on the main
// thread.
#pragma once

#include "IServerParts.h"
#include "StartGate.h"
#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "http/HttpServer.h"

#include <QLockFile>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

class ImageFiles;
class RpcDispatcher;
class ServerLog;

class ServerApplication final : public QObject {
    Q_OBJECT

public:
    // Exit statuses of the program.
    enum Exit {
        Ended = 0,
        WrongArguments = 1,
        NoDataFolder = 2,
        PortTaken = 3,
        AlreadyRunning = 4,
        NoDatabase = 5
    };

    using PartsFactory =
        std::function<std::unique_ptr<IServerParts>(const DataFolder &, const ServerConfiguration &)>;

    struct Settings {
        QString dataFolder;
        HttpServer::Settings http;
        // So long a request of the protocol waits for the end of the start; then it is told that the server
        // starts. Shorter than a player waits for an answer, which is 15 seconds.
        std::chrono::milliseconds startWait{10000};
    };

    ServerApplication(const Settings &settings, PartsFactory makeParts, QObject *parent = nullptr);
    ~ServerApplication() override; // stops

    // Brings everything up; Ended when the server answers, else the status to leave with, already told in the
    // log and on the standard error. The port is listened on first: opening the database may take minutes
    // where it is looked through, changed or replaced by its copy.
    [[nodiscard]] Exit start();
    // Takes everything down again; harmless when nothing is up.
    void stop();
    [[nodiscard]] quint16 port() const;

private:
    [[nodiscard]] Exit failed(Exit status, const QString &message);
    [[nodiscard]] Exit takeFolder();
    [[nodiscard]] Exit openParts();
    [[nodiscard]] Exit listen();
    [[nodiscard]] Exit takeRequests();
    [[nodiscard]] QByteArray answer(const QByteArray &body);
    [[nodiscard]] HttpReply picture(const QByteArray &key);

    Settings m_settings;
    PartsFactory m_makeParts;
    DataFolder m_folder;
    std::unique_ptr<ServerLog> m_log;
    QLockFile m_lock;
    std::unique_ptr<IServerParts> m_parts;
    std::unique_ptr<RpcDispatcher> m_dispatcher;
    std::unique_ptr<ImageFiles> m_images;
    StartGate m_gate;
    std::unique_ptr<HttpServer> m_http;
    bool m_isUp{false};
};
