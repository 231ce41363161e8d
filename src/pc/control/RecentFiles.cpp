#include "RecentFiles.h"

#include "core/SettingsManager.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// Longer than any system takes.
constexpr int kLongestPath = 32767;
constexpr int kLongestName = 1024;

bool isPath(const QString &path)
{
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    return !path.trimmed().isEmpty() && path.size() <= kLongestPath
           && std::none_of(path.cbegin(), path.cend(), isControl);
}

QString comparable(const QString &path)
{
    return QDir::cleanPath(QDir::fromNativeSeparators(path));
}

QString shownName(const QString &name, const QString &path)
{
    const QString given = name.simplified().left(kLongestName);
    if (!given.isEmpty())
        return given;
    const QString own = QFileInfo(comparable(path)).fileName();
    return own.isEmpty() ? path : own;
}

} // namespace

RecentFiles::RecentFiles(SettingsManager &settings, Qt::CaseSensitivity pathCase)
    : m_settings(settings)
    , m_pathCase(pathCase)
{
}

QVector<RecentFiles::Entry> RecentFiles::entries() const
{
    QVector<Entry> entries;
    const QList<PlayHistoryEntry> history = stored();
    for (const PlayHistoryEntry &entry : history)
        entries << Entry{entry.displayText, entry.path, entry.type,
                         qMax(0, m_settings.lastPosition(entry.path)),
                         m_settings.lastPositionPixmap(entry.path)};
    return entries;
}

void RecentFiles::add(const QString &name, const QString &path, Type type)
{
    if (!isPath(path)) {
        qInfo().noquote() << "[Play control] not kept as played, no path:" << path.left(100).simplified();
        return;
    }
    QList<PlayHistoryEntry> history = stored();
    const auto known =
        std::remove_if(history.begin(), history.end(),
                       [this, &path](const PlayHistoryEntry &entry) { return isSame(entry.path, path); });
    history.erase(known, history.end());
    history.prepend({shownName(name, path), path, type});
    m_settings.setPlayHistory(history.mid(0, Most));
}

void RecentFiles::remove(const QString &path)
{
    QList<PlayHistoryEntry> history = stored();
    const auto known =
        std::remove_if(history.begin(), history.end(),
                       [this, &path](const PlayHistoryEntry &entry) { return isSame(entry.path, path); });
    history.erase(known, history.end());
    m_settings.setPlayHistory(history);
}

void RecentFiles::clear()
{
    m_settings.setPlayHistory({});
}

QList<PlayHistoryEntry> RecentFiles::stored() const
{
    QList<PlayHistoryEntry> clean;
    const QList<PlayHistoryEntry> history = m_settings.playHistory();
    for (const PlayHistoryEntry &entry : history) {
        if (clean.size() == Most)
            break;
        const bool isDouble =
            std::any_of(clean.cbegin(), clean.cend(), [this, &entry](const PlayHistoryEntry &earlier) {
                return isSame(earlier.path, entry.path);
            });
        if (isPath(entry.path) && !isDouble)
            clean << PlayHistoryEntry{shownName(entry.displayText, entry.path), entry.path, entry.type};
    }
    return clean;
}

bool RecentFiles::isSame(const QString &one, const QString &other) const
{
    // A drive letter is the same in any case, wherever it comes from.
    const bool isLetter = one.size() == 1 && other.size() == 1;
    return comparable(one).compare(comparable(other), isLetter ? Qt::CaseInsensitive : m_pathCase) == 0;
}
