#include "FolderWalk.h"

#include "DirectoryListing.h"
#include "FolderPlan.h"

#include "names/DiscStructure.h"

#include <QDebug>
#include <QDir>

#include <algorithm>
#include <vector>

namespace {

constexpr const char *leftOut[] = {
    "@eaDir", "AUDIO_TS", "#recycle", "lost+found", "$RECYCLE.BIN", "RECYCLER", "System Volume Information"};
constexpr const char *marks[] = {".nomedia", ".ignore"};

template<std::size_t Count>
bool isAmong(const char *const (&names)[Count], const QString &name)
{
    return std::any_of(std::begin(names), std::end(names), [&](const char *other) {
        return name.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
    });
}

} // namespace

FolderWalk::Result FolderWalk::walk(const QString &root, const Enter &enter, const Visit &visit)
{
    const QString rootPath = QDir::cleanPath(root);
    std::vector<Waiting> waiting{{nullptr, rootPath}};
    while (!waiting.empty()) {
        if (m_cancelled)
            return Result::Cancelled;
        const Waiting next = std::move(waiting.back());
        waiting.pop_back();
        if (enter)
            enter(next.path);
        auto folder = std::make_shared<WalkedFolder>();
        folder->path = next.path;
        folder->rootPath = rootPath;
        folder->parent = next.parent;
        const Listed listed = list(*folder);
        if (!next.parent && (listed == Listed::Gone || !folder->isReadable))
            return Result::Unreachable;
        if (listed != Listed::Use)
            continue;
        folder->sidecars = FolderPlan::sidecarDigest(*folder);
        if (!visit(folder))
            return Result::Cancelled;
        // The last one is taken first: the walk goes by name.
        const QString prefix =
            folder->path.endsWith(QLatin1Char('/')) ? folder->path : folder->path + QLatin1Char('/');
        for (auto entry = folder->entries.crbegin(); entry != folder->entries.crend(); ++entry) {
            if (entry->isFolder && !DiscStructure::isStructure(entry->name) && !isAmong(leftOut, entry->name))
                waiting.push_back({folder, prefix + entry->name});
        }
    }
    return m_cancelled ? Result::Cancelled : Result::Complete;
}

FolderWalk::Listed FolderWalk::list(WalkedFolder &folder)
{
    DirectoryListing listing = DirectoryListing::read(folder.path);
    if (listing.strangeNames > 0)
        note("has files with names that are no text:", folder.path);
    if (listing.longPaths > 0)
        note("has files with too long a path:", folder.path.right(200));
    switch (listing.outcome) {
    case DirectoryListing::Outcome::Gone:
        return Listed::Gone;
    case DirectoryListing::Outcome::TooLong:
        note("is too long a path:", folder.path.right(200));
        return Listed::Leave;
    case DirectoryListing::Outcome::Unreadable:
        note("cannot be listed:", folder.path);
        folder.isReadable = false;
        return Listed::Use;
    case DirectoryListing::Outcome::Read:
        break;
    }
    if (m_visited.contains(listing.identity))
        return Listed::Leave;
    m_visited.insert(listing.identity);
    for (const FolderEntry &entry : qAsConst(listing.entries)) {
        if (!entry.isFolder && isAmong(marks, entry.name))
            return Listed::Leave;
    }
    folder.entries = std::move(listing.entries);
    std::sort(folder.entries.begin(), folder.entries.end(),
              [](const FolderEntry &a, const FolderEntry &b) { return a.name < b.name; });
    return Listed::Use;
}

void FolderWalk::note(const char *what, const QString &path)
{
    // One line a kind and walk: a library with wrong rights would fill the log.
    if (m_noted.contains(what))
        return;
    m_noted.insert(what);
    qInfo().noquote() << "[scan] a folder" << what << path << "(others like it are not named)";
}
