// An online service that knows films and shows. Every operation asks over the network and may be called from
// any thread; what it can't answer is an outcome, never an exception.
//
// Pictures in the descriptions are the provider's own names; picture() fetches what stands behind one.
#pragma once

#include "Answer.h"
#include "MetadataCall.h"

#include "records/ScanRecords.h"

#include <QVector>

struct ProviderMatch {
    QString id;
    QString title;
    QString originalTitle;
    QString releaseDate; // ISO 8601 date
    QString poster;
    QString backdrop;
    int year{0};
};

struct ProviderMovie {
    Description description;
    QString collection;
    QString collectionId;
};

struct ProviderShow {
    Description description;
    QMap<int, Description> seasons; // without their casts
};

struct ProviderSeason {
    Description description;
    QMap<int, Description> episodes;
};

enum class PictureKind { Poster, Backdrop, Still, Thumbnail };

class IMetadataProvider {
public:
    virtual ~IMetadataProvider() = default;

    // False: every operation answers NotConfigured and sends nothing.
    [[nodiscard]] virtual bool isUsable() const = 0;
    // The key of its ids in Description::identities.
    [[nodiscard]] virtual QString identityKey() const = 0;

    // year: 0 for any.
    [[nodiscard]] virtual Answer<QVector<ProviderMatch>> searchMovie(const QString &name, int year,
                                                                     const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<QVector<ProviderMatch>> searchTvshow(const QString &name, int year,
                                                                      const MetadataCall &call) = 0;
    // Its own id of what is known by the ids of others.
    [[nodiscard]] virtual Answer<QString> identify(const QMap<QString, QString> &identities, bool isShow,
                                                   const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<ProviderMovie> movieDetails(const QString &id, const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<Description> collectionDetails(const QString &id,
                                                                const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<ProviderShow> showDetails(const QString &id, const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<ProviderSeason> seasonDetails(const QString &id, int season,
                                                               const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<Description> episodeDetails(const QString &id, int season, int episode,
                                                             const MetadataCall &call) = 0;
    [[nodiscard]] virtual Answer<QByteArray> picture(const QString &name, PictureKind kind,
                                                     const MetadataCall &call) = 0;
};
