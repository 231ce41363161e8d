// What a scan sees of one folder.
//
// Paths are absolute and clean, with '/' as separator and none at the end. Plain values; any thread.
#pragma once

#include "records/ScanRecords.h"

#include <QString>
#include <QVector>

struct FolderEntry {
    QString name;
    FileStamp stamp; // of a folder: size 0
    bool isFolder{false};
};

struct FolderListing {
    QString path;
    QString rootPath;  // the library folder that it lies in, or is
    bool adult{false}; // the library folder was added as adult content
    QVector<FolderEntry> entries;
};

// What else a folder's identification looks at: sidecars, the folders above (never above the library folder)
// and the insides of discs. An implementation must be usable from the thread of the scan and its workers at
// once.
class IFolderFiles {
public:
    virtual ~IFolderFiles() = default;

    // The contents of a file of at most limit bytes; empty for a larger one, for none, and where it can't be
    // read.
    [[nodiscard]] virtual QByteArray read(const QString &path, qint64 limit) const = 0;
    [[nodiscard]] virtual bool exists(const QString &path) const = 0;
    // Without "." and ".."; empty where the folder can't be read.
    [[nodiscard]] virtual QVector<FolderEntry> list(const QString &path) const = 0;
};
