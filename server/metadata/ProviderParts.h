// What those need who carry the provider's answers into the library. All must outlive them.
#pragma once

#include "IMetadataProvider.h"
#include "MetadataClock.h"
#include "MetadataPictures.h"

#include "store/IVideoLibrary.h"

struct ProviderParts {
    IVideoLibrary &videos;
    IMetadataProvider &provider;
    MetadataPictures &pictures;
    MetadataClock &clock;

    // Tells the library about the collection of a film that was just stored. False when there was nothing to
    // tell.
    bool describeCollection(const ProviderMovie &movie, const MetadataCall &call) const;
};
