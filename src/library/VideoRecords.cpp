#include "VideoRecords.h"

#include "JsonFields.h"
#include "ProtocolNames.h"

#include <QDir>

namespace VideoRecords {

namespace {

struct TextField {
    const char *key;
    QString MediaItem::*field;
};

// What an object does not hold stays empty, so that one table serves all kinds but the proposals.
constexpr TextField kTexts[]{
    {Rpc::Key::title, &MediaItem::title},       {Rpc::Key::rating, &MediaItem::rating},
    {Rpc::Key::runtime, &MediaItem::runtime},   {Rpc::Key::director, &MediaItem::director},
    {Rpc::Key::cast, &MediaItem::cast},         {Rpc::Key::genre, &MediaItem::genre},
    {Rpc::Key::overview, &MediaItem::overview}, {Rpc::Key::poster, &MediaItem::poster},
    {Rpc::Key::backdrop, &MediaItem::backdrop}, {Rpc::Key::path, &MediaItem::path},
};

constexpr TextField kMatchTexts[]{
    {Rpc::Key::title, &MediaItem::title},       {Rpc::Key::releaseDate, &MediaItem::year},
    {Rpc::Key::runtime, &MediaItem::runtime},   {Rpc::Key::poster, &MediaItem::poster},
    {Rpc::Key::backdrop, &MediaItem::backdrop}, {Rpc::Key::strMediaId, &MediaItem::mediaId},
};

template<std::size_t N>
void readTexts(const TextField (&fields)[N], const QJsonObject &object, MediaItem *item)
{
    for (const TextField &row : fields)
        item->*row.field = JsonFields::text(object, row.key);
}

} // namespace

MediaItem movie(const QJsonObject &object)
{
    MediaItem item;
    readTexts(kTexts, object, &item);
    const int year = JsonFields::number(object, Rpc::Key::year);
    if (year != 0)
        item.year = QString::number(year);
    return item;
}

MediaItem collection(const QJsonObject &object)
{
    MediaItem item = movie(object);
    item.fileCount = JsonFields::number(object, Rpc::Key::fileCount);
    return item;
}

MediaItem season(const QJsonObject &object, const QString &showTitle, int seasonNumber)
{
    MediaItem item = movie(object);
    item.number = JsonFields::number(object, Rpc::Key::iSeason, seasonNumber);
    item.seasonTitle = showTitle + QStringLiteral(": Season ") + QString::number(item.number);
    return item;
}

MediaItem episode(const QJsonObject &object, const QString &showTitle, int seasonNumber, int episodeNumber)
{
    MediaItem item = movie(object);
    item.path = QDir::toNativeSeparators(item.path);
    item.number = JsonFields::number(object, Rpc::Key::iEpisode, episodeNumber);
    item.episodeTitle = showTitle + QStringLiteral(" S") + QString::number(seasonNumber) + QLatin1Char('E')
                        + QString::number(item.number) + QStringLiteral(": ") + item.title;
    return item;
}

MediaItem match(const QJsonObject &object)
{
    MediaItem item;
    readTexts(kMatchTexts, object, &item);
    return item;
}

} // namespace VideoRecords
