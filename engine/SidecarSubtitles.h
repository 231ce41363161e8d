// Finds the subtitle files that belong to a source: those of its name in its folder, in the folders "Subs"
// and "Subtitles" beside it and in a further folder that the user has chosen. Stateless; waits for the
// folders.
#pragma once

#include <string>
#include <vector>

struct SidecarSubtitle {
    std::string path;     // absolute
    std::string address;  // what libmpv is told to open
    std::string language; // as LanguageCodes has it, empty when the name tells none
    bool isForced = false;
    bool isForHearingImpaired = false;
};

namespace SidecarSubtitles {

// In the order in which they are preferred without a wish for a language; the same each time. A name belongs
// to the source when it begins with the source's and goes on with languages and marks such as "forced" alone,
// or with anything behind a point, and to no other film of the folder. In the folder beside a film that
// stands alone every subtitle file is the film's.
[[nodiscard]] std::vector<SidecarSubtitle> find(const std::string &source, const std::string &furtherFolder);

} // namespace SidecarSubtitles
