// Changes of the video library that the user asks for: a request, and what it does to the player's copy.
// Called on any thread; blocks for the request.
#pragma once

#include <QString>

class LibraryRoots;
class LibrarySignals;
class VideoProtocol;

class VideoChanges final {
public:
    // Everything that is referred to outlives this object.
    VideoChanges(const VideoProtocol &protocol, LibraryRoots &roots, LibrarySignals &notices)
        : m_protocol(protocol)
        , m_roots(roots)
        , m_notices(notices)
    {
    }

    // scraper: "common" or "avScraper".
    bool addPath(const QString &path, const QString &scraper);
    // False for a folder that is not the library's, without a request.
    bool deletePath(const QString &path);

private:
    const VideoProtocol &m_protocol;
    LibraryRoots &m_roots;
    LibrarySignals &m_notices;
};
