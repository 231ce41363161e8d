// What a folder holds, as a walk finds it: regular files and folders, without links and without what is
// hidden.
#pragma once

#include "sidecars/FolderListing.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <memory>

struct WalkedFolder {
    QString path; // absolute, with "/", without one at its end
    QString rootPath;
    QVector<FolderEntry> entries; // by name
    // False for a folder that is there but can't be listed: what is known of it and below it stays.
    bool isReadable{true};
    // Digest of the sidecars here and above that tell something about what lies further down.
    QByteArray sidecars;
    std::shared_ptr<const WalkedFolder> parent; // null for the library folder itself
};
