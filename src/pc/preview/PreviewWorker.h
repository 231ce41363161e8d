// The part of the fetching that runs on a worker thread: takes job after job, asks the cache and then the
// source, and hands the answers over.
//
// Shared by its fetcher and the thread, so that a source that hangs finds it still there after the fetcher
// has gone. All operations are safe on every thread, and none but run() waits for the source.
#pragma once

#include "IPreviewSource.h"
#include "PreviewCache.h"
#include "PreviewJobs.h"

#include <QByteArray>
#include <QObject>
#include <QSet>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

class PreviewWorker final {
public:
    struct Answer {
        enum class Kind { Picture, Row, FillEnd };

        Kind kind{Kind::Picture};
        quint64 source{0}; // number of the source, or of the filling, that it belongs to
        quint64 fill{0};
        int positionMs{0};
        QImage image;   // of a picture; null: there is none
        QByteArray png; // of a row; empty: there is none
    };
    using Deliver = std::function<void(const Answer &)>;

    // What a look at what is known already comes to.
    enum class Known { Nothing, Picture, Missing };

    // So many failures are taken for the source's own: before the first picture, and in a row after it.
    static constexpr int FirstFailures = 3;
    static constexpr int LaterFailures = 12;

    PreviewWorker(std::shared_ptr<IPreviewSource> source, qint64 cacheBytes);

    // deliver runs on the receiver's thread; a null receiver hears no more, whatever is still on its way.
    void setReceiver(QObject *receiver, Deliver deliver);

    // Drops all that belongs to the source before. An empty path: no source. Gives the number of the source.
    quint64 setSource(const QString &path);
    // Ends the session with the source; what is asked for later opens it again.
    void closeSession();

    [[nodiscard]] Known look(int positionMs, QImage &image);
    void hover(int positionMs);
    void dropHover();
    quint64 fill(const QVector<int> &positionsMs);
    void stopFill();

    // True when a thread has to be sent through run(); the caller does it.
    [[nodiscard]] bool claimRun();
    // Works until nothing is left to do.
    void run();
    [[nodiscard]] bool isRunning() const;

    // 1 asks the filling to end; tested after each row.
    [[nodiscard]] int stopFlag() const { return m_stopFlag; }
    [[nodiscard]] qint64 cacheBytes() const;

private:
    struct Step {
        PreviewJob job;
        QString path;
        quint64 source{0};
        quint64 session{0};
        bool isOpen{false};
    };

    [[nodiscard]] bool takeStep(Step &step);
    [[nodiscard]] bool answerKnown(const Step &step);
    // Locked. False: the session has ended meanwhile; the job comes again if its source is still the one.
    [[nodiscard]] bool isCurrent(const Step &step);
    [[nodiscard]] bool openFor(const Step &step);
    void grabFor(const Step &step);
    void endSession();                // locked
    void noteFailure(int positionMs); // locked
    void answer(const Step &step, const QImage &image);
    void tell(const Answer &answer);

    const std::shared_ptr<IPreviewSource> m_source;

    mutable std::mutex m_mutex;
    PreviewJobs m_jobs;
    PreviewCache m_cache;
    QString m_path;
    quint64 m_sourceNumber{0};
    quint64 m_session{0};
    bool m_isOpen{false};
    bool m_isInSource{false};   // the thread is inside a call of the source
    bool m_closePending{false}; // the thread shall close the session
    bool m_isRunning{false};
    bool m_hasGivenUp{false};
    bool m_hadPicture{false};
    int m_failuresInRow{0};
    QSet<int> m_missing; // positions without a picture
    std::atomic<int> m_stopFlag{0};

    std::mutex m_receiverMutex;
    QObject *m_receiver{nullptr};
    Deliver m_deliver;
};
