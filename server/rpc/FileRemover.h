// Removes from disk what the user deletes from the library, and nothing else: only below a library folder,
// after all links are resolved, and never more than the item's own file or disc folder. Every removal is
// logged.
//
// Any thread.
#pragma once

#include "DiscTargets.h"

#include <QStringList>
#include <QVector>

class ILibraryRoots;

class FileRemover final {
public:
    explicit FileRemover(const ILibraryRoots &roots);

    // Removes the files of an item of this library, as the database names them. Empty when none of them
    // stands on disk any more, else why one does; what could be removed before it is gone then. Nothing is
    // touched where one of them may not be removed.
    [[nodiscard]] QString remove(int libraryId, const QStringList &files) const;

private:
    struct Plan {
        QVector<RemovalTarget> targets;
        QString objection;
    };
    [[nodiscard]] Plan plan(int libraryId, const QStringList &files) const;

    const ILibraryRoots &m_roots;
};
