#include "ReleaseWords.h"

#include "NameText.h"

#include <QHash>
#include <QVector>

namespace ReleaseWords {

namespace {

struct Row {
    const char *text; // a dot stands for one separator or none
    Strength strength;
};

constexpr Strength S = Strength::Strong;
constexpr Strength W = Strength::Weak;

// Longer spellings before the shorter ones that they begin with.
constexpr Row rows[] = {
    // Sources
    {"blu.ray", S},
    {"bd.rip", S},
    {"br.rip", S},
    {"bd.remux", S},
    {"bdmux", S},
    {"bd.25", S},
    {"bd.50", S},
    {"dvd.rip", S},
    {"dvd.scr", S},
    {"dvd.mux", S},
    {"dvd.5", S},
    {"dvd.9", S},
    {"dvdr", S},
    {"hddvd", S},
    {"hd.dvd", S},
    {"hd.rip", S},
    {"hd.cam", S},
    {"hd.ts", S},
    {"hdtv.rip", S},
    {"hdtv", S},
    {"pdtv", S},
    {"sdtv", S},
    {"dsr.rip", S},
    {"dsr", W},
    {"dth.rip", S},
    {"tv.rip", S},
    {"sat.rip", S},
    {"vhs.rip", S},
    {"ld.rip", S},
    {"web.dl.rip", S},
    {"web.dl", S},
    {"web.rip", S},
    {"web.hd", S},
    {"web", W},
    {"cam.rip", S},
    {"cam", W},
    {"telesync", S},
    {"telecine", S},
    {"tele.sync", S},
    {"ts", W},
    {"tc", W},
    {"r5", W},
    {"scr", W},
    {"screener", S},
    {"ppv.rip", S},
    {"vod.rip", S},
    {"remux", S},
    {"dvd", W},
    {"bd", W},
    {"amzn", W},
    {"nf", W},
    {"dsnp", W},
    {"hmax", W},
    {"atvp", W},
    {"hulu", W},
    {"itunes", W},
    // Pictures
    {"uhd", S},
    {"fhd", S},
    {"4k", W},
    {"8k", W},
    {"2k", W},
    {"hd", W},
    {"sd", W},
    {"hdr10plus", S},
    {"hdr10", S},
    {"hdr", S},
    {"dolby.vision", S},
    {"dovi", S},
    {"dv", W},
    {"sdr", W},
    {"10bit", S},
    {"10.bits", S},
    {"8bit", S},
    {"8.bits", S},
    {"hi10p", S},
    {"hi10", S},
    {"imax", W},
    {"half.sbs", S},
    {"hsbs", S},
    {"h.sbs", S},
    {"sbs", W},
    {"half.ou", S},
    {"hou", W},
    {"3d", W},
    {"60fps", S},
    {"upscaled", S},
    // Codecs
    {"x264", S},
    {"x.264", S},
    {"x265", S},
    {"x.265", S},
    {"h264", S},
    {"h.264", S},
    {"h265", S},
    {"h.265", S},
    {"hevc", S},
    {"avc", W},
    {"av1", S},
    {"vp9", S},
    {"xvid", S},
    {"divx", S},
    {"mpeg.2", S},
    {"mpeg2", S},
    {"vc.1", W},
    {"vc1", S},
    {"wmv.hd", S},
    // Sound
    {"dts.hd.ma", S},
    {"dts.hd", S},
    {"dts.x", S},
    {"dts", S},
    {"truehd", S},
    {"true.hd", S},
    {"atmos", W},
    {"ddp5", S},
    {"ddp", W},
    {"dd5", S},
    {"dd.5.1", S},
    {"eac3", S},
    {"e.ac.3", S},
    {"ac3d", S},
    {"ac3", S},
    {"ac.3", S},
    {"aac2", S},
    {"aac5", S},
    {"aac", S},
    {"flac", W},
    {"lpcm", S},
    {"opus", W},
    {"mp3", S},
    {"5.1ch", S},
    {"5.1", W},
    {"7.1", W},
    {"2.0", W},
    {"2ch", W},
    {"6ch", W},
    {"dual.audio", S},
    {"multi.audio", S},
    // Releases and editions
    {"proper", W},
    {"repack", W},
    {"rerip", W},
    {"real", W},
    {"internal", W},
    {"limited", W},
    {"retail", W},
    {"read.nfo", S},
    {"nfofix", S},
    {"dirfix", S},
    {"complete", W},
    {"extended.edition", W},
    {"extended.cut", W},
    {"extended", W},
    {"unrated", W},
    {"uncut", W},
    {"uncensored", W},
    {"theatrical.cut", W},
    {"theatrical", W},
    {"directors.cut", W},
    {"director's.cut", W},
    {"final.cut", W},
    {"ultimate.edition", W},
    {"ultimate.cut", W},
    {"special.edition", W},
    {"collectors.edition", W},
    {"anniversary.edition", W},
    {"criterion.collection", W},
    {"criterion", W},
    {"remastered", W},
    {"restored", W},
    {"open.matte", W},
    {"dc", W},
    {"se", W},
    {"hc", W},
    {"hybrid", W},
    {"multi", W},
    {"multisubs", S},
    {"multi.subs", S},
    {"dubbed", W},
    {"subbed", W},
    {"dual", W},
    {"dl", W},
    {"vostfr", S},
    {"truefrench", S},
    {"french", W},
    {"german", W},
    {"english", W},
    {"italian", W},
    {"spanish", W},
    {"ita", W},
    {"eng", W},
    {"ger", W},
    {"subs", W},
    {"sub", W},
    {"fansub", S},
    {"raw", W},
    {"yify", S},
    {"rarbg", S},
};

// Rows by their first character, so that a word is compared with few of them.
const QHash<QChar, QVector<const Row *>> &rowsByInitial()
{
    static const QHash<QChar, QVector<const Row *>> table = [] {
        QHash<QChar, QVector<const Row *>> result;
        for (const Row &row : rows)
            result[QLatin1Char(row.text[0])].append(&row);
        return result;
    }();
    return table;
}

// The length of the row's text at the position, 0 where something else stands there.
int matchRow(const QString &text, int position, const char *pattern)
{
    int at = position;
    for (; *pattern; ++pattern) {
        if (*pattern == '.') {
            if (at < text.size() && NameText::isSeparator(text.at(at)))
                ++at;
            continue;
        }
        if (at >= text.size() || text.at(at) != QLatin1Char(*pattern))
            return 0;
        ++at;
    }
    return NameText::isBoundary(text, at) ? at - position : 0;
}

struct Lines {
    int value{0};
    int length{0};
};

// "1080p", "576i", "1080p60", "1920x1080", "4k"
Lines linesAt(const QString &text, int position)
{
    const NameText::Number number = NameText::numberAt(text, position, 4);
    if (!number.isValid())
        return {};
    const int unit = position + number.digits;
    const QChar letter = unit < text.size() ? text.at(unit) : QChar();
    if (number.digits >= 3 && (letter == QLatin1Char('p') || letter == QLatin1Char('i'))) {
        const int end = unit + 1 + NameText::numberAt(text, unit + 1, 3).digits;
        return NameText::isBoundary(text, end) ? Lines{number.value, end - position} : Lines{};
    }
    if (number.digits >= 3 && letter == QLatin1Char('x')) {
        const NameText::Number height = NameText::numberAt(text, unit + 1, 4);
        const int end = unit + 1 + height.digits;
        return height.digits >= 3 && NameText::isBoundary(text, end) ? Lines{height.value, end - position}
                                                                     : Lines{};
    }
    if (number.digits == 1 && letter == QLatin1Char('k') && NameText::isBoundary(text, unit + 1))
        return {number.value * 540, 2};
    return {};
}

} // namespace

Match at(const QString &folded, int position)
{
    const Lines lines = linesAt(folded, position);
    if (lines.length > 2)
        return {Strength::Strong, lines.length};
    const auto found = rowsByInitial().constFind(position < folded.size() ? folded.at(position) : QChar());
    if (found == rowsByInitial().constEnd())
        return {};
    for (const Row *row : *found)
        if (const int length = matchRow(folded, position, row->text))
            return {row->strength, length};
    return {};
}

int start(const QString &folded)
{
    const QVector<NameText::Word> words = NameText::words(folded);
    int run = -1; // where an unbroken run of weak words began
    int covered = 0;
    for (int i = 0; i < words.size(); ++i) {
        const NameText::Word &word = words.at(i);
        if (word.start < covered)
            continue;
        const Match match = at(folded, word.start);
        covered = qMax(word.end(), word.start + match.length);
        if (i == 0)
            continue;
        if (match.strength == Strength::Strong)
            return run >= 0 ? run : word.start;
        if (match.strength == Strength::None)
            run = -1;
        else if (run < 0)
            run = word.start;
    }
    return -1;
}

bool areAll(const QString &folded)
{
    int covered = 0;
    const QVector<NameText::Word> words = NameText::words(folded);
    for (const NameText::Word &word : words) {
        if (word.start < covered)
            continue;
        const Match match = at(folded, word.start);
        if (match.strength == Strength::None)
            return false;
        covered = word.start + match.length;
    }
    return !words.isEmpty();
}

int resolution(const QString &folded)
{
    const QVector<NameText::Word> words = NameText::words(folded);
    for (const NameText::Word &word : words) {
        if (const int lines = linesAt(folded, word.start).value)
            return lines;
        if (folded.mid(word.start, word.length) == QLatin1String("uhd"))
            return 2160;
    }
    return 0;
}

} // namespace ReleaseWords
