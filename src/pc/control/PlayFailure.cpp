#include "PlayFailure.h"

#include <QCoreApplication>

namespace PlayFailure {

namespace {

constexpr char Context[] = "PlayFailure";

constexpr Row Rows[] = {
    {DiscKeyUnreadable, "[Player fail]: UHD Disc ReadDataKey : %1", nullptr,
     QT_TRANSLATE_NOOP("PlayFailure",
                       "Quorin does not support your UHD drive, please check the supported drives here."),
     QT_TRANSLATE_NOOP("PlayFailure", "More Info..."), Link::SupportedDrives},
    {DiscNotSupportedYet, "[Player fail]: UHD Disc FFClient_Reading :", nullptr,
     QT_TRANSLATE_NOOP("PlayFailure",
                       "Oops! This disc is not supported yet. Please try again at a later time."),
     nullptr, Link::None},
    {DiscNeedsInternet, "[Player fail]: Disc_Error_InternetUnavailable :",
     QT_TRANSLATE_NOOP("PlayFailure", "Failed to play back the disc."),
     QT_TRANSLATE_NOOP(
         "PlayFailure",
         "A live Internet is required to play back the disc, please check your network and try again."),
     nullptr, Link::None},
    {DiscServerError, "[Player fail]: Disc_Error_FFClient_ServerError :", nullptr,
     QT_TRANSLATE_NOOP("PlayFailure", "An unknown error happened, please update to the newest version at"),
     nullptr, Link::MakerSite},
    {0, "[Player fail]: UHD Disc unknown :", QT_TRANSLATE_NOOP("PlayFailure", "Playback failed."),
     QT_TRANSLATE_NOOP("PlayFailure",
                       "This source can't be played. It may be damaged, protected or of an unknown format."),
     nullptr, Link::None},
};

QString translated(const char *text)
{
    return text ? QCoreApplication::translate(Context, text) : QString();
}

} // namespace

const Row &rowOf(int code)
{
    for (const Row &row : Rows) {
        if (row.code != 0 && row.code == code)
            return row;
    }
    return *(std::end(Rows) - 1);
}

QString logLine(int code)
{
    const QString text = QLatin1String(rowOf(code).logText);
    return text.contains(QLatin1String("%1")) ? text.arg(code)
                                              : text + QLatin1Char(' ') + QString::number(code);
}

QString title(const Row &row)
{
    return translated(row.title);
}

QString text(const Row &row, const QUrl &address)
{
    const QString plain = translated(row.text);
    if (row.link == Link::None || row.linkText || !address.isValid() || address.isEmpty())
        return plain;
    const QString href = QString::fromLatin1(address.toEncoded()).toHtmlEscaped();
    return QStringLiteral("%1 <a href=\"%2\">%3</a>")
        .arg(plain.toHtmlEscaped(), href, address.toDisplayString().toHtmlEscaped());
}

QString linkText(const Row &row)
{
    return translated(row.linkText);
}

QStringList reportLines(int code, int discErrorCode, const QString &playMode)
{
    return {QStringLiteral("[Error code]: %1").arg(code),
            QStringLiteral("[Disc Last Error code]: %1").arg(discErrorCode),
            QStringLiteral("[PlayMode]: ") + playMode, QStringLiteral("[Error of modules]: PC")};
}

} // namespace PlayFailure
