#include "MovieVersion.h"

#include "NameText.h"
#include "ReleaseWords.h"
#include "VideoName.h"

namespace {

// The label behind the folder's name: " - label", " [label]", " (label)" or words of a release.
bool readLabel(const QString &rest, QString &label)
{
    const QString trimmed = rest.trimmed();
    if (rest.startsWith(QLatin1String(" - "))) {
        label = trimmed.mid(1).trimmed();
    } else if (trimmed.startsWith(QLatin1Char('[')) || trimmed.startsWith(QLatin1Char('('))) {
        label = trimmed;
    } else if (ReleaseWords::areAll(NameText::folded(trimmed)) && !rest.isEmpty()
               && NameText::isSeparator(rest.at(0))) {
        label = trimmed;
    } else {
        return false;
    }
    while (!label.isEmpty() && NameText::isBracket(label.at(label.size() - 1)))
        label.chop(1);
    while (!label.isEmpty() && NameText::isBracket(label.at(0)))
        label.remove(0, 1);
    return true;
}

} // namespace

MovieVersion MovieVersion::parse(const QString &name, const QString &folder)
{
    MovieVersion result;
    if (folder.isEmpty())
        return result;
    if (name.startsWith(folder, Qt::CaseInsensitive)) {
        const QString rest = name.mid(folder.size());
        result.m_valid = rest.isEmpty() || readLabel(rest, result.label);
    }
    if (!result.m_valid) {
        // Another spelling of the same title and year: "Film.2010.720p" in "Film (2010)". Without words of a
        // release what follows the year may be part of another film's title.
        const VideoName own = VideoName::parse(name);
        const bool whole = own.released || NameText::comparable(name) == NameText::comparable(folder);
        result.m_valid = own.year > 0 && whole && own.isSameAs(VideoName::parse(folder));
        result.label = name;
    }
    if (result.m_valid)
        result.resolution = ReleaseWords::resolution(NameText::folded(result.label));
    return result;
}

bool MovieVersion::operator<(const MovieVersion &other) const
{
    if (resolution != other.resolution)
        return resolution > other.resolution;
    return NameText::folded(label) < NameText::folded(other.label);
}
