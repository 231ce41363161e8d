// Fetches the picture that stands for a source: its embedded or neighbouring cover, or a picture out of the
// film.
//
// Reads on a thread of its own, one source at a time; a new request replaces one that waits, and an answer
// that comes too late is dropped. Lives on the GUI thread. The destructor waits a few seconds for the reading
// that runs.
#pragma once

#include <QImage>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class ThreadWorker;

class CoverReader final : public QObject {
    Q_OBJECT

public:
    // Waits for the file; a null picture when there is none. Any thread.
    using Read = std::function<QImage(const QString &path)>;

    static constexpr int WantedSize = 640; // pixels, the longer side

    // Reads through the program's player.
    explicit CoverReader(QObject *parent = nullptr);
    explicit CoverReader(Read read, QObject *parent = nullptr);
    ~CoverReader() override;

    void request(const QString &path);
    // The source has gone: nothing is answered any more.
    void forget();

signals:
    // Null when the source has no picture.
    void ready(const QString &path, const QImage &cover);

private:
    Read m_read;
    std::shared_ptr<std::atomic_int> m_generation;
    std::unique_ptr<ThreadWorker> m_worker; // from the first request; last: it works for all of the above
};
