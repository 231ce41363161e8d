#include "DropReader.h"

#include "core/ThreadWorker.h"

#include <QDebug>

namespace {

// Drops that hang each hold a thread.
constexpr int kMostThreads = 4;
// Nothing is lost with a drop that nobody waits for any longer.
constexpr int kStopMs = 200;

} // namespace

DropReader::DropReader(DropRule rule, QObject *parent)
    : QObject(parent)
    , m_rule(std::move(rule))
    , m_latest(std::make_shared<std::atomic<quint64>>(0))
{
    qRegisterMetaType<DropRule::Outcome>("DropRule::Outcome");
}

DropReader::~DropReader()
{
    cancel();
    if (m_worker)
        m_worker->stop(kStopMs);
}

void DropReader::read(const QList<QUrl> &urls, bool isPlaying)
{
    const quint64 number = ++*m_latest;
    m_isReading = true;
    ++m_atWork;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(0);
    m_worker->setThreadCount(qMin(m_atWork, kMostThreads));

    const auto outcome = std::make_shared<DropRule::Outcome>();
    m_worker->addTask(
        [rule = m_rule, urls, isPlaying, outcome, number, latest = m_latest] {
            *outcome = rule.decide(urls, isPlaying, [&latest, number] {
                return *latest != number || ThreadWorker::stopRequested();
            });
        },
        [this, outcome, number, count = urls.size()] {
            --m_atWork;
            if (*m_latest != number)
                return;
            m_isReading = false;
            const int taken = outcome->queue.size() + (outcome->first.isEmpty() ? 0 : 1);
            qInfo().noquote() << "[Drop] entries:" << count << "sources:" << taken
                              << "subtitles:" << outcome->subtitles.size();
            for (const QString &message : qAsConst(outcome->messages))
                qInfo().noquote() << "[Drop]" << message;
            emit decided(*outcome);
        });
}

void DropReader::cancel()
{
    ++*m_latest;
    m_isReading = false;
}
