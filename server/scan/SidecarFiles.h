// Sidecars and the insides of discs, read as the scan reads everything: regular files only, no link followed.
//
// Keeps no state; any thread; waits for the disk.
#pragma once

#include "sidecars/FolderListing.h"

class SidecarFiles final : public IFolderFiles {
public:
    [[nodiscard]] QByteArray read(const QString &path, qint64 limit) const override;
    [[nodiscard]] bool exists(const QString &path) const override;
    [[nodiscard]] QVector<FolderEntry> list(const QString &path) const override;
};
