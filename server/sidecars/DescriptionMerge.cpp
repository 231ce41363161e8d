#include "DescriptionMerge.h"

namespace DescriptionMerge {

void fill(Description &description, const Description &other)
{
    static constexpr QString Description::*texts[] = {
        &Description::title,  &Description::sortTitle, &Description::originalTitle,
        &Description::rating, &Description::director,  &Description::cast,
        &Description::genre,  &Description::country,   &Description::overview,
        &Description::poster, &Description::backdrop,  &Description::releaseDate,
    };
    for (QString Description::*const text : texts)
        if ((description.*text).isEmpty())
            description.*text = other.*text;
    if (description.year == 0)
        description.year = other.year;
    if (description.runtimeMinutes == 0)
        description.runtimeMinutes = other.runtimeMinutes;
    for (auto it = other.identities.cbegin(); it != other.identities.cend(); ++it)
        if (!description.identities.contains(it.key()))
            description.identities.insert(it.key(), it.value());
}

void fillArtwork(Description &description, const Artwork &artwork, bool thumbFirst)
{
    if (description.poster.isEmpty() && thumbFirst)
        description.poster = artwork.thumb;
    if (description.poster.isEmpty())
        description.poster = artwork.poster;
    if (description.backdrop.isEmpty())
        description.backdrop = artwork.backdrop;
}

} // namespace DescriptionMerge
