#include "MenuTexts.h"

#include <QCoreApplication>

namespace MenuTexts {

QString chapter(int chapter)
{
    return QCoreApplication::translate("PlayMenu", "Chapter %1").arg(chapter);
}

QString track(const QString &name, const QString &language)
{
    const QString own = name.simplified();
    if (!own.isEmpty())
        return own;
    const QString spoken = language.simplified();
    return spoken.isEmpty() ? QCoreApplication::translate("PlayMenu", "unknown") : spoken;
}

QString shown(const QString &text, const QString &note)
{
    QString shown = text;
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    // A tabulator begins the column at the right end.
    shown.replace(QLatin1Char('\t'), QLatin1Char(' '));
    // The columns stand apart by no more than a letter otherwise.
    if (!note.isEmpty())
        shown += QStringLiteral("\t    ") + QString(note).replace(QLatin1Char('\t'), QLatin1Char(' '));
    return shown;
}

} // namespace MenuTexts
