// Large trees of small tagged files, made once a run from one encoded clip each.
//
// A file that cannot be made ends the benchmark.
#pragma once

#include <QString>
#include <QStringList>

namespace MediaTree {

// "NN/MM/track.mp3" with tags of their own, fifty a folder. The paths of all files.
[[nodiscard]] QStringList makeMusic(const QString &folder, int files);
// "Film N (1990)/Film N (1990).mkv".
[[nodiscard]] QStringList makeVideos(const QString &folder, int files);

} // namespace MediaTree
