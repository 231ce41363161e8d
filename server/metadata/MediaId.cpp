#include "MediaId.h"

#include <QRegularExpression>

namespace {

constexpr char kItem[] = "local:";
constexpr char kShow[] = "localshow:";
constexpr char kName[] = "name:";
constexpr QChar kYear{'|'};
constexpr int kLongest = 4096;

} // namespace

MediaId MediaId::parse(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("\\A[0-9]{1,10}\\z"));
    MediaId id;
    if (text.size() > kLongest)
        return id;
    if (number.match(text).hasMatch()) {
        id.kind = Kind::Provider;
        id.provider = text;
        return id;
    }
    const struct {
        const char *prefix;
        Kind kind;
    } records[] = {{kItem, Kind::Item}, {kShow, Kind::Show}};
    for (const auto &row : records) {
        const QLatin1String prefix(row.prefix);
        if (!text.startsWith(prefix))
            continue;
        bool isNumber = false;
        id.record = text.mid(prefix.size()).toInt(&isNumber);
        if (isNumber && id.record > 0)
            id.kind = row.kind;
        return id;
    }
    const QLatin1String name(kName);
    if (!text.startsWith(name))
        return id;
    // A title may hold the separator; the year is what stands behind the last.
    const int separator = text.lastIndexOf(kYear);
    id.title = text.mid(name.size(), separator < 0 ? -1 : separator - name.size()).trimmed();
    id.year = separator < 0 ? 0 : text.mid(separator + 1).toInt();
    if (!id.title.isEmpty())
        id.kind = Kind::Name;
    return id;
}

QString MediaId::ofItem(int idFile)
{
    return QLatin1String(kItem) + QString::number(idFile);
}

QString MediaId::ofShow(int idTvshow)
{
    return QLatin1String(kShow) + QString::number(idTvshow);
}

QString MediaId::ofName(const QString &title, int year)
{
    return QLatin1String(kName) + title + kYear + (year > 0 ? QString::number(year) : QString());
}
