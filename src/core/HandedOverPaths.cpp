#include "HandedOverPaths.h"

#include <QDebug>
#include <QFileInfo>
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <memory>

HandedOverPaths::HandedOverPaths(QObject *parent, Test test)
    : QObject(parent)
    , m_test(std::move(test))
    , m_threads(0)
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &HandedOverPaths::tell);
}

HandedOverPaths::~HandedOverPaths()
{
    m_threads.stop(StopMs);
}

bool HandedOverPaths::isFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

void HandedOverPaths::add(const QString &path)
{
    const quint64 number = ++m_lastNumber;
    m_waiting.push_back({number, path, Answer::Open, QDeadlineTimer(PatienceMs)});
    const auto open = std::count_if(m_waiting.cbegin(), m_waiting.cend(),
                                    [](const Entry &entry) { return entry.answer == Answer::Open; });
    m_threads.setThreadCount(std::min(static_cast<int>(open), MaxThreads));
    const auto isFile = std::make_shared<bool>(false);
    m_threads.addTask([isFile, path, test = m_test] { *isFile = test(path); },
                      [this, number, isFile] { take(number, *isFile); });
}

void HandedOverPaths::take(quint64 number, bool isFile)
{
    for (Entry &entry : m_waiting) {
        if (entry.number == number)
            entry.answer = isFile ? Answer::File : Answer::None;
    }
    tell();
}

void HandedOverPaths::tell()
{
    m_patience.stop();
    QStringList found;
    for (auto entry = m_waiting.begin(); entry != m_waiting.end();) {
        if (entry->answer == Answer::Open) {
            if (!entry->patience.hasExpired()) {
                m_patience.start(static_cast<int>(entry->patience.remainingTime()) + 1);
                break;
            }
            ++entry;
            continue;
        }
        if (entry->answer == Answer::File && entry->number > m_lastTold) {
            m_lastTold = entry->number;
            found << entry->path;
        } else if (entry->answer == Answer::File) {
            qInfo().noquote() << "[Process] not played, a newer file has come meanwhile:" << entry->path;
        }
        entry = m_waiting.erase(entry);
    }
    // Who hears of a file may do anything, up to the end of this object.
    const QPointer<HandedOverPaths> self(this);
    for (const QString &path : qAsConst(found)) {
        if (self)
            emit fileFound(path);
    }
}
