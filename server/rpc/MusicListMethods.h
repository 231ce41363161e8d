// The lists of the music library.
#pragma once

#include "MethodTable.h"
#include "records/LibraryRecords.h"
#include "records/ListRequest.h"

class ILibraryRoots;
class IMusicLibrary;

class MusicListMethods final {
public:
    MusicListMethods(const ILibraryRoots &roots, const IMusicLibrary &music);
    void addTo(MethodTable &table);

private:
    void addSongLists(MethodTable &table);
    void addOtherLists(MethodTable &table);

    // The handler that answers for this library alone.
    [[nodiscard]] MethodHandler ofLibrary(MethodHandler handler) const;

    const ILibraryRoots &m_roots;
    const IMusicLibrary &m_music;
};
