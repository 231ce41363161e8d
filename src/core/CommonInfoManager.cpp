#include "CommonInfoManager.h"

#include "SettingsManager.h"

#include <QFileInfo>
#include <QHash>

namespace {

struct FileType {
    FileKind kind;
    const char *extension;
};

constexpr FileType kFileTypes[] = {
    {FileKind::Video, "mkv"},     {FileKind::Video, "mp4"},     {FileKind::Video, "m4v"},
    {FileKind::Video, "avi"},     {FileKind::Video, "mov"},     {FileKind::Video, "qt"},
    {FileKind::Video, "wmv"},     {FileKind::Video, "asf"},     {FileKind::Video, "flv"},
    {FileKind::Video, "f4v"},     {FileKind::Video, "webm"},    {FileKind::Video, "mpg"},
    {FileKind::Video, "mpeg"},    {FileKind::Video, "mpe"},     {FileKind::Video, "m1v"},
    {FileKind::Video, "m2v"},     {FileKind::Video, "mpv"},     {FileKind::Video, "mp2v"},
    {FileKind::Video, "vob"},     {FileKind::Video, "evo"},     {FileKind::Video, "ifo"},
    {FileKind::Video, "dat"},     {FileKind::Video, "ts"},      {FileKind::Video, "m2ts"},
    {FileKind::Video, "mts"},     {FileKind::Video, "m2t"},     {FileKind::Video, "tp"},
    {FileKind::Video, "trp"},     {FileKind::Video, "tod"},     {FileKind::Video, "mod"},
    {FileKind::Video, "3gp"},     {FileKind::Video, "3g2"},     {FileKind::Video, "3gpp"},
    {FileKind::Video, "rm"},      {FileKind::Video, "rmvb"},    {FileKind::Video, "ogv"},
    {FileKind::Video, "ogm"},     {FileKind::Video, "divx"},    {FileKind::Video, "xvid"},
    {FileKind::Video, "dv"},      {FileKind::Video, "mxf"},     {FileKind::Video, "nsv"},
    {FileKind::Video, "nut"},     {FileKind::Video, "amv"},     {FileKind::Video, "mk3d"},
    {FileKind::Video, "wtv"},     {FileKind::Video, "dvr-ms"},  {FileKind::Video, "264"},
    {FileKind::Video, "h264"},    {FileKind::Video, "265"},     {FileKind::Video, "h265"},
    {FileKind::Video, "hevc"},    {FileKind::Video, "ivf"},     {FileKind::Video, "y4m"},
    {FileKind::Video, "mpls"},    {FileKind::Video, "bdmv"},    {FileKind::Video, "ssif"},

    {FileKind::Audio, "mp3"},     {FileKind::Audio, "flac"},    {FileKind::Audio, "wav"},
    {FileKind::Audio, "wave"},    {FileKind::Audio, "m4a"},     {FileKind::Audio, "m4b"},
    {FileKind::Audio, "aac"},     {FileKind::Audio, "ac3"},     {FileKind::Audio, "eac3"},
    {FileKind::Audio, "dts"},     {FileKind::Audio, "dtshd"},   {FileKind::Audio, "thd"},
    {FileKind::Audio, "mlp"},     {FileKind::Audio, "ogg"},     {FileKind::Audio, "oga"},
    {FileKind::Audio, "opus"},    {FileKind::Audio, "spx"},     {FileKind::Audio, "wma"},
    {FileKind::Audio, "ape"},     {FileKind::Audio, "alac"},    {FileKind::Audio, "aif"},
    {FileKind::Audio, "aiff"},    {FileKind::Audio, "aifc"},    {FileKind::Audio, "au"},
    {FileKind::Audio, "snd"},     {FileKind::Audio, "mka"},     {FileKind::Audio, "mp2"},
    {FileKind::Audio, "mpa"},     {FileKind::Audio, "mpc"},     {FileKind::Audio, "ra"},
    {FileKind::Audio, "tta"},     {FileKind::Audio, "wv"},      {FileKind::Audio, "tak"},
    {FileKind::Audio, "dsf"},     {FileKind::Audio, "dff"},     {FileKind::Audio, "amr"},
    {FileKind::Audio, "caf"},     {FileKind::Audio, "w64"},

    {FileKind::Subtitle, "srt"},  {FileKind::Subtitle, "ass"},  {FileKind::Subtitle, "ssa"},
    {FileKind::Subtitle, "sub"},  {FileKind::Subtitle, "idx"},  {FileKind::Subtitle, "sup"},
    {FileKind::Subtitle, "vtt"},  {FileKind::Subtitle, "smi"},  {FileKind::Subtitle, "sami"},
    {FileKind::Subtitle, "psb"},  {FileKind::Subtitle, "usf"},  {FileKind::Subtitle, "ttml"},
    {FileKind::Subtitle, "dfxp"}, {FileKind::Subtitle, "mpl2"}, {FileKind::Subtitle, "txt"},

    {FileKind::DiscImage, "iso"}, {FileKind::DiscImage, "img"}, {FileKind::DiscImage, "udf"},
    {FileKind::DiscImage, "bin"}, {FileKind::DiscImage, "nrg"}, {FileKind::DiscImage, "mdf"},
};

QStringList asFilters(const QStringList &extensions)
{
    QStringList filters;
    for (const QString &extension : extensions)
        filters << QStringLiteral("*.") + extension;
    return filters;
}

} // namespace

CommonInfoManager::CommonInfoManager()
    : CommonInfoManager(*SettingsManager::instance())
{
}

CommonInfoManager::CommonInfoManager(SettingsManager &store)
    : m_store(store)
{
}

CommonInfoManager::KeyMap CommonInfoManager::getTvKeyMap() const
{
    return m_store.keyMap(true);
}

void CommonInfoManager::saveTvKeyMap(const KeyMap &map)
{
    m_store.setKeyMap(true, map);
}

CommonInfoManager::KeyMap CommonInfoManager::getPcKeyMap() const
{
    return m_store.keyMap(false);
}

void CommonInfoManager::savePcKeyMap(const KeyMap &map)
{
    m_store.setKeyMap(false, map);
}

bool CommonInfoManager::usageDataAllowed() const
{
    return m_store.addPlan();
}

QStringList CommonInfoManager::extensions(FileKind kind)
{
    QStringList list;
    for (const FileType &type : kFileTypes) {
        if (type.kind == kind)
            list << QString::fromLatin1(type.extension);
    }
    return list;
}

QStringList CommonInfoManager::nameFilters(FileKind kind)
{
    return asFilters(extensions(kind));
}

QStringList CommonInfoManager::playableExtensions()
{
    return extensions(FileKind::Video) + extensions(FileKind::Audio) + extensions(FileKind::DiscImage);
}

QStringList CommonInfoManager::playableNameFilters()
{
    return asFilters(playableExtensions());
}

FileKind CommonInfoManager::kindOf(const QString &path)
{
    static const QHash<QString, FileKind> kinds = [] {
        QHash<QString, FileKind> made;
        for (const FileType &type : kFileTypes)
            made.insert(QString::fromLatin1(type.extension), type.kind);
        return made;
    }();
    return kinds.value(QFileInfo(path).suffix().toLower(), FileKind::Other);
}
