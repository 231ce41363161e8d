// Brings the media library up once the program stands, and keeps its copy in the player's memory up to date.
//
// The server is not started before begin(): a second copy, a maintenance run and the first picture of a film
// must not wait for it, and none of the first two may touch the server of the copy that runs. GUI thread;
// what sends requests or waits for a load runs on a worker.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class MediaServerManager;
class ThreadWorker;

class LibraryStart final : public QObject {
    Q_OBJECT

public:
    // Makes the manager at its first call, and with it starts the server.
    using Manager = std::function<MediaServerManager &()>;

    explicit LibraryStart(Manager manager, QObject *parent = nullptr);
    ~LibraryStart() override;

    // The language of the library's metadata, in the server's words. Kept until begin(), handed on at once
    // after it.
    void setLanguage(const QString &word);

    // Starts the server. A folder joins both libraries unless it is in them already; empty: none does.
    void begin(const QString &folder = {});

private:
    void onServerReady();
    void onHeartBeat();
    // Loads all roles anew after the next scan that ends.
    void loadAfterScan();
    void loadAll();

    Manager m_makeManager;
    MediaServerManager *m_manager{nullptr};
    std::unique_ptr<ThreadWorker> m_worker;
    QString m_language;
    QString m_folder;
    bool m_wantsLoad{false};
    bool m_sawScan{false};
    int m_pulsesToPass{0};
};
