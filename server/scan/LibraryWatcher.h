// Watches the library folders and tells which one has to be scanned again.
//
// Owns the watch and its timers. Folders come from the scan, which watches each before it lists it, so that
// nothing can change unseen in between; all else belongs to the thread of the object. Where the system
// watches no more folders, or not all of them, everything is scanned again from time to time until a scan
// could watch all; so are library folders that cannot be reached.
#pragma once

#include "FolderEvents.h"

#include "records/LibraryRecords.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QTimer>
#include <QVector>

#include <atomic>
#include <memory>

class LibraryWatcher final : public QObject {
    Q_OBJECT

public:
    struct Intervals {
        int quietMs{5000};            // without a change before a scan
        int longestWaitMs{60 * 1000}; // while changes go on
        int periodicMs{15 * 60 * 1000};
    };

    explicit LibraryWatcher(Intervals intervals,
                            std::unique_ptr<FolderEvents> events = std::make_unique<FolderEvents>());
    LibraryWatcher()
        : LibraryWatcher(Intervals())
    {
    }

    void setRoots(const QVector<RootFolder> &roots);
    // Any thread.
    void watch(const QString &folder);
    // An unreachable folder is looked for periodically.
    void setOnline(int pathId, bool online);
    [[nodiscard]] int watchedFolders() const { return m_events->count(); }

signals:
    void rootChanged(int pathId);

private:
    struct Waiting {
        QElapsedTimer first;
        QElapsedTimer last;
    };

    void noteChange(const QString &folder);
    void noteRoot(int pathId);
    void noteAll();
    void reportQuiet();
    void updatePeriodic();
    void lookAgain();

    Intervals m_intervals;
    std::unique_ptr<FolderEvents> m_events;
    QHash<int, QString> m_roots;
    QSet<int> m_offline;
    QHash<int, Waiting> m_waiting;
    QTimer m_quiet;
    QTimer m_periodic;
    // Some folder is not watched, as far as the scans since the last look have found.
    std::atomic<bool> m_isBlind{false};
    std::atomic<bool> m_hasToldLimit{false};
    std::atomic<bool> m_hasToldFailure{false};
};
