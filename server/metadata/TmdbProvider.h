// The provider that the protocol calls "tmdb", by the documents of the third version of its public interface.
//
// Refers to the HTTP layer, which must outlive it; keeps nothing itself. Any thread.
#pragma once

#include "IMetadataProvider.h"
#include "MetadataHttp.h"

class TmdbProvider final : public IMetadataProvider {
public:
    explicit TmdbProvider(MetadataHttp &http);

    [[nodiscard]] bool isUsable() const override;
    [[nodiscard]] QString identityKey() const override;
    [[nodiscard]] Answer<QVector<ProviderMatch>> searchMovie(const QString &name, int year,
                                                             const MetadataCall &call) override;
    [[nodiscard]] Answer<QVector<ProviderMatch>> searchTvshow(const QString &name, int year,
                                                              const MetadataCall &call) override;
    [[nodiscard]] Answer<QString> identify(const QMap<QString, QString> &identities, bool isShow,
                                           const MetadataCall &call) override;
    [[nodiscard]] Answer<ProviderMovie> movieDetails(const QString &id, const MetadataCall &call) override;
    [[nodiscard]] Answer<Description> collectionDetails(const QString &id, const MetadataCall &call) override;
    [[nodiscard]] Answer<ProviderShow> showDetails(const QString &id, const MetadataCall &call) override;
    [[nodiscard]] Answer<ProviderSeason> seasonDetails(const QString &id, int season,
                                                       const MetadataCall &call) override;
    [[nodiscard]] Answer<Description> episodeDetails(const QString &id, int season, int episode,
                                                     const MetadataCall &call) override;
    [[nodiscard]] Answer<QByteArray> picture(const QString &name, PictureKind kind,
                                             const MetadataCall &call) override;

    // The provider's form ("es-ES") of the protocol's ("es-es"); English for what is neither.
    [[nodiscard]] static QString languageTag(const QString &language);

private:
    [[nodiscard]] Answer<QJsonObject> ask(const QString &path, const MetadataCall &call,
                                          QUrlQuery query = {});

    MetadataHttp &m_http;
};
