#include "QueuePath.h"

#include "core/PlatformNames.h"
#include "player/PlaySourcePath.h"

#include <QDir>
#include <QFileInfo>

namespace QueuePath {

namespace {

constexpr int kLongestType = 8;
constexpr int kLongestUnknownEnding = 4;
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

// Of a type that the tables don't know.
bool looksLikeFile(const QString &path)
{
    const QString name = lastPart(path);
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    const int ending = name.size() - dot - 1;
    return dot > 0 && ending > 0 && ending <= kLongestUnknownEnding && !name.contains(QLatin1Char(' '))
           && !path.endsWith(kSlash);
}

} // namespace

bool isUsable(const QString &path)
{
    if (path.size() > Longest)
        return false;
    bool hasText = false;
    for (const QChar character : path) {
        if (character.isNull())
            return false;
        hasText = hasText || !character.isSpace();
    }
    return hasText;
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
    return CommonInfoManager::kindOf(path) != FileKind::Other || looksLikeFile(path) ? File : Folder;
}

bool mayBeDisc(const QString &path)
{
    if (isLetter(path))
        return true;
    const FileKind kind = CommonInfoManager::kindOf(path);
    return kind == FileKind::DiscImage || (kind == FileKind::Other && !looksLikeFile(path));
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
