// Which source has the word when several describe the same thing.
#pragma once

#include "records/ScanRecords.h"

namespace DescriptionLayers {

// The first one, its gaps filled from the second.
[[nodiscard]] Description over(const Description &first, const Description &second);
// A provider's description and what the files say. Sidecars go before the provider; where only a name spoke
// the provider goes first, but never before a picture that lies beside the file.
[[nodiscard]] Description withProvided(const Description &scanned, bool onlyNameSpoke,
                                       const Description &provided);
// The user's choice. What a file's name says is of another film then, its pictures and its length may fill
// gaps.
[[nodiscard]] Description withMatched(const Description &scanned, const Description &matched);
// Whether both name an identity at the same source, and whether it is the same one.
enum class Identity { Unknown, Same, Different };
[[nodiscard]] Identity compare(const Description &first, const Description &second);

} // namespace DescriptionLayers
