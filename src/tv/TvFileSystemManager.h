// The program's one watcher of drives: keeps the list of drive roots and renews it, on a thread of its own,
// whenever the system tells of a device change.
//
// One object a process on the GUI thread; the list is copied out under a lock.
#pragma once

#include "TvScanDiskThread.h"

#include "core/Singleton.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QReadWriteLock>
#include <QStringList>

class TvFileSystemManager final : public QObject,
                                  public Singleton<TvFileSystemManager>,
                                  public QAbstractNativeEventFilter {
    Q_OBJECT
public:
    TvFileSystemManager();
    ~TvFileSystemManager() override;

    void startScan();
    // Ends the watch before the program goes; waits for a scan that runs.
    void stopWatching();

    void driveList(QStringList *out) const;

    // Never keeps an event from going on.
    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;

signals:
    void SIG_driverUpdate();
    void SIG_descUpdate();

private:
    friend class TvScanDiskThread;

    // On the scan thread.
    void scanDrives();

    mutable QReadWriteLock m_lock;
    QStringList m_drives;
    TvScanDiskThread m_thread;
    bool m_watching{true};
};
