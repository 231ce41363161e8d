#include "CameraName.h"

#include "NameText.h"

#include <QDate>

namespace CameraName {

namespace {

// Followed by digits, with or without a separator.
constexpr const char *numbered[] = {
    "img", "vid", "mvi", "mov", "dsc",     "dscn",  "dscf", "dsci", "pict", "gopr",
    "gx",  "gh",  "gl",  "dji", "clip",    "mah",   "sdc",  "cimg", "imgp", "pxl",
    "p",   "m2u", "00",  "hdv", "capture", "video", "rec",  "trim", "wp",   "mp",
};

// Programs write their name in front of the time.
constexpr const char *recorders[] = {
    "whatsapp video",
    "screen recording",
    "screencast",
    "screenrecorder",
    "screen recorder",
    "simplescreenrecorder",
    "bandicam",
    "telegram video",
    "snapchat",
    "signal",
    "zoom",
    "video from",
    "bildschirmaufnahme",
    "enregistrement de l",
    "grabación de pantalla",
};

constexpr const char *homeWords[] = {
    "birthday",  "wedding",      "vacation",   "holidays", "graduation",  "recital",    "christening",
    "honeymoon", "home video",   "home movie", "family",   "school play", "geburtstag", "hochzeit",
    "urlaub",    "anniversaire", "mariage",    "vacances", "cumpleaños",  "boda",       "vacaciones",
};

constexpr int fewestDigits = 3;

int digitsIn(const QString &text)
{
    int count = 0;
    for (const QChar character : text)
        count += NameText::isDigit(character) ? 1 : 0;
    return count;
}

bool isNumbered(const QString &folded)
{
    for (const char *mark : numbered) {
        const QLatin1String prefix(mark);
        if (!folded.startsWith(prefix))
            continue;
        const int start = NameText::skipSeparators(folded, prefix.size(), 1);
        int at = start;
        while (at < folded.size()
               && (NameText::isDigit(folded.at(at)) || NameText::isSeparator(folded.at(at))))
            ++at;
        const QString rest = folded.mid(at);
        const bool shortRest = rest.size() <= 8 && digitsIn(rest) >= rest.size() / 2;
        if (digitsIn(folded.mid(start, at - start)) >= fewestDigits && (rest.isEmpty() || shortRest))
            return true;
    }
    return false;
}

// 20200101_120000, 2020-01-01 12.00.00, 20200101
bool isTime(const QString &folded)
{
    QString digits;
    for (const QChar character : folded) {
        if (NameText::isDigit(character))
            digits += character;
        else if (!NameText::isSeparator(character) && character != QLatin1Char(':')
                 && character != QLatin1Char('~'))
            return false;
        if (digits.size() > 20)
            return false;
    }
    if (digits.size() < 8)
        return false;
    const QDate date(digits.midRef(0, 4).toInt(), digits.midRef(4, 2).toInt(), digits.midRef(6, 2).toInt());
    return date.isValid() && date.year() >= 1970 && date.year() <= 2099;
}

} // namespace

bool isCamera(const QString &name)
{
    const QString folded = NameText::folded(NameText::sanitized(name)).trimmed();
    if (isNumbered(folded) || isTime(folded))
        return true;
    for (const char *recorder : recorders)
        if (folded.startsWith(QString::fromUtf8(recorder)) && digitsIn(folded) >= 6)
            return true;
    return false;
}

bool isHome(const QString &name)
{
    const QString words =
        QLatin1Char(' ') + NameText::comparable(NameText::sanitized(name)) + QLatin1Char(' ');
    for (const char *word : homeWords)
        if (words.contains(QLatin1Char(' ') + QString::fromUtf8(word) + QLatin1Char(' ')))
            return true;
    return false;
}

} // namespace CameraName
