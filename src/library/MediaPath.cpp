#include "MediaPath.h"

namespace MediaPath {

namespace {

constexpr const char *kDiscMarks[]{
    "\\folder.bdmv", "\\folder.ifo", "\\folder.bdav", "\\folder.dvdvr", "\\folder.bdm",
    "/folder.bdmv",  "/folder.ifo",  "/folder.bdav",  "/folder.dvdvr",  "/folder.bdm",
};

} // namespace

QString resolveMediaPath(const QString &path)
{
    QString resolved = path;
    for (const char *mark : kDiscMarks) {
        const QLatin1String ending(mark);
        if (resolved.endsWith(ending))
            resolved.chop(ending.size());
    }
    return resolved;
}

} // namespace MediaPath
