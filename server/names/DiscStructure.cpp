#include "DiscStructure.h"

namespace DiscStructure {

namespace {

struct Row {
    const char *folder;
    const char *entry; // one of these proves the structure
    const char *pseudoFile;
};

// The first row whose entry is there decides.
constexpr Row rows[] = {
    {"VIDEO_TS", "VIDEO_TS.IFO", "folder.ifo"},   {"VIDEO_TS", "VIDEO_TS.BUP", "folder.ifo"},
    {"VIDEO_TS", "VTS_01_0.IFO", "folder.ifo"},   {"VIDEO_TS", "VTS_01_1.VOB", "folder.ifo"},
    {"BDMV", "index.bdm", "folder.bdm"},          {"BDMV", "index.bdmv", "folder.bdmv"},
    {"BDMV", "MovieObject.bdmv", "folder.bdmv"},  {"BDMV", "STREAM", "folder.bdmv"},
    {"BDAV", "info.bdav", "folder.bdav"},         {"BDAV", "STREAM", "folder.bdav"},
    {"DVD_RTAV", "VR_MANGR.IFO", "folder.dvdvr"}, {"DVD_RTAV", "VR_MOVIE.VRO", "folder.dvdvr"},
};

} // namespace

bool isStructure(const QString &folderName)
{
    for (const Row &row : rows)
        if (folderName.compare(QLatin1String(row.folder), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

QString pseudoFile(const QString &folderName, const QStringList &entries)
{
    for (const Row &row : rows)
        if (folderName.compare(QLatin1String(row.folder), Qt::CaseInsensitive) == 0
            && entries.contains(QLatin1String(row.entry), Qt::CaseInsensitive))
            return QLatin1String(row.pseudoFile);
    return {};
}

bool isLooseIndex(const QString &fileName)
{
    return fileName.compare(QLatin1String("VIDEO_TS.IFO"), Qt::CaseInsensitive) == 0;
}

bool isLooseContent(const QString &fileName)
{
    const bool title = fileName.startsWith(QLatin1String("VTS_"), Qt::CaseInsensitive)
                       || fileName.startsWith(QLatin1String("VIDEO_TS."), Qt::CaseInsensitive);
    return title && fileName.endsWith(QLatin1String(".vob"), Qt::CaseInsensitive);
}

} // namespace DiscStructure
