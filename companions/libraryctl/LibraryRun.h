// One run of the tool: waits for the server, adds folders, waits for its scan, loads everything and prints
// it. Driven by the manager's signals; main thread. Ends the application with an exit code.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

class MediaServerManager;

struct LibraryWish {
    struct Folder {
        QString path;
        QString scraper; // empty: music
    };
    QList<Folder> folders;
    bool waitsForScan{false};
};

class LibraryRun final : public QObject {
    Q_OBJECT
public:
    enum ExitCode { Done = 0, NoServer = 1, WrongUse = 2, FolderRefused = 3, ScanTooLong = 4 };

    // manager: outlives this object.
    LibraryRun(MediaServerManager &manager, LibraryWish wish);

private:
    void onReady();
    void onUpdateTaken(bool isTaken);
    void onHeartbeat();
    void loadAll();
    void onLoadEnded();
    void fail(ExitCode code, const QString &message);
    [[nodiscard]] bool addFolders();

    MediaServerManager &m_manager;
    const LibraryWish m_wish;
    QTimer m_scanLimit;
    bool m_isScanAwaited{false};
    bool m_isLoading{false};
    int m_beats{0};
};
