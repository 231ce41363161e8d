#include "PlayFailure.h"

#include <QCoreApplication>

namespace PlayFailure {

namespace {

constexpr char Context[] = "PlayFailure";

constexpr char kUnknown[] = "[Player fail]: UHD Disc unknown :";
constexpr char kFailed[] = QT_TRANSLATE_NOOP("PlayFailure", "Playback failed.");

constexpr Row Rows[] = {
    {DiscKeyUnreadable, "[Player fail]: UHD Disc ReadDataKey : %1", nullptr,
     QT_TRANSLATE_NOOP("PlayFailure",
                       "Quorin does not support your UHD drive, please check the supported drives here."),
     QT_TRANSLATE_NOOP("PlayFailure", "More Info..."), Link::SupportedDrives, false},
    {DiscNotSupportedYet, "[Player fail]: UHD Disc FFClient_Reading :", nullptr,
     QT_TRANSLATE_NOOP("PlayFailure",
                       "Oops! This disc is not supported yet. Please try again at a later time."),
     nullptr, Link::None, false},
    {DiscNeedsInternet, "[Player fail]: Disc_Error_InternetUnavailable :",
     QT_TRANSLATE_NOOP("PlayFailure", "Failed to play back the disc."),
     QT_TRANSLATE_NOOP(
         "PlayFailure",
         "A live Internet is required to play back the disc, please check your network and try again."),
     nullptr, Link::None, false},
    {DiscServerError, "[Player fail]: Disc_Error_FFClient_ServerError :", nullptr,
     QT_TRANSLATE_NOOP("PlayFailure", "An unknown error happened, please update to the newest version at"),
     nullptr, Link::MakerSite, false},
    {NotFound, kUnknown, kFailed, QT_TRANSLATE_NOOP("PlayFailure", "There is no such file, folder or title."),
     nullptr, Link::None, true},
    {NoAccess, kUnknown, kFailed,
     QT_TRANSLATE_NOOP("PlayFailure",
                       "This source may not be read, or is neither a file nor a folder nor a disc."),
     nullptr, Link::None, true},
    {NoStream, kUnknown, kFailed,
     QT_TRANSLATE_NOOP("PlayFailure", "There is nothing in this source that can be played."), nullptr,
     Link::None, true},
    {DiscUnreadable, kUnknown, kFailed,
     QT_TRANSLATE_NOOP("PlayFailure", "There is no disc in this source, or none that can be read."), nullptr,
     Link::None, true},
    {TimedOut, kUnknown, kFailed, QT_TRANSLATE_NOOP("PlayFailure", "This source does not answer."), nullptr,
     Link::None, true},
    {Broken, kUnknown, kFailed,
     QT_TRANSLATE_NOOP("PlayFailure", "This source ended with an error while it played."), nullptr,
     Link::None, true},
    {0, kUnknown, kFailed,
     QT_TRANSLATE_NOOP("PlayFailure",
                       "This source can't be played. It may be damaged, protected or of an unknown format."),
     nullptr, Link::None, true},
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
