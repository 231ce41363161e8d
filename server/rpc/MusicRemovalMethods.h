// Songs deleted by the user, one by one or with their artist, genre or album, with their files or without.
#pragma once

#include "FileRemover.h"
#include "MethodTable.h"

#include <QSet>

class ILibraryRoots;
class IMusicLibrary;

class MusicRemovalMethods final {
public:
    MusicRemovalMethods(const ILibraryRoots &roots, IMusicLibrary &music);
    void addTo(MethodTable &table);

private:
    [[nodiscard]] RpcReply delMusic(const Params &params);
    [[nodiscard]] RpcReply delAllMusic(const Params &params);
    [[nodiscard]] RpcReply remove(const QVector<int> &ids, bool withFiles);
    // Sound files and CUE sheets that tracks outside of these songs need.
    [[nodiscard]] QSet<QString> neededByOthers(const QVector<int> &ids) const;

    const ILibraryRoots &m_roots;
    IMusicLibrary &m_music;
    FileRemover m_remover;
};
