// The files as they stand on disk. Keeps no state; any thread; may wait for the drive.
#pragma once

#include "FolderListing.h"

class DiskFolderFiles final : public IFolderFiles {
public:
    [[nodiscard]] QByteArray read(const QString &path, qint64 limit) const override;
    [[nodiscard]] bool exists(const QString &path) const override;
    [[nodiscard]] QVector<FolderEntry> list(const QString &path) const override;
};
