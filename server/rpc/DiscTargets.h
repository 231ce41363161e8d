// What on disk is meant by the path of an item: the file itself, or the one folder of a disc that makes it a
// disc.
//
// Looks at the disk, changes nothing; any thread.
#pragma once

#include <QString>

struct RemovalTarget {
    enum class Kind { Nothing, File, DiscFolder, Refused };

    Kind kind{Kind::Nothing};
    QString path; // of what is to be removed
};

namespace DiscTargets {

// Takes the pseudo file of a disc folder ("DIR/folder.ifo"), the disc's folder or its index file for the
// disc's folder (DIR/VIDEO_TS). Any other folder is refused: no item is one.
[[nodiscard]] RemovalTarget resolve(const QString &path);

} // namespace DiscTargets
