#include "QueuePath.h"

#include "core/PlatformNames.h"
#include "player/PlaySourcePath.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace QueuePath {

namespace {

constexpr int kLongestType = 8;
constexpr QLatin1Char kSlash('/');

bool isLetter(const QString &path)
{
    return path.size() == 1 && path.at(0).isLetter();
}

// The cue sheet in a path with its title in front; a plain cue sheet may have an underscore as well.
QString withoutCueTitle(const QString &path, int *title)
{
    QString file = path;
    const int number = PlaySourcePath::takeCueTitle(&file);
    bool isNumber = false;
    path.leftRef(path.size() - file.size() - 1).toInt(&isNumber);
    if (number < 0 || !isNumber)
        return path;
    *title = number;
    return file;
}

// Without what stands in front of the file's own path.
QString bare(const QString &path)
{
    int title = -1;
    return withoutCueTitle(PlaySourcePath::withoutNetworkScheme(path), &title);
}

QString lastPart(const QString &path)
{
    int end = path.size();
    while (end > 1 && (path.at(end - 1) == kSlash || path.at(end - 1) == QLatin1Char('\\')))
        --end;
    const int slash = qMax(path.lastIndexOf(kSlash, end - 1), path.lastIndexOf(QLatin1Char('\\'), end - 1));
    const QString name = path.mid(slash + 1, end - slash - 1);
    return name.isEmpty() ? path : name;
}

} // namespace

bool isUsable(const QString &path)
{
    return !path.trimmed().isEmpty() && path.size() <= Longest
           && std::none_of(path.cbegin(), path.cend(), [](QChar character) { return character.isNull(); })
           && !lastPart(path).isEmpty();
}

QString kept(const QString &path)
{
    return PlaySourcePath::reducedDriveRoot(path);
}

QString key(const QString &path)
{
    const bool folds = isLetter(path) || PlatformNames::pathCase() == Qt::CaseInsensitive;
    return folds ? path.toLower() : path;
}

Kind kindOf(const QString &path)
{
    if (isLetter(path))
        return Disc;
    switch (CommonInfoManager::kindOf(path)) {
    case FileKind::Video:
    case FileKind::Audio:
    case FileKind::DiscImage:
    case FileKind::Subtitle:
        return File;
    case FileKind::Other:
        break;
    }
    // A file of a type that the tables don't know still looks like one.
    const QString name = lastPart(path);
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    const bool hasEnding = dot > 0 && name.size() - dot - 1 > 0 && name.size() - dot - 1 <= 4
                           && !name.contains(QLatin1Char(' '), Qt::CaseSensitive);
    return hasEnding && !path.endsWith(kSlash) ? File : Folder;
}

bool mayBeDisc(const QString &path)
{
    return kindOf(path) != File || CommonInfoManager::kindOf(path) == FileKind::DiscImage;
}

QString displayName(const QString &path)
{
    if (isLetter(path))
        return path.toUpper() + QLatin1Char(':');
    int cueTitle = -1;
    const QString name = lastPart(withoutCueTitle(PlaySourcePath::withoutNetworkScheme(path), &cueTitle));
    return cueTitle >= 0 ? QStringLiteral("%1 - %2").arg(name).arg(cueTitle) : name;
}

QString folderText(const QString &path)
{
    if (isLetter(path))
        return {};
    const QString file = bare(path);
    const QString name = lastPart(file);
    const int end = file.lastIndexOf(name);
    QString folder = file.left(qMax(0, end));
    while (folder.size() > 1 && (folder.endsWith(kSlash) || folder.endsWith(QLatin1Char('\\'))))
        folder.chop(1);
    return QDir::toNativeSeparators(folder);
}

QString typeText(const QString &path)
{
    if (kindOf(path) != File)
        return {};
    const QString name = lastPart(bare(path));
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.mid(dot + 1, kLongestType).toUpper() : QString();
}

QString local(const QString &path)
{
    return isLetter(path) ? QString() : bare(path);
}

bool exists(const QString &path)
{
    return isLetter(path) || QFileInfo::exists(bare(path));
}

} // namespace QueuePath
