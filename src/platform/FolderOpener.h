// Shows a file in the desktop's own file manager, selected in its folder.
//
// Lives on the GUI thread and does not wait: the desktop is asked on a worker. Where it has no way to select
// a file its folder is opened.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class ThreadWorker;

class FolderOpener final {
public:
    // Opens a folder; by default the way the desktop does it. May run on any thread.
    using OpenFolder = std::function<bool(const QString &folder)>;

    FolderOpener();
    // busAddress: of the session in which the file manager is asked, where there is such a thing; may be
    // empty.
    FolderOpener(const QString &busAddress, OpenFolder openFolder);
    ~FolderOpener();
    FolderOpener(const FolderOpener &) = delete;
    FolderOpener &operator=(const FolderOpener &) = delete;

    void show(const QString &path);

private:
    // By the means of the system; waits for them. On the worker.
    static void showNow(const QString &busAddress, const QString &path, const OpenFolder &openFolder);

    QString m_busAddress;
    OpenFolder m_openFolder;
    std::unique_ptr<ThreadWorker> m_worker;
};
