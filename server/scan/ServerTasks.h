// The long work of the server, as requests ask for it: scans, and the rounds of the metadata provider after
// them.
//
// Refers to the roots, the scanner and the watcher, which must outlive it; owns the thread of the provider.
// Lives on the main thread; the operations of IServerTasks are safe on any.
#pragma once

#include "LibraryWatcher.h"
#include "Scanner.h"

#include "rpc/IServerTasks.h"
#include "store/ILibraryRoots.h"

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

class ServerTasks final : public QObject, public IServerTasks {
    Q_OBJECT

public:
    // What the provider offers; all of it may be missing.
    struct Metadata {
        // Asks for what is wanted, on a thread of its own; true when something was done. Ends soon after
        // cancel(), and at once when it begins between cancel() and resume().
        std::function<bool()> round;
        std::function<void()> cancel;
        std::function<void()> resume;
        std::function<void(const QString &language)> setLanguage;
    };

    ServerTasks(ILibraryRoots &roots, Scanner &scanner, LibraryWatcher &watcher, Metadata metadata = {});
    // Ends the provider's round and waits for it.
    ~ServerTasks() override;

    // Watches what is there; called once, before the first request.
    void start();

    void update(int libraryId) override;
    void rebuild() override;
    void updateLanguage(const QString &language) override;
    void foldersChanged() override;
    void rescan(int pathId) override;
    [[nodiscard]] bool isScanFinished() const override;
    [[nodiscard]] bool takeScraperFinished() override;

signals:
    // After each round; done: whether it changed anything.
    void metadataRoundEnded(bool done);

private:
    [[nodiscard]] QVector<Scanner::Target> targets(int libraryId) const;
    [[nodiscard]] QVector<Scanner::Target> allTargets() const;
    void requestRound();
    void runRounds();
    void watchRoots();

    ILibraryRoots &m_roots;
    Scanner &m_scanner;
    LibraryWatcher &m_watcher;
    Metadata m_metadata;
    QSet<int> m_known; // under the mutex

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isRoundWanted{false};
    bool m_ends{false};
    std::atomic<bool> m_scraperFinished{false};
    std::thread m_provider; // last: it uses all of the above
};
