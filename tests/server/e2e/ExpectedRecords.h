// Compares records field by field, so that a failure names the field.
#pragma once

#include "library/MediaItem.h"
#include "library/MusicSong.h"

namespace ExpectedRecords {

void expectSame(const MediaItem &actual, const MediaItem &expected);
// Without the length, which depends on the encoder.
void expectSame(const MusicSong &actual, const MusicSong &expected);

} // namespace ExpectedRecords
