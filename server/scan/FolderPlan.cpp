#include "FolderPlan.h"

#include "names/DiscStructure.h"
#include "names/ExtraName.h"
#include "names/MoviePart.h"
#include "sidecars/FolderPath.h"

#include <QCryptographicHash>

#include <algorithm>

namespace {

// Raised when folders are read in another way, so that all are read again.
constexpr char Version[] = "2";
constexpr const char *sidecarBegins[] = {"tvshow",     "season", "movie",  "album",   "artist",    "poster",
                                         "folder",     "cover",  "show",   "default", "fanart",    "backdrop",
                                         "background", "art",    "banner", "thumb",   "landscape", "jacket"};
constexpr const char *sidecarSuffixes[] = {".nfo", ".jpg", ".jpeg", ".png", ".webp", ".gif", ".bmp", ".tbn"};

template<std::size_t Count>
bool startsWithAny(const QString &name, const char *const (&begins)[Count])
{
    return std::any_of(std::begin(begins), std::end(begins), [&](const char *begin) {
        return name.startsWith(QLatin1String(begin), Qt::CaseInsensitive);
    });
}

bool tellsAboutBelow(const FolderEntry &entry)
{
    if (entry.isFolder)
        return ExtraName::isBackdropFolder(entry.name);
    return startsWithAny(entry.name, sidecarBegins)
           && std::any_of(std::begin(sidecarSuffixes), std::end(sidecarSuffixes), [&](const char *suffix) {
                  return entry.name.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
              });
}

void add(QCryptographicHash &hash, const FolderEntry &entry)
{
    hash.addData(reinterpret_cast<const char *>(entry.name.utf16()), entry.name.size() * int(sizeof(ushort)));
    // The time of a folder says only that something in it changed, which is told by its own fingerprint. A
    // disc folder has none, and what lies in a folder of pictures belongs to what lies beside it.
    const bool counts =
        !entry.isFolder || DiscStructure::isStructure(entry.name) || ExtraName::isBackdropFolder(entry.name);
    const qint64 numbers[] = {-1, entry.isFolder ? 1 : 0, entry.stamp.size,
                              counts ? entry.stamp.modifiedMs : 0};
    hash.addData(reinterpret_cast<const char *>(numbers), int(sizeof numbers));
}

// "Disc 2" hangs on "Disc 1" beside it. That folder's time tells that something in it came or went.
void addFirstPart(QCryptographicHash &hash, const WalkedFolder &folder)
{
    const MoviePart part = MoviePart::parse(FolderPath::nameOf(folder.path));
    if (part.number < 2)
        return;
    for (const FolderEntry &entry : folder.parent->entries) {
        const MoviePart other = entry.isFolder ? MoviePart::parse(entry.name) : MoviePart();
        if (other.number != 1 || other.stem.compare(part.stem, Qt::CaseInsensitive) != 0)
            continue;
        add(hash, entry);
        hash.addData(reinterpret_cast<const char *>(&entry.stamp.modifiedMs), int(sizeof(qint64)));
    }
}

} // namespace

QByteArray FolderPlan::fingerprint(const WalkedFolder &folder, const QByteArray &kind)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(Version, int(sizeof Version));
    hash.addData(kind);
    if (folder.parent) {
        hash.addData(folder.parent->sidecars);
        addFirstPart(hash, folder);
    }
    for (const FolderEntry &entry : folder.entries)
        add(hash, entry);
    return hash.result().toHex();
}

QByteArray FolderPlan::sidecarDigest(const WalkedFolder &folder)
{
    const QByteArray above = folder.parent ? folder.parent->sidecars : QByteArray();
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(above);
    bool found = false;
    for (const FolderEntry &entry : folder.entries) {
        if (!tellsAboutBelow(entry))
            continue;
        add(hash, entry);
        found = true;
    }
    return found ? hash.result() : above;
}

bool FolderPlan::take(const WalkedFolder &folder, QByteArray &fingerprint)
{
    m_seen.insert(folder.path);
    if (!folder.isReadable) {
        m_unreadable << folder.path + QLatin1Char('/');
        return false;
    }
    fingerprint = FolderPlan::fingerprint(folder, m_kind);
    return m_known.value(folder.path) != fingerprint;
}

bool FolderPlan::looksUnmounted(const WalkedFolder &root) const
{
    return root.entries.isEmpty() && !m_known.isEmpty()
           && m_known.value(root.path) != fingerprint(root, m_kind);
}

QStringList FolderPlan::gone() const
{
    QStringList folders;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        const QString &path = known.key();
        const bool kept = m_seen.contains(path)
                          || std::any_of(m_unreadable.begin(), m_unreadable.end(),
                                         [&](const QString &folder) { return path.startsWith(folder); });
        if (!kept)
            folders << path;
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}
