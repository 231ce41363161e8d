// What was scanned, provided or chosen for a file, as the text that stands in its row. It is kept whole
// beside what the lists show, so that a change of one source can be weighed anew against the others.
#pragma once

#include "records/ScanRecords.h"

#include <QString>

// A description that did not come from the files: a provider's, or the user's choice.
struct GivenDescription {
    Description description;
    QString collection;
    int showId{0}; // of an episode, else 0
    int season{0};
    int episode{0};
};

// Empty texts stand for nothing known and give records without values; so does what cannot be read.
namespace StoredJson {

[[nodiscard]] QString ofDescription(const Description &description);
[[nodiscard]] Description description(const QString &text);
// Without path, real path and stamp, which are columns.
[[nodiscard]] QString ofVideo(const ScannedVideo &video);
[[nodiscard]] ScannedVideo video(const QString &text);
// Without path and stamp.
[[nodiscard]] QString ofSong(const ScannedSong &song);
[[nodiscard]] ScannedSong song(const QString &text);
[[nodiscard]] QString ofGiven(const GivenDescription &given);
[[nodiscard]] GivenDescription given(const QString &text);

} // namespace StoredJson
