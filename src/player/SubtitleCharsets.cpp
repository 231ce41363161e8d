#include "SubtitleCharsets.h"

#include <QCoreApplication>
#include <QDebug>

#include <algorithm>

namespace {

constexpr int largestCodePage = 65535;

} // namespace

namespace SubtitleCharsets {

const std::vector<Row> &rows()
{
    static const std::vector<Row> table{
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Auto"), 0},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Unicode (UTF-8)"), 65001},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Unicode (UTF-16)"), 1200},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Western European"), 1252},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Central European"), 1250},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Baltic"), 1257},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Cyrillic"), 1251},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Cyrillic (KOI8-R)"), 20866},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Greek"), 1253},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Turkish"), 1254},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Hebrew"), 1255},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Arabic"), 1256},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Vietnamese"), 1258},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Thai"), 874},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Chinese Simplified"), 936},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Chinese Traditional"), 950},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Japanese"), 932},
        {QT_TRANSLATE_NOOP("SubtitleCharsets", "Korean"), 949},
    };
    return table;
}

QString code(const QString &stored)
{
    const QString text = stored.trimmed();
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber && number >= 0 && number <= largestCodePage)
        return QString::number(number);
    const auto row = std::find_if(rows().begin(), rows().end(), [&text](const Row &candidate) {
        return text.compare(QLatin1String(candidate.name), Qt::CaseInsensitive) == 0;
    });
    if (row != rows().end())
        return QString::number(row->codePage);
    if (!text.isEmpty())
        qInfo().noquote().nospace() << "[Engine config] no such character set: " << text.left(80)
                                    << "; it is found out for each file";
    return QStringLiteral("0");
}

} // namespace SubtitleCharsets
