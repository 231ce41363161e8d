#include "ProviderParts.h"

bool ProviderParts::describeCollection(const ProviderMovie &movie, const MetadataCall &call) const
{
    if (movie.collection.isEmpty() || movie.collectionId.isEmpty())
        return false;
    Answer<Description> answer = provider.collectionDetails(movie.collectionId, call);
    if (!answer.isFound())
        return false;
    pictures.localise(answer.value, PictureKind::Poster, {}, call);
    return videos.describeCollection(movie.collection, answer.value);
}
