#include "PlaySourcePath.h"

#include "DriveRootRule.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr int kShortestRoot = 2;
constexpr int kLongestRoot = 4;
constexpr const char *kNetworkSchemes[] = {"smb:", "nfs:"};

} // namespace

PlaySourcePath::PlaySourcePath(PathForm pathForm, DiscName discName)
    : m_pathForm(std::move(pathForm))
    , m_discName(std::move(discName))
{
}

PlaySource PlaySourcePath::resolve(const QString &asked) const
{
    PlaySource source;
    source.path = withoutNetworkScheme(reducedDriveRoot(asked));
    if (m_pathForm)
        source.path = m_pathForm(source.path);
    source.cueTitle = takeCueTitle(&source.path);

    const QFileInfo info(source.path);
    if (info.isFile()) {
        source.kind = PlaySource::File;
        source.displayName = info.fileName();
    } else if (info.path() == QLatin1String(".")) {
        source.kind = PlaySource::Disc;
        source.displayName = m_discName ? m_discName(source.path) : QString();
        if (source.displayName.isEmpty())
            source.displayName = source.path;
    } else {
        source.kind = PlaySource::Folder;
        source.displayName = QDir(source.path).dirName();
    }
    return source;
}

QString PlaySourcePath::reducedDriveRoot(const QString &path)
{
    if (path.size() < kShortestRoot || path.size() > kLongestRoot)
        return path;
    const QChar last = path.back();
    const bool endsAsRoot = last == QLatin1Char('\\') || last == QLatin1Char('/') || last == QLatin1Char(':');
    return endsAsRoot && DriveRootRule::mayBeRoot(path) ? path.left(1) : path;
}

QString PlaySourcePath::withoutNetworkScheme(const QString &path)
{
    for (const char *scheme : kNetworkSchemes) {
        const QLatin1String prefix(scheme);
        if (path.startsWith(prefix))
            return path.mid(prefix.size());
    }
    return path;
}

int PlaySourcePath::takeCueTitle(QString *path)
{
    if (!path->endsWith(QLatin1String(".cue"), Qt::CaseInsensitive))
        return -1;
    const int separator = path->indexOf(QLatin1Char('_'));
    if (separator <= 0)
        return 0;
    const int title = path->leftRef(separator).toInt();
    path->remove(0, separator + 1);
    return title;
}
