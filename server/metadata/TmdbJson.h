// Objects of the provider's JSON as structs. Pure functions; whatever is missing or of another type than the
// provider's documents say is taken for not known.
#pragma once

#include "IMetadataProvider.h"

#include <QJsonObject>

namespace TmdbJson {

// The word by which its ids are known in descriptions and in the protocol.
inline constexpr char Identity[] = "tmdb";

// Rows without an id or a title are left out.
[[nodiscard]] QVector<ProviderMatch> movieMatches(const QJsonObject &answer);
[[nodiscard]] QVector<ProviderMatch> showMatches(const QJsonObject &answer);
// Of an answer to a search by another's id; empty when nothing was found.
[[nodiscard]] QString foundId(const QJsonObject &answer, bool isShow);

[[nodiscard]] ProviderMovie movie(const QJsonObject &object);
[[nodiscard]] Description collection(const QJsonObject &object);
[[nodiscard]] ProviderShow show(const QJsonObject &object);
[[nodiscard]] ProviderSeason season(const QJsonObject &object);
[[nodiscard]] Description episode(const QJsonObject &object);

// The name of the smallest size ("w500") that is at least so wide; the fallback where the list has none.
[[nodiscard]] QString sizeName(const QJsonObject &configuration, const QString &list, int width,
                               const QString &fallback);

} // namespace TmdbJson
