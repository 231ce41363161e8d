// Runs one scan of the drives off the GUI thread. Can be started again and again; a start while it runs is no
// start.
#pragma once

#include <QThread>

class TvFileSystemManager;

class TvScanDiskThread final : public QThread {
    Q_OBJECT
public:
    using QThread::QThread;

    void start(TvFileSystemManager *manager);

protected:
    void run() override;

private:
    TvFileSystemManager *m_manager{nullptr};
};
