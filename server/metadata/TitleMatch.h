// Which of a provider's proposals is the film or the show that a file's name tells of. Pure functions.
//
// A wrong match is worse than none, so titles must be the same but for case, accents and punctuation, and
// years must not lie more than one apart (a film is often released a year after its première).
#pragma once

#include "IMetadataProvider.h"

#include <optional>

namespace TitleMatch {

// The title as it is compared.
[[nodiscard]] QString folded(const QString &title);

// The proposal that agrees with the title or the original title; the exact year goes before its neighbours.
// Where the year is not known (0) only a title that a single proposal carries decides.
[[nodiscard]] std::optional<ProviderMatch> pick(const QVector<ProviderMatch> &matches,
                                                const Description &known);

} // namespace TitleMatch
