#include "PreviewFetcher.h"

#include "core/ThreadWorker.h"

PreviewFetcher::PreviewFetcher(std::shared_ptr<IPreviewSource> source, qint64 cacheBytes, QObject *parent)
    : QObject(parent)
    , m_worker(std::make_shared<PreviewWorker>(std::move(source), cacheBytes))
    , m_thread(std::make_unique<ThreadWorker>())
{
    m_worker->setReceiver(this, [this](const PreviewWorker::Answer &answer) { take(answer); });
}

PreviewFetcher::~PreviewFetcher()
{
    shutDown();
}

void PreviewFetcher::shutDown()
{
    if (!m_thread)
        return;
    m_path.clear();
    m_fill = 0;
    m_source = m_worker->setSource({});
    m_worker->setReceiver(nullptr, {});
    m_thread.reset();
    // The thread may have ended before it came to closing the session.
    m_worker->run();
}

void PreviewFetcher::setSource(const QString &path)
{
    if (!m_thread)
        return;
    m_path = path;
    m_fill = 0;
    m_source = m_worker->setSource(path);
    work();
}

void PreviewFetcher::closeSession()
{
    m_worker->closeSession();
    work();
}

void PreviewFetcher::work()
{
    if (m_thread && m_worker->claimRun())
        m_thread->addTask([worker = m_worker] { worker->run(); });
}

void PreviewFetcher::request(int positionMs)
{
    QImage known;
    switch (m_worker->look(positionMs, known)) {
    case PreviewWorker::Known::Picture:
        m_worker->dropHover();
        emit pictureReady(positionMs, known);
        return;
    case PreviewWorker::Known::Missing:
        m_worker->dropHover();
        emit pictureMissing(positionMs);
        return;
    case PreviewWorker::Known::Nothing:
        m_worker->hover(positionMs);
        work();
        return;
    }
}

void PreviewFetcher::cancelRequest()
{
    m_worker->dropHover();
}

void PreviewFetcher::fill(const QVector<int> &positionsMs)
{
    if (positionsMs.isEmpty() || m_path.isEmpty()) {
        stopFill();
        emit fillEnded();
        return;
    }
    m_fill = m_worker->fill(positionsMs);
    work();
}

void PreviewFetcher::stopFill()
{
    m_fill = 0;
    m_worker->stopFill();
}

void PreviewFetcher::take(const PreviewWorker::Answer &answer)
{
    if (answer.source != m_source)
        return;
    if (answer.kind == PreviewWorker::Answer::Kind::Picture) {
        if (answer.image.isNull())
            emit pictureMissing(answer.positionMs);
        else
            emit pictureReady(answer.positionMs, answer.image);
        return;
    }
    if (answer.fill != m_fill)
        return;
    if (answer.kind == PreviewWorker::Answer::Kind::Row) {
        emit rowReady(answer.positionMs, answer.png);
        return;
    }
    m_fill = 0;
    emit fillEnded();
}
