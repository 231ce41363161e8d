// The long requests that change nothing in the player's copy: update, rebuild and another language of the
// metadata. Each has a thread of its own; every operation is safe on every thread and returns at once.
#pragma once

#include <QString>

#include <mutex>

class LibraryRoots;
class LibrarySignals;
class LibraryThreads;
class MusicProtocol;
class ServerLink;
class VideoProtocol;

class LibraryJobs final {
public:
    // What the jobs work with; all of it outlives them.
    struct Parts {
        const VideoProtocol &video;
        const MusicProtocol &music;
        LibraryRoots &roots;
        LibraryThreads &threads;
        LibrarySignals &notices;
        ServerLink &link;
    };

    // Puts the work of the three into the threads.
    explicit LibraryJobs(const Parts &parts);

    // A second call while the first one's request is under way does nothing.
    void startUpdate();
    void startRebuild();
    // The language in the server's words. The same one again does nothing.
    void setLanguage(const QString &language);
    [[nodiscard]] QString language() const;

private:
    void update();
    void rebuild();
    void tellLanguage();

    const Parts m_parts;
    mutable std::mutex m_mutex;
    QString m_language;
    QString m_toldLanguage;
};
