#include "PreviewWorker.h"

#include <QBuffer>
#include <QDebug>

namespace {

constexpr int MostMissing = 4096;
// Of a PNG file: hardly compressed, as it lives in memory for a while and the next picture waits.
constexpr int QuickPng = 85;

QByteArray encoded(const QImage &image)
{
    QByteArray bytes;
    if (image.isNull())
        return bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", QuickPng);
    return bytes;
}

} // namespace

PreviewWorker::PreviewWorker(std::shared_ptr<IPreviewSource> source, qint64 cacheBytes)
    : m_source(std::move(source))
    , m_cache(cacheBytes)
{
}

void PreviewWorker::setReceiver(QObject *receiver, Deliver deliver)
{
    const std::lock_guard<std::mutex> lock(m_receiverMutex);
    m_receiver = receiver;
    m_deliver = std::move(deliver);
}

quint64 PreviewWorker::setSource(const QString &path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_path = path;
    m_jobs.clear();
    m_cache.clear();
    m_missing.clear();
    m_failuresInRow = 0;
    m_hadPicture = false;
    m_hasGivenUp = false;
    m_stopFlag = 1;
    endSession();
    return ++m_sourceNumber;
}

void PreviewWorker::closeSession()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    endSession();
}

void PreviewWorker::endSession()
{
    ++m_session;
    // A call that is under way is cut short from here. Otherwise the thread closes: that may have to wait for
    // the file. Under the lock, so that it cannot hit the session that the thread opens next.
    if (m_isInSource)
        m_source->close();
    else if (m_isOpen)
        m_closePending = true;
    m_isOpen = false;
}

PreviewWorker::Known PreviewWorker::look(int positionMs, QImage &image)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    image = m_cache.find(positionMs);
    if (!image.isNull())
        return Known::Picture;
    return m_path.isEmpty() || m_hasGivenUp || m_missing.contains(positionMs) ? Known::Missing
                                                                              : Known::Nothing;
}

void PreviewWorker::hover(int positionMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_jobs.hover(positionMs);
}

void PreviewWorker::dropHover()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_jobs.dropHover();
}

quint64 PreviewWorker::fill(const QVector<int> &positionsMs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stopFlag = 0;
    return m_jobs.fill(positionsMs);
}

void PreviewWorker::stopFill()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stopFlag = 1;
    m_jobs.dropRows();
}

bool PreviewWorker::claimRun()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isRunning)
        return false;
    m_isRunning = true;
    return true;
}

bool PreviewWorker::isRunning() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isRunning;
}

qint64 PreviewWorker::cacheBytes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_cache.bytes();
}

void PreviewWorker::run()
{
    Step step;
    while (takeStep(step)) {
        if (!answerKnown(step) && openFor(step))
            grabFor(step);
    }
}

bool PreviewWorker::takeStep(Step &step)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_closePending) {
        m_closePending = false;
        lock.unlock();
        m_source->close();
        lock.lock();
    }
    const std::optional<PreviewJob> job = m_jobs.take();
    if (!job) {
        m_isRunning = false;
        return false;
    }
    step = {*job, m_path, m_sourceNumber, m_session, m_isOpen};
    return true;
}

bool PreviewWorker::answerKnown(const Step &step)
{
    QImage image;
    if (look(step.job.positionMs, image) == Known::Nothing)
        return false;
    answer(step, image);
    return true;
}

bool PreviewWorker::isCurrent(const Step &step)
{
    if (step.session == m_session)
        return true;
    if (step.source == m_sourceNumber)
        m_jobs.putBack(step.job);
    return false;
}

bool PreviewWorker::openFor(const Step &step)
{
    if (step.isOpen)
        return true;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!isCurrent(step))
            return false;
        m_isInSource = true;
    }
    const bool opened = m_source->open(step.path);
    bool isStale = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isInSource = false;
        isStale = !isCurrent(step);
        if (!isStale) {
            m_isOpen = opened;
            m_hasGivenUp = !opened;
        }
    }
    if (isStale) {
        // Closed, or another source, meanwhile; nobody else opens one.
        if (opened)
            m_source->close();
        return false;
    }
    if (opened)
        return true;
    qInfo() << "[Preview] no pictures of" << step.path;
    answer(step, {});
    return false;
}

void PreviewWorker::grabFor(const Step &step)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!isCurrent(step))
            return;
        m_isInSource = true;
    }
    const PreviewPicture picture = m_source->grab(step.job.positionMs);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isInSource = false;
        if (step.source != m_sourceNumber)
            return;
        if (!picture.image.isNull()) {
            m_hadPicture = true;
            m_failuresInRow = 0;
            m_cache.insert(step.job.positionMs, picture.shownMs, picture.image);
        } else if (!isCurrent(step)) {
            // Cut short by the end of the session, which tells nothing about the picture.
            return;
        } else {
            noteFailure(step.job.positionMs);
        }
    }
    answer(step, picture.image);
}

void PreviewWorker::noteFailure(int positionMs)
{
    if (m_missing.size() >= MostMissing)
        m_missing.clear();
    m_missing.insert(positionMs);
    if (++m_failuresInRow < (m_hadPicture ? LaterFailures : FirstFailures) || m_hasGivenUp)
        return;
    m_hasGivenUp = true;
    qInfo() << "[Preview] no more pictures after" << m_failuresInRow << "failures:" << m_path;
}

void PreviewWorker::answer(const Step &step, const QImage &image)
{
    Answer told;
    told.source = step.source;
    told.fill = step.job.fill;
    told.positionMs = step.job.positionMs;
    if (!step.job.isRow) {
        told.image = image;
        tell(told);
        return;
    }
    told.kind = Answer::Kind::Row;
    told.png = encoded(image);
    bool isLast = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_stopFlag == 1 || step.job.fill != m_jobs.filling())
            return;
        isLast = m_jobs.isFillTaken();
    }
    tell(told);
    if (isLast) {
        told.kind = Answer::Kind::FillEnd;
        told.png.clear();
        tell(told);
    }
}

void PreviewWorker::tell(const Answer &answer)
{
    const std::lock_guard<std::mutex> lock(m_receiverMutex);
    if (!m_receiver)
        return;
    QMetaObject::invokeMethod(
        m_receiver, [deliver = m_deliver, answer] { deliver(answer); }, Qt::QueuedConnection);
}
