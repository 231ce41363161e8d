// The libraries and their folders. Any thread; what changes something waits until it stands in the database.
#pragma once

#include "records/LibraryRecords.h"

#include <QVector>

class ILibraryRoots {
public:
    virtual ~ILibraryRoots() = default;

    [[nodiscard]] virtual int videoLibraryId() const = 0;
    [[nodiscard]] virtual int musicLibraryId() const = 0;
    [[nodiscard]] virtual QVector<RootFolder> folders(int libraryId) const = 0;
    // The id of the folder, also when it was there before; -1 on failure.
    virtual int addFolder(int libraryId, const QString &path, const QString &scraperType) = 0;
    // What lies below it leaves the library; nothing on disk is touched.
    virtual bool removeFolder(int libraryId, int pathId) = 0;
    virtual void setOnline(int pathId, bool online) = 0;
};
