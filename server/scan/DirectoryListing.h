// Lists one directory in one go, with the size and the time of all that is in it.
//
// Keeps no state; any thread. Waits for the disk.
#pragma once

#include "WalkedFolder.h"

#include <QPair>

struct DirectoryListing {
    enum class Outcome { Read, Unreadable, Gone, TooLong };

    // Unreadable also where an entry's size and time cannot be had: only what is known to be gone is left
    // out.
    Outcome outcome{Outcome::Gone};
    // The same for two paths that lead to one directory.
    QPair<quint64, quint64> identity;
    // In the order of the file system. Neither links nor pipes, sockets and devices are among them.
    QVector<FolderEntry> entries;
    // Entries whose names cannot be told faithfully, so that no file would be found under them.
    int strangeNames{0};
    // Files whose whole path is longer than the system takes.
    int longPaths{0};

    [[nodiscard]] static DirectoryListing read(const QString &path);
};
