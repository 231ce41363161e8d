// Joins what several sources tell. Pure; any thread.
#pragma once

#include "ArtworkFiles.h"
#include "records/ScanRecords.h"

namespace DescriptionMerge {

// Fields that are still empty take the other's.
void fill(Description &description, const Description &other);
// Pictures: a thumb stands in for a poster only where asked for (episodes).
void fillArtwork(Description &description, const Artwork &artwork, bool thumbFirst = false);

} // namespace DescriptionMerge
