// When a stop leaves a position behind, under which name, and when the next play offers it.
//
// Plain functions without state; any thread.
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace ResumeRule {

// A source is long enough, and a stop far enough from both ends, to be worth a position. All in seconds.
inline constexpr qint64 ShortestSource = 120;
inline constexpr qint64 EdgeSeconds = 60;

[[nodiscard]] bool storesPosition(qint64 positionSeconds, qint64 totalSeconds);

// Whole seconds of a time in milliseconds, never below 0.
[[nodiscard]] qint64 secondsOf(qint64 milliseconds);

// The name a source's position stands under: its path, or for a drive letter the name of the disc in it,
// where that is known, because another disc may be in the drive next time.
[[nodiscard]] QString storeKey(const QString &path, const QString &discName);

// Where an open begins: the stored second only for those who want it without being asked.
[[nodiscard]] int startSeconds(bool rememberPosition, int storedSeconds);

// Whether the note that offers the stored position is shown.
[[nodiscard]] bool showsNote(bool isPlayView, std::optional<bool> rememberPosition, bool startsInMenu);

} // namespace ResumeRule
