#include "SidecarSubtitles.h"

#include "EngineLog.h"
#include "LanguageCodes.h"
#include "LocalFile.h"
#include "NativePath.h"
#include "SubtitleText.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <tuple>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostEntries = 50000; // of one folder
constexpr std::size_t mostFiles = 64;
constexpr std::int64_t largestFile = std::int64_t{512} << 20;

constexpr const char *subtitleEndings[] = {".srt", ".ass", ".ssa", ".vtt", ".idx",
                                           ".sub", ".sup", ".pgs", ".smi"};
constexpr const char *filmEndings[] = {".mkv",  ".mp4", ".m4v", ".avi",  ".mov", ".wmv",  ".ts",
                                       ".m2ts", ".mts", ".mpg", ".mpeg", ".vob", ".webm", ".flv",
                                       ".ogm",  ".ogv", ".iso", ".rmvb", ".asf", ".3gp"};
constexpr const char *subtitleFolders[] = {"subs", "subtitles", "sub", "subtitle"};

constexpr const char *forcedMarks[] = {"forced", "foreign"};
constexpr const char *hearingMarks[] = {"sdh", "cc", "hi"};
constexpr const char *otherMarks[] = {"default", "full", "normal", "commentary"};

template<std::size_t Count>
bool isOneOf(const char *const (&words)[Count], const std::string &word)
{
    return std::any_of(std::begin(words), std::end(words),
                       [&word](const char *candidate) { return word == candidate; });
}

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return c < 0x80 ? static_cast<char>(std::tolower(c)) : char(c); });
    return text;
}

struct Entry {
    fs::path path;
    std::string stem;   // lower case
    std::string ending; // lower case, with its point
};

struct Listing {
    std::vector<Entry> files;
    std::vector<Entry> folders;
};

Listing list(const fs::path &folder)
{
    Listing listing;
    std::error_code error;
    std::size_t seen = 0;
    for (fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error), end;
         !error && entry != end && ++seen <= mostEntries; entry.increment(error)) {
        std::error_code broken; // a link that leads nowhere
        const fs::file_type type = entry->status(broken).type();
        const fs::path &path = entry->path();
        if (type == fs::file_type::directory)
            listing.folders.push_back({path, lower(path.filename().u8string()), {}});
        else if (type == fs::file_type::regular)
            listing.files.push_back(
                {path, lower(path.stem().u8string()), lower(path.extension().u8string())});
    }
    // Folders tell their entries in any order.
    for (std::vector<Entry> *entries : {&listing.files, &listing.folders})
        std::sort(entries->begin(), entries->end(),
                  [](const Entry &a, const Entry &b) { return a.path < b.path; });
    return listing;
}

// The words of a name, without what parts them.
std::vector<std::string> words(const std::string &text)
{
    static constexpr char separators[] = ". _()[]{}+,";
    std::vector<std::string> found;
    std::size_t start = 0;
    while ((start = text.find_first_not_of(separators, start)) != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        const std::string word = text.substr(start, end - start);
        // "pt-br" is one word, "film-english" are two.
        const std::size_t dash = word.find('-');
        if (dash == std::string::npos || !LanguageCodes::canonical(word).empty()) {
            found.push_back(word);
        } else {
            found.push_back(word.substr(0, dash));
            found.push_back(word.substr(dash + 1));
        }
        start = end;
    }
    found.erase(std::remove(found.begin(), found.end(), std::string()), found.end());
    return found;
}

bool isMark(const std::string &word)
{
    return isOneOf(forcedMarks, word) || isOneOf(hearingMarks, word) || isOneOf(otherMarks, word);
}

// Reads language and marks. True when the text tells nothing else.
bool readMarks(const std::string &text, SidecarSubtitle &subtitle)
{
    const std::vector<std::string> all = words(text);
    const bool isPure = !all.empty() && std::all_of(all.begin(), all.end(), [](const std::string &word) {
        return isMark(word) || !LanguageCodes::canonical(word).empty();
    });
    for (const std::string &word : all) {
        // Behind a language "hi" are the hearing impaired; alone it is Hindi.
        if (isOneOf(hearingMarks, word) && (word != "hi" || !subtitle.language.empty())) {
            subtitle.isForHearingImpaired = true;
            continue;
        }
        subtitle.isForced = subtitle.isForced || isOneOf(forcedMarks, word);
        // Short codes are words of titles too: among those they count at the ends alone.
        const bool counts = isPure || word.size() > 2 || &word == &all.front() || &word == &all.back();
        if (const std::string language = LanguageCodes::canonical(word); counts && !language.empty())
            subtitle.language = language;
    }
    return isPure;
}

class Search final {
public:
    Search(const fs::path &source, std::vector<SidecarSubtitle> &found)
        : m_source(source)
        , m_stem(lower(source.stem().u8string()))
        , m_found(found)
    {
    }

