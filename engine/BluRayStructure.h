// Looks through the structure of a Blu-ray for what the disc library trusts without a check.
//
// The library follows some references inside of a file wherever they point: a disc with a scratch, or one
// made to do harm, would take the process down, in the player as well as here. Stateless.
#pragma once

#include "BigEndianReader.h"

class BluRayStructure final {
public:
    BluRayStructure() = delete;

    // Whether the references of a clip's information file stay inside of it. A file that the library does not
    // read at all is harmless.
    [[nodiscard]] static bool isSoundClip(const BigEndianReader::Bytes &clipInfo);
    // Whether the marks of a playlist stand in items that it has.
    [[nodiscard]] static bool isSoundPlaylist(const BigEndianReader::Bytes &playlist);
};
