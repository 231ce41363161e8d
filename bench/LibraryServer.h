// The media server as a client has it: a program that is started on a data folder and asked over HTTP.
//
// Owns the process, which is killed with it. One thread; every operation waits.
#pragma once

#include "ChildProcess.h"

#include <QJsonObject>
#include <QString>

class LibraryServer final {
public:
    // Waits until it answers; ends the benchmark when it never does.
    LibraryServer(const QString &program, const QString &dataFolder, int port);

    // The result of a request; ends the benchmark when it is refused.
    QJsonObject ask(const QString &method, const QJsonObject &params = {});
    void addMusic(const QString &folder);
    void addVideos(const QString &folder);
    void updateMusic();
    // Until no scan runs or waits.
    void waitForScan();
    [[nodiscard]] int songs();
    // Films and other videos.
    [[nodiscard]] int videos();

private:
    // Empty when there is no answer.
    [[nodiscard]] QByteArray post(const QString &method, const QByteArray &body) const;
    [[nodiscard]] bool isScanFinished();

    int m_port;
    ChildProcess m_process;
};
