// Texts of tags, made fit to be shown.
//
// Old tags say "Latin-1" and hold whatever bytes the machine of their writer used. All functions are safe on
// every thread.
#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

namespace TagText {

// One line without control characters, at most as long as a list can show.
[[nodiscard]] QString clean(const QString &text);

// What the bytes of a text that calls itself Latin-1 mean: UTF-8 where they are valid in it, the local
// charset where they read like a text in it, else Latin-1. A null codec: there is no other local charset.
[[nodiscard]] QString decodeLegacy(const QByteArray &bytes, QTextCodec *local);

// The 8-bit charset that programs on machines of this user's language used before UTF-8; null for languages
// that Latin-1 serves.
[[nodiscard]] QTextCodec *localCharset();

// The title in a file's name: "01 - Song.mp3" and "01. Song.mp3" give "Song". The number before it, or 0,
// goes to trackNumber where that is not null.
[[nodiscard]] QString titleOf(const QString &path, int *trackNumber = nullptr);

} // namespace TagText
