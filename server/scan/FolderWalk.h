// Walks a library folder, folder by folder, each before what lies in it.
//
// Links are not followed: what they lead to inside the library folder is walked anyway, and what lies outside
// it is not part of it. A folder with a file ".nomedia" or ".ignore" is left out with all that it holds; so
// are hidden folders and the bins and thumbnail stores of systems. Disc folders (VIDEO_TS and the like) are
// listed in their parent and not entered. A directory that two paths lead to (a loop of mounts) is walked
// once.
//
// One thread. Waits for the disk.
#pragma once

#include "WalkedFolder.h"

#include <QPair>
#include <QSet>

#include <atomic>
#include <functional>

class FolderWalk final {
public:
    enum class Result { Complete, Cancelled, Unreachable };
    // Called before a folder is listed, so that no change can slip between a listing and the watch over it.
    using Enter = std::function<void(const QString &path)>;
    // False ends the walk as cancelled.
    using Visit = std::function<bool(const std::shared_ptr<const WalkedFolder> &folder)>;

    explicit FolderWalk(const std::atomic<bool> &cancelled)
        : m_cancelled(cancelled)
    {
    }

    Result walk(const QString &root, const Enter &enter, const Visit &visit);

private:
    struct Waiting {
        std::shared_ptr<const WalkedFolder> parent;
        QString path;
    };
    enum class Listed { Use, Leave, Gone };

    Listed list(WalkedFolder &folder);
    void note(const char *what, const QString &path);

    const std::atomic<bool> &m_cancelled;
    QSet<QPair<quint64, quint64>> m_visited;
    QSet<QByteArray> m_noted;
};
