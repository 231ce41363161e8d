#include "FolderProbe.h"

#include "core/ThreadWorker.h"

#include <QFileInfo>
#include <QTemporaryFile>
#include <QTimer>

namespace {

// So that one folder that does not answer leaves room for the others.
constexpr int kThreads = 3;
constexpr int kStopMs = 200;

} // namespace

FolderProbe::FolderProbe(QObject *parent)
    : FolderProbe(askDisk, PatienceMs, parent)
{
}

FolderProbe::FolderProbe(Ask ask, int patienceMs, QObject *parent)
    : QObject(parent)
    , m_ask(std::move(ask))
    , m_patienceMs(patienceMs)
{
}

FolderProbe::~FolderProbe()
{
    if (m_worker)
        m_worker->stop(kStopMs);
}

int FolderProbe::ask(const QString &folder, FolderNeed need)
{
    const int question = ++m_last;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(kThreads);
    auto *limit = new QTimer(this);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, this, [this, question] { finish(question, Silent); });
    limit->start(m_patienceMs);
    m_open.insert(question, limit);
    const auto answer = std::make_shared<Answer>(Silent);
    m_worker->addTask([folder, need, answer, question = m_ask] { *answer = question(folder, need); },
                      [this, question, answer] { finish(question, *answer); });
    return question;
}

void FolderProbe::finish(int question, Answer answer)
{
    QTimer *limit = m_open.take(question);
    if (!limit)
        return;
    limit->stop();
    limit->deleteLater();
    emit answered(question, answer);
}

QString FolderProbe::reason(Answer answer)
{
    switch (answer) {
    case Usable:
        break;
    case Missing:
        return tr("This folder does not exist.");
    case NoFolder:
        return tr("This is not a folder.");
    case NotReadable:
        return tr("This folder cannot be read.");
    case NotWritable:
        return tr("This folder cannot be written to.");
    case Silent:
        return tr("This folder does not answer.");
    }
    return {};
}

FolderProbe::Answer FolderProbe::askDisk(const QString &folder, FolderNeed need)
{
    const QFileInfo info(folder);
    if (info.isRelative() || !info.exists())
        return Missing;
    if (!info.isDir())
        return NoFolder;
    if (!info.isReadable() || !info.isExecutable())
        return NotReadable;
    if (need != FolderNeed::Writable)
        return Usable;
    // The rights alone do not tell of a medium that is mounted to be read only.
    QTemporaryFile trial(info.absoluteFilePath() + QStringLiteral("/.XXXXXX"));
    return trial.open() ? Usable : NotWritable;
}
