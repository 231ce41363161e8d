// The five lists of the video library, which differ only in rows: how each is asked for and where its answer
// stands.
#pragma once

#include "LibraryRole.h"

#include <array>

struct VideoListRow {
    enum class Filter { None, Empty, Movie, TvShow };

    LibraryRole role;
    const char *method;
    const char *totalKey; // "limits" where the total stands inside that object
    const char *listKey;
    const char *idKey;
    Filter filter;
    bool hasPattern;
    bool hasSort;
};

namespace VideoLists {

[[nodiscard]] const std::array<VideoListRow, 5> &rows();
// role: any but music.
[[nodiscard]] const VideoListRow &row(LibraryRole role);

} // namespace VideoLists
