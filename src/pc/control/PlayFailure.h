// What the user and the log read when a source could not be played: one row a code of the engine.
//
// Plain functions over a table; any thread.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace PlayFailure {

enum Code : int {
    // The engine's reasons, see libvp::VD_PlayError; all others share a row.
    NotFound = 1,
    NoAccess = 2,
    NoStream = 4,
    DiscUnreadable = 5,
    TimedOut = 6,
    Broken = 7,
    // Reasons of protected discs.
    DiscKeyUnreadable = 0xD1,
    DiscNeedsInternet = 0x12E,
    DiscNotSupportedYet = 0x134,
    DiscServerError = 0x135
};

// A page of the maker that a text points to; its address is configuration.
enum class Link { None, SupportedDrives, MakerSite };

struct Row {
    int code;             // 0 in the row for all codes without one of their own
    const char *logText;  // "%1" stands for the code; without one the code follows the text
    const char *title;    // null: no head line
    const char *text;     // English, translated by text()
    const char *linkText; // null: the address itself is the text
    Link link;
    bool namesSource; // the path stands below the text
};

// The row of a code; codes without a row share the last one.
[[nodiscard]] const Row &rowOf(int code);

[[nodiscard]] QString logLine(int code);
[[nodiscard]] QString title(const Row &row);
// The text for a message box. A link without a text of its own stands behind the text as rich text; an empty
// address leaves it out.
[[nodiscard]] QString text(const Row &row, const QUrl &address);
// Text of the link as a button of its own, empty where the row has none.
[[nodiscard]] QString linkText(const Row &row);

// The lines that follow in the log once the user has read the text.
[[nodiscard]] QStringList reportLines(int code, int discErrorCode, const QString &playMode);

} // namespace PlayFailure