    void run(const fs::path &furtherFolder)
    {
        const Listing beside = list(m_source.parent_path());
        for (const Entry &file : beside.files) {
            if (isOneOf(filmEndings, file.ending) && file.stem != m_stem)
                m_otherFilms.push_back(file.stem);
        }
        takeNamed(beside);
        for (const Entry &folder : beside.folders) {
            if (isOneOf(subtitleFolders, folder.stem))
                takeFolder(list(folder.path));
        }
        if (furtherFolder.empty())
            return;
        std::error_code error;
        if (fs::is_directory(furtherFolder, error))
            takeNamed(list(furtherFolder));
        else
            engineLog("[Play] no folder for subtitles: %s", furtherFolder.u8string().c_str());
    }

private:
    // The name goes on behind the source's; another film that fits it better has it.
    bool belongs(const std::string &stem, SidecarSubtitle &subtitle) const
    {
        if (stem.compare(0, m_stem.size(), m_stem) != 0)
            return false;
        const std::string rest = stem.substr(m_stem.size());
        if (rest.empty())
            return true;
        if (std::isalnum(static_cast<unsigned char>(rest[0])) || static_cast<unsigned char>(rest[0]) >= 0x80)
            return false;
        const bool isAnothers =
            std::any_of(m_otherFilms.begin(), m_otherFilms.end(), [&](const std::string &other) {
                return other.size() > m_stem.size() && stem.compare(0, other.size(), other) == 0;
            });
        const bool isPure = readMarks(rest, subtitle);
        return !isAnothers && (isPure || rest[0] == '.');
    }

    void takeNamed(const Listing &listing)
    {
        for (const Entry &file : listing.files) {
            SidecarSubtitle subtitle;
            if (isSubtitle(listing, file) && belongs(file.stem, subtitle))
                add(file, std::move(subtitle));
        }
    }

    void takeFolder(const Listing &listing)
    {
        if (m_otherFilms.empty())
            takeAll(listing);
        else
            takeNamed(listing);
        for (const Entry &folder : listing.folders) {
            if (folder.stem == m_stem)
                takeAll(list(folder.path));
        }
    }

    void takeAll(const Listing &listing)
    {
        for (const Entry &file : listing.files) {
            SidecarSubtitle subtitle;
            if (!isSubtitle(listing, file))
                continue;
            if (!belongs(file.stem, subtitle))
                readMarks(file.stem, subtitle);
            add(file, std::move(subtitle));
        }
    }

    static bool isSubtitle(const Listing &listing, const Entry &file)
    {
        if (!isOneOf(subtitleEndings, file.ending))
            return false;
        // The pictures of an index beside them are no subtitles of their own.
        return file.ending != ".sub"
               || std::none_of(listing.files.begin(), listing.files.end(), [&file](const Entry &other) {
                      return other.ending == ".idx" && other.stem == file.stem;
                  });
    }

    void add(const Entry &file, SidecarSubtitle subtitle)
    {
        std::error_code error;
        const auto size = fs::file_size(file.path, error);
        if (error || size == 0 || static_cast<std::int64_t>(size) > largestFile)
            return;
        subtitle.path = file.path.u8string();
        const bool isKnown =
            std::any_of(m_found.begin(), m_found.end(),
                        [&subtitle](const SidecarSubtitle &other) { return other.path == subtitle.path; });
        if (!isKnown)
            m_found.push_back(std::move(subtitle));
    }

    fs::path m_source;
    std::string m_stem;
    std::vector<std::string> m_otherFilms; // of the source's folder
    std::vector<SidecarSubtitle> &m_found;
};

} // namespace

namespace SidecarSubtitles {

std::vector<SidecarSubtitle> find(const std::string &source, const std::string &furtherFolder)
{
    std::vector<SidecarSubtitle> found;
    std::error_code error;
    const fs::path file = fs::absolute(nativePath(source), error);
    if (source.empty() || error)
        return found;
    fs::path further;
    if (!furtherFolder.empty())
        further = fs::absolute(nativePath(furtherFolder), error);
    Search(file, found).run(further);
    // Plain ones first: one for everybody is the better guess.
    std::stable_sort(found.begin(), found.end(), [](const SidecarSubtitle &a, const SidecarSubtitle &b) {
        const auto rank = [](const SidecarSubtitle &subtitle) {
            return std::make_tuple(!subtitle.language.empty(), subtitle.isForced,
                                   subtitle.isForHearingImpaired);
        };
        return rank(a) < rank(b);
    });
    if (found.size() > mostFiles)
        found.resize(mostFiles);
    for (SidecarSubtitle &subtitle : found)
        subtitle.address = SubtitleText::addressOf(subtitle.path);
    return found;
}

} // namespace SidecarSubtitles
