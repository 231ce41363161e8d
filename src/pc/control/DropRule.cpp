#include "DropRule.h"

#include "NaturalOrder.h"

#include "core/CommonInfoManager.h"
#include "disc/DiscFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <vector>

namespace {

enum class Refusal {
    NotLocal,
    Missing,
    Unreadable,
    UnreadableFolder,
    EmptyFolder,
    NotMedia,
    LoneSubtitle,
    TooMany,
    Count
};

struct RefusalRow {
    Refusal reason;
    const char *one;  // %1: the name
    const char *many; // %1: how many, %2: the first name
    // Of no interest once something plays, as the pictures beside a film.
    bool isQuiet;
};

constexpr RefusalRow kRefusals[] = {
    {Refusal::NotLocal, QT_TRANSLATE_NOOP("DropRule", "\"%1\" is not a file on this computer."),
     QT_TRANSLATE_NOOP("DropRule", "%1 of them are not files on this computer, the first is \"%2\"."), false},
    {Refusal::Missing, QT_TRANSLATE_NOOP("DropRule", "The file \"%1\" does not exist."),
     QT_TRANSLATE_NOOP("DropRule", "%1 files do not exist, the first is \"%2\"."), false},
    {Refusal::Unreadable, QT_TRANSLATE_NOOP("DropRule", "The file \"%1\" can't be read."),
     QT_TRANSLATE_NOOP("DropRule", "%1 files can't be read, the first is \"%2\"."), false},
    {Refusal::UnreadableFolder, QT_TRANSLATE_NOOP("DropRule", "The folder \"%1\" can't be read."),
     QT_TRANSLATE_NOOP("DropRule", "%1 folders can't be read, the first is \"%2\"."), false},
    {Refusal::EmptyFolder,
     QT_TRANSLATE_NOOP("DropRule", "There is nothing in the folder \"%1\" that can be played."),
     QT_TRANSLATE_NOOP("DropRule", "There is nothing in %1 folders that can be played, the first is \"%2\"."),
     true},
    {Refusal::NotMedia, QT_TRANSLATE_NOOP("DropRule", "\"%1\" is not a media file."),
     QT_TRANSLATE_NOOP("DropRule", "%1 of them are not media files, the first is \"%2\"."), true},
    {Refusal::LoneSubtitle,
     QT_TRANSLATE_NOOP("DropRule", "The subtitle file \"%1\" can be added while a film plays."),
     QT_TRANSLATE_NOOP("DropRule", "%1 subtitle files can be added while a film plays, the first is \"%2\"."),
     false},
    {Refusal::TooMany, QT_TRANSLATE_NOOP("DropRule", "\"%1\" and what follows was left out."),
     QT_TRANSLATE_NOOP("DropRule", "\"%2\" and what follows was left out."), false},
};

// Entries of a folder between two looks at whether anybody still waits.
constexpr int kEntriesAtOnce = 64;

QString shownName(const QString &path)
{
    const QString name = QFileInfo(QDir::cleanPath(path)).fileName();
    return name.isEmpty() ? QDir::toNativeSeparators(path) : name;
}

QString inFolder(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

// "Part 2" before "Part 10".
QStringList naturallySorted(const QStringList &names)
{
    const QCollator collator = NaturalOrder::collator();
    struct Keyed {
        QCollatorSortKey key;
        QString name;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(std::size_t(names.size()));
    for (const QString &name : names)
        keyed.push_back({collator.sortKey(name), name});
    std::sort(keyed.begin(), keyed.end(), [](const Keyed &one, const Keyed &other) {
        const int order = one.key.compare(other.key);
        return order != 0 ? order < 0 : one.name < other.name;
    });
    QStringList sorted;
    sorted.reserve(names.size());
    for (const Keyed &entry : keyed)
        sorted << entry.name;
    return sorted;
}

// One drop on its way through the rule.
class Sorting final {
public:
    Sorting(const DropRule::Disk &disk, int most, bool isPlaying, const std::function<bool()> &isCancelled)
        : m_disk(disk)
        , m_most(most)
        , m_isPlaying(isPlaying)
        , m_isCancelled(isCancelled)
    {
    }

    [[nodiscard]] bool isCancelled() const { return m_isCancelled && m_isCancelled(); }

    void take(const QUrl &url)
    {
        if (!url.isLocalFile() || url.toLocalFile().isEmpty()) {
            refuse(Refusal::NotLocal, url.toDisplayString());
            return;
        }
        const QString path = url.toLocalFile();
        const DropRule::Found found = m_disk.look(path);
        if (found.kind == DropRule::Kind::Missing)
            refuse(Refusal::Missing, shownName(path));
        else if (found.kind == DropRule::Kind::Folder)
            takeFolder(path, found.isReadable);
        else
            takeFile(path, found.isReadable);
    }

    [[nodiscard]] DropRule::Outcome outcome()
    {
        DropRule::Outcome outcome;
        const bool isPlayable = !m_playable.isEmpty();
        if (isPlayable || m_isPlaying) {
            outcome.subtitles = m_subtitles;
        } else {
            for (const QString &path : qAsConst(m_subtitles))
                refuse(Refusal::LoneSubtitle, shownName(path));
        }
        if (isPlayable) {
            outcome.first = m_playable.first();
            outcome.queue = m_playable.mid(1);
        }
        outcome.messages = messages(isPlayable || !outcome.subtitles.isEmpty());
        return outcome;
    }

private:
    void play(const QString &path)
    {
        if (m_playable.size() < m_most)
            m_playable << path;
        else
            refuse(Refusal::TooMany, shownName(path));
    }

    void takeFile(const QString &path, bool isReadable)
    {
        const bool isMedia = DropRule::isMedia(path);
        if (!isMedia && !DropRule::isSubtitle(path))
            refuse(Refusal::NotMedia, shownName(path));
        else if (!isReadable)
            refuse(Refusal::Unreadable, shownName(path));
        else if (isMedia)
            play(path);
        else
            m_subtitles << path;
    }

    // A disc counts as one source, any other folder for what lies in it and in the folders right below it.
    void takeFolder(const QString &path, bool isReadable)
    {
        if (!isReadable) {
            refuse(Refusal::UnreadableFolder, shownName(path));
        } else if (m_disk.isPlayableDisc(path)) {
            play(path);
        } else {
            const int before = m_playable.size();
            const QStringList folders = playFilesOf(path);
            for (const QString &name : naturallySorted(folders)) {
                if (isCancelled() || isFull())
                    break;
                const QString below = inFolder(path, name);
                if (m_disk.isPlayableDisc(below))
                    play(below);
                else
                    playFilesOf(below);
            }
            if (m_playable.size() == before && !isFull())
                refuse(Refusal::EmptyFolder, shownName(path));
        }
    }

    [[nodiscard]] bool isFull() const { return m_counts[std::size_t(Refusal::TooMany)] > 0; }

    // Gives the folders of the folder.
    QStringList playFilesOf(const QString &folder)
    {
        const DropRule::Listing listing = m_disk.list(folder, m_isCancelled);
        QStringList media;
        std::copy_if(listing.files.cbegin(), listing.files.cend(), std::back_inserter(media),
                     DropRule::isMedia);
        for (const QString &name : naturallySorted(media))
            play(inFolder(folder, name));
        return listing.folders;
    }

    void refuse(Refusal reason, const QString &name)
    {
        if (m_counts[std::size_t(reason)]++ == 0)
            m_firstNames[std::size_t(reason)] = name;
    }

    [[nodiscard]] QStringList messages(bool isTaken) const
    {
        QStringList texts;
        for (const RefusalRow &row : kRefusals) {
            const int count = m_counts[std::size_t(row.reason)];
            const QString &name = m_firstNames[std::size_t(row.reason)];
            if (count == 1 && !(isTaken && row.isQuiet))
                texts << DropRule::tr(row.one).arg(name);
            else if (count > 1 && !(isTaken && row.isQuiet))
                texts << DropRule::tr(row.many)
                             .replace(QLatin1String("%1"), QString::number(count))
                             .replace(QLatin1String("%2"), name);
        }
        return texts;
    }

    const DropRule::Disk &m_disk;
    const int m_most;
    const bool m_isPlaying;
    const std::function<bool()> &m_isCancelled;
    QStringList m_playable;
    QStringList m_subtitles;
    std::array<int, std::size_t(Refusal::Count)> m_counts{};
    std::array<QString, std::size_t(Refusal::Count)> m_firstNames;
};

DropRule::Found lookAt(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    return {info.isDir() ? DropRule::Kind::Folder : DropRule::Kind::File, info.isReadable()};
}

DropRule::Listing listOf(const QString &folder, const std::function<bool()> &isCancelled)
{
    DropRule::Listing listing;
    int count = 0;
    QDirIterator entries(folder, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (++count % kEntriesAtOnce == 0 && isCancelled && isCancelled())
            break;
        const QFileInfo info = entries.fileInfo();
        if (!info.isDir())
            listing.files << entries.fileName();
        else if (!info.isSymLink())
            listing.folders << entries.fileName();
    }
    return listing;
}

} // namespace

DropRule::Disk DropRule::Disk::ofSystem()
{
    return {lookAt, IsPlayableDiscFolder, listOf};
}

DropRule::DropRule()
    : DropRule(Disk::ofSystem())
{
}

DropRule::DropRule(Disk disk, int most)
    : m_disk(std::move(disk))
    , m_most(most)
{
}

bool DropRule::isMedia(const QString &path)
{
    switch (CommonInfoManager::kindOf(path)) {
    case FileKind::Video:
    case FileKind::Audio:
    case FileKind::DiscImage:
        return true;
    case FileKind::Subtitle:
    case FileKind::Other:
        break;
    }
    return false;
}

bool DropRule::isSubtitle(const QString &path)
{
    static const QSet<QString> endings = [] {
        QSet<QString> made;
        const QStringList names = QString::fromLatin1(SubtitleNames).split(QLatin1Char(' '));
        for (const QString &name : names)
            made.insert(QFileInfo(name).suffix());
        return made;
    }();
    return endings.contains(QFileInfo(path).suffix().toLower());
}

bool DropRule::accepts(const QList<QUrl> &urls, bool isPlaying) const
{
    QStringList maybeFolders;
    for (const QUrl &url : urls) {
        if (!url.isLocalFile())
            continue;
        const QString path = url.toLocalFile();
        if (isMedia(path) || (isPlaying && isSubtitle(path)))
            return true;
        if (maybeFolders.size() < MostLooks)
            maybeFolders << path;
    }
    return std::any_of(maybeFolders.cbegin(), maybeFolders.cend(),
                       [this](const QString &path) { return m_disk.look(path).kind == Kind::Folder; });
}

DropRule::Outcome DropRule::decide(const QList<QUrl> &urls, bool isPlaying,
                                   const std::function<bool()> &isCancelled) const
{
    Sorting sorting(m_disk, m_most, isPlaying, isCancelled);
    for (const QUrl &url : urls) {
        if (sorting.isCancelled())
            return {};
        sorting.take(url);
    }
    return sorting.outcome();
}
