#include "FolderEpisodes.h"

#include "DropRule.h"
#include "EpisodeName.h"

#include "core/ThreadWorker.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

// Questions about folders that do not answer each hold a thread.
constexpr int kMostThreads = 4;
constexpr int kStopMs = 200;
constexpr qint64 kMostPosterBytes = 8 * 1024 * 1024;
// A folder with more is no season.
constexpr int kMostFiles = 20000;

struct Found {
    QString path;
    EpisodeName name;
};

bool isStaleNow(const std::function<bool()> &isStale)
{
    return isStale && isStale();
}

// The earliest episode of the folder that fits.
std::optional<Found> earliest(const QDir &folder, const std::function<bool(const EpisodeName &)> &fits,
                              const std::function<bool()> &isStale)
{
    std::optional<Found> best;
    QDirIterator files(folder.absolutePath(), QDir::Files | QDir::Readable);
    for (int count = 0; files.hasNext() && count < kMostFiles; ++count) {
        if (isStaleNow(isStale))
            return std::nullopt;
        const QString path = files.next();
        if (!DropRule::isMedia(path))
            continue;
        const auto name = EpisodeName::parse(files.fileInfo().completeBaseName(), folder.dirName());
        if (!name || !fits(*name))
            continue;
        // Two versions of one episode: the same one each time, whatever order the folder has.
        const bool isSame = best && !name->isAfter(best->name) && !best->name.isAfter(*name);
        if (!best || best->name.isAfter(*name) || (isSame && path < best->path))
            best = Found{path, *name};
    }
    return best;
}

std::optional<Found> inLaterSeason(const QDir &seasonFolder, const EpisodeName &current,
                                   const std::function<bool()> &isStale)
{
    if (EpisodeName::seasonOfFolder(seasonFolder.dirName()) < 0)
        return std::nullopt;
    QDir show(seasonFolder);
    if (!show.cdUp())
        return std::nullopt;
    std::optional<Found> best;
    const QStringList folders = show.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &folder : folders) {
        const int season = EpisodeName::seasonOfFolder(folder);
        if (season <= current.season || (best && best->name.season <= season))
            continue;
        const auto found = earliest(
            QDir(show.filePath(folder)),
            [&](const EpisodeName &name) { return name.season == season && name.show == current.show; },
            isStale);
        if (found)
            best = found;
    }
    return best;
}

// The picture that stands for an episode: its own, else its season's or its show's.
QByteArray posterOf(const QFileInfo &file)
{
    const QDir folder = file.dir();
    QStringList names{file.completeBaseName() + QLatin1String("-thumb")};
    for (const char *name : {"poster", "folder", "cover"})
        names << QLatin1String(name);
    QStringList paths;
    for (const QString &name : qAsConst(names)) {
        for (const char *suffix : {".jpg", ".jpeg", ".png", ".webp"})
            paths << folder.filePath(name + QLatin1String(suffix));
    }
    if (EpisodeName::seasonOfFolder(folder.dirName()) >= 0)
        paths << QFileInfo(folder.absolutePath()).dir().filePath(QStringLiteral("poster.jpg"));
    for (const QString &path : qAsConst(paths)) {
        QFile picture(path);
        if (picture.exists() && QFileInfo(path).isFile() && picture.size() <= kMostPosterBytes
            && picture.open(QIODevice::ReadOnly))
            return picture.read(kMostPosterBytes);
    }
    return {};
}

} // namespace

FolderEpisodes::FolderEpisodes(QObject *parent)
    : QObject(parent)
    , m_latest(std::make_shared<std::atomic<quint64>>(0))
{
}

FolderEpisodes::~FolderEpisodes()
{
    ++*m_latest;
    if (m_worker)
        m_worker->stop(kStopMs);
}

NextEpisode FolderEpisodes::find(const QString &path, const std::function<bool()> &isStale)
{
    const QFileInfo file(path);
    const QDir folder = file.dir();
    const auto current = EpisodeName::parse(file.completeBaseName(), folder.dirName());
    if (!current || !file.isFile())
        return {};
    auto found = earliest(
        folder,
        [&](const EpisodeName &name) {
            return name.show == current->show && name.isAfter(*current) &&
                   // Specials do not lead into the first season.
                   (current->season > 0 || name.season == 0);
        },
        isStale);
    if (!found && current->season > 0)
        found = inLaterSeason(folder, *current, isStale);
    if (!found || isStaleNow(isStale))
        return {};
    const QFileInfo next(found->path);
    return {next.absoluteFilePath(), next.completeBaseName(), posterOf(next)};
}

void FolderEpisodes::requestNext(const QString &path, Answer answer)
{
    const quint64 number = ++*m_latest;
    ++m_atWork;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(0);
    m_worker->setThreadCount(qMin(m_atWork, kMostThreads));
    const auto next = std::make_shared<NextEpisode>();
    m_worker->addTask(
        [path, next, number, latest = m_latest] {
            *next =
                find(path, [&latest, number] { return *latest != number || ThreadWorker::stopRequested(); });
        },
        [this, next, number, answer = std::move(answer)] {
            --m_atWork;
            if (*m_latest != number)
                return;
            if (!next->path.isEmpty())
                qInfo().noquote() << "[Play control] next episode:" << next->path;
            answer(*next);
        });
}
