#include "DescriptionLayers.h"

namespace {

QString Description::*const kTexts[] = {
    &Description::title,    &Description::sortTitle, &Description::originalTitle, &Description::rating,
    &Description::director, &Description::cast,      &Description::genre,         &Description::country,
    &Description::overview, &Description::poster,    &Description::backdrop,      &Description::releaseDate,
};

int Description::*const kNumbers[] = {&Description::year, &Description::runtimeMinutes};

} // namespace

Description DescriptionLayers::over(const Description &first, const Description &second)
{
    Description result = first;
    for (const auto text : kTexts) {
        // The key of a title belongs to that title.
        if (text == &Description::sortTitle && !first.title.isEmpty())
            continue;
        if ((result.*text).isEmpty())
            result.*text = second.*text;
    }
    for (const auto number : kNumbers) {
        if (result.*number == 0)
            result.*number = second.*number;
    }
    for (auto identity = second.identities.begin(); identity != second.identities.end(); ++identity) {
        if (!result.identities.contains(identity.key()))
            result.identities.insert(identity.key(), identity.value());
    }
    return result;
}

Description DescriptionLayers::withProvided(const Description &scanned, bool onlyNameSpoke,
                                            const Description &provided)
{
    if (!onlyNameSpoke)
        return over(scanned, provided);
    Description result = over(provided, scanned);
    for (const auto picture : {&Description::poster, &Description::backdrop}) {
        if (!(scanned.*picture).isEmpty())
            result.*picture = scanned.*picture;
    }
    return result;
}

Description DescriptionLayers::withMatched(const Description &scanned, const Description &matched)
{
    Description fillers;
    fillers.poster = scanned.poster;
    fillers.backdrop = scanned.backdrop;
    fillers.runtimeMinutes = scanned.runtimeMinutes;
    fillers.title = scanned.title;
    return over(matched, fillers);
}

DescriptionLayers::Identity DescriptionLayers::compare(const Description &first, const Description &second)
{
    for (auto identity = first.identities.begin(); identity != first.identities.end(); ++identity) {
        const auto other = second.identities.find(identity.key());
        if (other != second.identities.end())
            return other.value() == identity.value() ? Identity::Same : Identity::Different;
    }
    return Identity::Unknown;
}
