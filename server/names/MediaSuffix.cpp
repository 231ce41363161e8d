#include "MediaSuffix.h"

#include <QHash>
#include <QVector>

namespace MediaSuffix {

namespace {

struct Row {
    Kind kind;
    QVector<const char *> suffixes;
};

const QVector<Row> &rows()
{
    static const QVector<Row> table{
        {Kind::Video, {"mkv",    "mp4",  "avi",  "mov",  "wmv", "m4v", "mpg",  "mpeg", "ts",   "m2ts", "mts",
                       "webm",   "flv",  "f4v",  "vob",  "ogv", "ogm", "rm",   "rmvb", "asf",  "3gp",  "3g2",
                       "divx",   "dv",   "m2v",  "mpe",  "mpv", "m1v", "mp2v", "mk3d", "tp",   "trp",  "wtv",
                       "dvr-ms", "qt",   "nsv",  "nuv",  "amv", "bik", "mxf",  "m2t",  "evo",  "vro",  "rec",
                       "swf",    "hevc", "h264", "h265", "264", "265", "y4m",  "tod",  "xvid", "svi",  "mj2",
                       "ivf",    "gxf",  "roq",  "smk",  "wm",  "wmx", "av1",  "pva"}},
        {Kind::DiscImage, {"iso", "img", "nrg", "mdf"}},
        {Kind::Audio, {"mp3", "flac",   "m4a",  "aac",  "ogg", "oga",  "opus", "wav", "wma", "ape", "wv",
                       "tta", "tak",    "alac", "aiff", "aif", "ac3",  "dts",  "mka", "mpc", "mp2", "ra",
                       "amr", "dsf",    "dff",  "m4b",  "mid", "midi", "au",   "snd", "caf", "spx", "eac3",
                       "thd", "truehd", "weba", "aa3",  "oma", "mod",  "xm",   "it",  "s3m"}},
        {Kind::Image, {"jpg", "jpeg", "png", "webp", "bmp", "tbn", "gif"}},
        {Kind::Subtitle,
         {"srt", "ass", "ssa", "sub", "idx", "vtt", "sup", "smi", "sami", "ttml", "dfxp", "usf", "mpl"}},
        {Kind::Nfo, {"nfo"}},
        {Kind::Cue, {"cue"}},
    };
    return table;
}

struct Place {
    Kind kind{Kind::None};
    int rank{-1};
};

Place placeOf(const QString &fileName)
{
    static const QHash<QString, Place> places = [] {
        QHash<QString, Place> result;
        for (const Row &row : rows()) {
            for (int i = 0; i < row.suffixes.size(); ++i) {
                const QString suffix = QLatin1String(row.suffixes.at(i));
                // A suffix that two kinds share belongs to the first.
                if (!result.contains(suffix))
                    result.insert(suffix, {row.kind, i});
            }
        }
        return result;
    }();
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot < 1 ? Place() : places.value(fileName.mid(dot + 1).toLower());
}

} // namespace

Kind kindOf(const QString &fileName)
{
    return placeOf(fileName).kind;
}

int imageRank(const QString &fileName)
{
    const Place place = placeOf(fileName);
    return place.kind == Kind::Image ? place.rank : -1;
}

} // namespace MediaSuffix
