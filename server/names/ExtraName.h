// Which files and folders hold what comes with a film (trailers, samples, scenes) and not the film.
//
// Some of these words are sure wherever they stand, others ("clips", "-short") are also how people name their
// own films: those count only beside what they would belong to. Pure; any thread.
#pragma once

#include <QString>

namespace ExtraName {

enum class Certainty { None, BesideFilm, Sure };

[[nodiscard]] Certainty ofFolder(const QString &name);
// "extrafanart", "extrathumbs": further pictures of what lies beside it, whatever else stands in it.
[[nodiscard]] bool isPictureFolder(const QString &name);
// The one of them that holds backdrops.
[[nodiscard]] bool isBackdropFolder(const QString &name);

struct File {
    Certainty certainty{Certainty::None};
    QString stem; // the name that the suffix belongs to: "Film" of "Film-trailer"; empty for "trailer" alone
};
// name: without the suffix of the file.
[[nodiscard]] File ofFile(const QString &name);

} // namespace ExtraName
