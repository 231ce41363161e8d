// Any text as the names of a folder and its files: nothing crashes, and no file becomes two items.
#include "Quiet.h"
#include "names/CameraName.h"
#include "names/MoviePart.h"
#include "names/SeasonFolder.h"
#include "sidecars/Identifier.h"

#include <QSet>

#include <cstdlib>

namespace {

class NoFiles final : public IFolderFiles {
public:
    [[nodiscard]] QByteArray read(const QString &, qint64) const override { return {}; }
    [[nodiscard]] bool exists(const QString &) const override { return false; }
    [[nodiscard]] QVector<FolderEntry> list(const QString &) const override { return {}; }
};

} // namespace

// The first line is the folder's name, each further one a file's.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    keepQuiet();
    QStringList names =
        QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)).split(QLatin1Char('\n'));
    const QString folder = names.takeFirst().remove(QLatin1Char('/'));
    (void)SeasonFolder::parse(folder);
    (void)MoviePart::parse(folder);
    (void)CameraName::isCamera(folder);
    FolderListing listing{QStringLiteral("/lib/") + folder, QStringLiteral("/lib"), false, {}};
    QSet<QString> seen;
    for (QString &name : names) {
        name.remove(QLatin1Char('/'));
        name += QLatin1String(".mkv");
        if (!seen.contains(name))
            listing.entries.append({name, {1, 1}, false});
        seen.insert(name);
    }
    QSet<QString> paths;
    for (const ScannedVideo &video : Identifier(NoFiles()).identify(listing).videos) {
        if (paths.contains(video.path) || video.episode < 0 || video.season < 0
            || video.leadPath == video.path)
            std::abort();
        paths.insert(video.path);
    }
    return 0;
}
