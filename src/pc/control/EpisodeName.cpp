#include "EpisodeName.h"

#include <QRegularExpression>

#include <array>

namespace {

const QRegularExpression &folderPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:season|series|staffel|saison|temporada|stagione|s)[\\s._-]*(\\d{1,3})\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

const QRegularExpression &specialsPattern()
{
    static const QRegularExpression pattern(QStringLiteral("^specials?$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

// From the surest spelling to the least sure. A number must not run on into a longer one, so that a
// resolution such as 1920x1080 is no episode.
const std::array<QRegularExpression, 4> &filePatterns()
{
    const auto make = [](const char *text) {
        return QRegularExpression(QLatin1String(text), QRegularExpression::CaseInsensitiveOption);
    };
    static const std::array<QRegularExpression, 4> patterns{
        make("(?<![a-z0-9])s(?<season>\\d{1,4})[\\s._-]*e(?:p|pisode)?[\\s._-]*(?<first>\\d{1,4})"
             "(?:(?:[\\s._]?-[\\s._]?e?|[\\s._-]*e)(?<last>\\d{1,4}))?(?![0-9a-z])"),
        make("(?<!\\d)(?<season>\\d{1,2})x(?<first>\\d{2,3})(?:-(?:\\d{1,2}x)?(?<last>\\d{2,3}))?(?!\\d)"),
        make("\\bseason[\\s._-]*(?<season>\\d{1,3})[\\s._,-]*episode[\\s._-]*(?<first>\\d{1,4})"
             "(?:[\\s._]?-[\\s._]?(?<last>\\d{1,4}))?(?!\\d)"),
        make("(?<![a-z0-9])(?:(?:episode|folge|ep)[\\s._-]*|e)(?<first>\\d{1,4})"
             "(?:-(?:ep?)?(?<last>\\d{1,4}))?(?![0-9a-z])"),
    };
    return patterns;
}

// "The.Long-Road_" and "the long road" are one show.
QString folded(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s._\\-\\[\\](){},]+"));
    QString plain = text.toCaseFolded();
    plain.replace(separators, QStringLiteral(" "));
    return plain.trimmed();
}

} // namespace

int EpisodeName::seasonOfFolder(const QString &folder)
{
    if (specialsPattern().match(folder).hasMatch())
        return 0;
    const auto match = folderPattern().match(folder);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

std::optional<EpisodeName> EpisodeName::parse(const QString &baseName, const QString &folder)
{
    for (const QRegularExpression &pattern : filePatterns()) {
        const auto match = pattern.match(baseName);
        if (!match.hasMatch())
            continue;
        EpisodeName name;
        name.show = folded(baseName.left(match.capturedStart()));
        const int folderSeason = seasonOfFolder(folder);
        if (!match.captured(QStringLiteral("season")).isEmpty())
            name.season = match.captured(QStringLiteral("season")).toInt();
        else if (folderSeason >= 0)
            name.season = folderSeason;
        name.first = match.captured(QStringLiteral("first")).toInt();
        name.last = qMax(name.first, match.captured(QStringLiteral("last")).toInt());
        return name;
    }
    return std::nullopt;
}
