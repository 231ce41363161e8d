// A tree of folders and files in memory, for tests that need no disc.
#pragma once

#include "sidecars/Identifier.h"

#include <QMap>

class MemoryFolders final : public IFolderFiles {
public:
    // path: absolute; a name that ends in '/' is an empty folder.
    void add(const QString &path, const QByteArray &content = {});

    [[nodiscard]] QByteArray read(const QString &path, qint64 limit) const override;
    [[nodiscard]] bool exists(const QString &path) const override;
    [[nodiscard]] QVector<FolderEntry> list(const QString &path) const override;

    [[nodiscard]] FolderListing listing(const QString &path, const QString &root, bool adult = false) const;
    [[nodiscard]] IdentifiedFolder identify(const QString &path, const QString &root = "/lib",
                                            bool adult = false) const;

private:
    QMap<QString, QByteArray> m_files;
    QMap<QString, QMap<QString, FolderEntry>> m_folders;
};
