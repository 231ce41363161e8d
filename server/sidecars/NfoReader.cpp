#include "NfoReader.h"

#include "NfoTree.h"
#include "names/NameText.h"

#include <QDate>

namespace NfoReader {

namespace {

using Element = NfoTree::Element;

constexpr int mostListed = 200;
constexpr int longestRuntime = 6000;

struct RootRow {
    const char *name;
    NfoRecord::Kind kind;
};

constexpr RootRow roots[] = {
    {"movie", NfoRecord::Kind::Movie},      {"tvshow", NfoRecord::Kind::Show},
    {"season", NfoRecord::Kind::Season},    {"episodedetails", NfoRecord::Kind::Episode},
    {"artist", NfoRecord::Kind::Artist},    {"album", NfoRecord::Kind::Album},
    {"musicvideo", NfoRecord::Kind::Movie},
};

struct TextRow {
    const char *tag;
    QString Description::*field;
};

// The first row of a field that tells something counts.
constexpr TextRow texts[] = {
    {"title", &Description::title},         {"name", &Description::title},
    {"sorttitle", &Description::sortTitle}, {"originaltitle", &Description::originalTitle},
    {"plot", &Description::overview},       {"review", &Description::overview},
    {"biography", &Description::overview},  {"outline", &Description::overview},
};

struct ListRow {
    const char *tag;
    QString Description::*field;
};

constexpr ListRow lists[] = {
    {"genre", &Description::genre},
    {"country", &Description::country},
    {"director", &Description::director},
};

struct LinkRow {
    const char *mark;
    const char *key;
    const char *prefix;
};

constexpr LinkRow links[] = {
    {"imdb.com/title/tt", "imdb", "tt"}, {"themoviedb.org/movie/", "tmdb", ""},
    {"themoviedb.org/tv/", "tmdb", ""},  {"thetvdb.com/?tab=series&id=", "tvdb", ""},
    {"thetvdb.com/?id=", "tvdb", ""},
};

QString oneLine(const QString &text)
{
    return text.simplified();
}

void addTo(QStringList &list, const QString &text)
{
    const QString entry = oneLine(text);
    if (!entry.isEmpty() && list.size() < mostListed && !list.contains(entry, Qt::CaseInsensitive))
        list.append(entry);
}

// Repeated tags, and several entries within one that " / " parts.
QString joined(const Element &root, const QString &tag)
{
    QStringList entries;
    for (const Element &child : root.children)
        if (child.name == tag)
            for (const QString &part : child.text.split(QStringLiteral(" / ")))
                addTo(entries, part);
    return entries.join(QStringLiteral(", "));
}

QString actors(const Element &root)
{
    QStringList names;
    for (const Element &child : root.children)
        if (child.name == QLatin1String("actor"))
            addTo(names, child.children.isEmpty() ? child.text : child.value(QStringLiteral("name")));
    return names.join(QStringLiteral(", "));
}

QString validRating(const QString &text)
{
    bool ok = false;
    QString number = text.trimmed();
    number.replace(QLatin1Char(','), QLatin1Char('.'));
    const double value = number.toDouble(&ok);
    return ok && value > 0 && value <= 100 ? QString::number(value, 'f', 1) : QString();
}

// <ratings><rating default="true"><value>7.5</value>, else <rating>7.5</rating>. Scales of 100 come down
// to 10.
QString rating(const Element &root)
{
    const Element *block = root.child(QStringLiteral("ratings"));
    if (!block)
        return validRating(root.value(QStringLiteral("rating")));
    const Element *chosen = nullptr;
    for (const Element &one : block->children)
        if (one.name == QLatin1String("rating")
            && (!chosen || one.attributes.value(QStringLiteral("default")) == QLatin1String("true")))
            chosen = &one;
    if (!chosen)
        return {};
    const QString text = validRating(chosen->value(QStringLiteral("value")));
    const int scale = chosen->attributes.value(QStringLiteral("max")).toInt();
    return scale == 100 ? validRating(QString::number(text.toDouble() / 10)) : text;
}

void addIdentity(Description &description, const QString &key, const QString &value)
{
    const QString text = value.trimmed();
    if (!text.isEmpty() && text.size() <= 32)
        description.identities.insert(key, text);
}

void readIdentities(const Element &root, Description &description)
{
    for (const Element &child : root.children) {
        if (child.name == QLatin1String("uniqueid")) {
            const QString type = child.attributes.value(QStringLiteral("type")).trimmed().toLower();
            const bool imdb = type.isEmpty() && child.text.startsWith(QLatin1String("tt"));
            if (imdb || !type.isEmpty())
                addIdentity(description, imdb ? QStringLiteral("imdb") : type.left(16), child.text);
        } else if (child.name == QLatin1String("id") && child.text.startsWith(QLatin1String("tt"))) {
            addIdentity(description, QStringLiteral("imdb"), child.text);
        } else if (child.name == QLatin1String("imdbid") || child.name == QLatin1String("tmdbid")
                   || child.name == QLatin1String("tvdbid")) {
            addIdentity(description, child.name.left(4), child.text);
        }
    }
}

void readLinks(const QString &text, Description &description)
{
    for (const LinkRow &row : links) {
        const QString mark = QLatin1String(row.mark);
        const int at = text.indexOf(mark, 0, Qt::CaseInsensitive);
        const NameText::Number number =
            at < 0 ? NameText::Number() : NameText::numberAt(text, at + mark.size(), 9);
        const QString key = QLatin1String(row.key);
        if (number.isValid() && !description.identities.contains(key))
            description.identities.insert(key, QLatin1String(row.prefix)
                                                   + text.mid(at + mark.size(), number.digits));
    }
}

// A year, and the date where one is told. Dates that don't exist tell nothing.
void readDates(const Element &root, Description &description)
{
    for (const char *tag : {"premiered", "releasedate", "aired", "year"}) {
        const QString text = root.value(QLatin1String(tag));
        const QDate date = QDate::fromString(text.left(10), Qt::ISODate);
        if (date.isValid() && description.releaseDate.isEmpty())
            description.releaseDate = date.toString(Qt::ISODate);
        const NameText::Number year = NameText::numberAt(text, 0, 4);
        if (year.digits == 4 && year.value >= 1800 && year.value <= 2200)
            description.year = year.value;
    }
}

void readCollection(const Element &root, NfoRecord &record)
{
    const Element *set = root.child(QStringLiteral("set"));
    if (!set)
        return;
    record.collection = oneLine(set->children.isEmpty() ? set->text : set->value(QStringLiteral("name")));
    record.collectionOverview = set->value(QStringLiteral("overview"));
}

int numberOf(const Element &root, const QString &tag)
{
    bool ok = false;
    const int number = root.value(tag).toInt(&ok);
    return ok && number >= 0 && number <= 99999 ? number : -1;
}

NfoRecord readRoot(const Element &root, NfoRecord::Kind kind)
{
    NfoRecord record;
    record.kind = kind;
    Description &description = record.description;
    for (const TextRow &row : texts)
        if ((description.*row.field).isEmpty())
            description.*row.field = root.value(QLatin1String(row.tag));
    description.title = oneLine(description.title);
    for (const ListRow &row : lists)
        description.*row.field = joined(root, QLatin1String(row.tag));
    description.cast = actors(root);
    description.rating = rating(root);
    description.runtimeMinutes = runtimeMinutes(root.value(QStringLiteral("runtime")));
    readDates(root, description);
    readIdentities(root, description);
    readCollection(root, record);
    record.showTitle = oneLine(root.value(QStringLiteral("showtitle")));
    record.artist = oneLine(root.value(QStringLiteral("artist")));
    record.season = numberOf(root, kind == NfoRecord::Kind::Season ? QStringLiteral("seasonnumber")
                                                                   : QStringLiteral("season"));
    record.episode = numberOf(root, QStringLiteral("episode"));
    return record;
}

} // namespace

QVector<NfoRecord> read(const QByteArray &data)
{
    QVector<NfoRecord> records;
    const NfoTree tree = NfoTree::read(data);
    for (const Element &root : tree.roots)
        for (const RootRow &row : roots)
            if (root.name == QLatin1String(row.name))
                records.append(readRoot(root, row.kind));
    if (records.isEmpty())
        records.append(NfoRecord());
    readLinks(tree.text, records.first().description);
    if (records.first().kind == NfoRecord::Kind::Link && records.first().description.identities.isEmpty())
        records.clear();
    return records;
}

int runtimeMinutes(const QString &text)
{
    QVector<int> numbers;
    QString marks;
    for (int i = 0; i < text.size() && numbers.size() < 3;) {
        const NameText::Number number = NameText::numberAt(text, i, 5);
        if (!number.isValid()) {
            ++i;
            continue;
        }
        i = i + number.digits;
        numbers.append(number.value);
        const int mark = i + (i < text.size() && text.at(i).isSpace() ? 1 : 0);
        marks += mark < text.size() ? text.at(mark).toLower() : QLatin1Char(' ');
    }
    if (numbers.isEmpty())
        return 0;
    const bool hours = marks.startsWith(QLatin1Char(':')) || marks.startsWith(QLatin1Char('h'));
    const int minutes = hours ? numbers.first() * 60 + numbers.value(1) : numbers.first();
    return minutes > longestRuntime ? 0 : minutes;
}

} // namespace NfoReader
