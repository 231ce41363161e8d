// Tells whether files are still there, without waiting for a drive or a network folder.
//
// Lives on the GUI thread; the disk is asked on workers. A later question replaces an earlier one.
#pragma once

#include <QObject>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

class ThreadWorker;

class FilePresence final : public QObject {
    Q_OBJECT

public:
    using Exists = std::function<bool(const QString &path)>;

    // Asks the file system; a drive letter alone is taken as present, so that no disc is spun up.
    explicit FilePresence(QObject *parent = nullptr);
    explicit FilePresence(Exists exists, QObject *parent = nullptr);
    ~FilePresence() override;

    // Each path is answered by one checked(), in any order, as soon as its drive answers.
    void check(const QStringList &paths);

signals:
    void checked(const QString &path, bool isPresent);

private:
    Exists m_exists;
    // The number of the question that counts; shared with the workers.
    std::shared_ptr<std::atomic<quint64>> m_latest;
    std::unique_ptr<ThreadWorker> m_worker;
};
