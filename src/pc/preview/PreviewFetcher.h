// Fetches pictures of the source off the GUI thread: for the pointer on the seek slider, and row after row
// for the strip.
//
// Owns the thread. Of the positions asked for only the newest is fetched once the one under way is done, and
// what has been fetched is kept up to a number of bytes. After stopFill() no row arrives any more, after
// setSource() nothing of the source before. Nothing but the destructor waits for the thread, and that a
// bounded time. GUI thread.
#pragma once

#include "PreviewWorker.h"

#include <QObject>

#include <memory>

class ThreadWorker;

class PreviewFetcher final : public QObject {
    Q_OBJECT

public:
    static constexpr qint64 CacheBytes = 24 * 1024 * 1024;

    explicit PreviewFetcher(std::shared_ptr<IPreviewSource> source, qint64 cacheBytes = CacheBytes,
                            QObject *parent = nullptr);
    ~PreviewFetcher() override;

    // Ends the thread, and with it the source; nothing is fetched any more. Before the player goes: the
    // thread must not meet it. Waits a bounded time.
    void shutDown();

    // Empty: no source.
    void setSource(const QString &path);
    [[nodiscard]] QString sourcePath() const { return m_path; }
    // The session with the source ends; a later request opens it again.
    void closeSession();

    // Answered by pictureReady() or pictureMissing(), before it returns where the answer is known. Not
    // answered when a newer request comes before its turn.
    void request(int positionMs);
    // The pointer has gone.
    void cancelRequest();

    // rowReady() for each position in order, then fillEnded().
    void fill(const QVector<int> &positionsMs);
    void stopFill();
    [[nodiscard]] bool isFilling() const { return m_fill != 0; }
    // 1 asks the filling to end.
    [[nodiscard]] int stopFlag() const { return m_worker->stopFlag(); }

    // The thread has something under way.
    [[nodiscard]] bool isWorking() const { return m_worker->isRunning(); }
    [[nodiscard]] qint64 cacheBytes() const { return m_worker->cacheBytes(); }

signals:
    void pictureReady(int positionMs, const QImage &picture);
    void pictureMissing(int positionMs);
    void rowReady(int positionMs, const QByteArray &png);
    void fillEnded();

private:
    void work();
    void take(const PreviewWorker::Answer &answer);

    std::shared_ptr<PreviewWorker> m_worker;
    std::unique_ptr<ThreadWorker> m_thread;
    QString m_path;
    quint64 m_source{0};
    quint64 m_fill{0};
};
