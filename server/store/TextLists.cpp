#include "TextLists.h"

#include "TextFold.h"

#include <QMap>
#include <QRegularExpression>

namespace {

QStringList parts(const QString &text, const QRegularExpression &separator)
{
    QStringList result;
    const QStringList pieces = text.split(separator, Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const QString name = piece.trimmed();
        if (!name.isEmpty())
            result << name;
    }
    return result;
}

} // namespace

QStringList TextLists::artists(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral(";"));
    return parts(text, separator);
}

QStringList TextLists::genres(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral(", |;|/"));
    return parts(text, separator);
}

QStringList TextLists::countries(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral(", |;"));
    return parts(text, separator);
}

QStringList TextLists::distinct(const QStringList &names)
{
    // The folded name puts them in order, the key tells two of them apart.
    QMap<QPair<QString, QString>, QString> ordered;
    for (const QString &name : names) {
        const QPair<QString, QString> key(TextFold::folded(name), TextFold::nameKey(name));
        if (!ordered.contains(key))
            ordered.insert(key, name);
    }
    return ordered.values();
}
