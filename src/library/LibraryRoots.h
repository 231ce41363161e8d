// What the server calls its two libraries, and the folders of each. -1 stands for a library that the server
// has not named yet. Every operation is safe on every thread.
#pragma once

#include "LibraryPaths.h"

#include <array>
#include <mutex>

class LibraryRoots final {
public:
    enum Library { Video, Music };
    static constexpr int Unknown = -1;

    [[nodiscard]] int id(Library library) const;
    void setId(Library library, int id);

    [[nodiscard]] LibraryPaths::Map folders(Library library) const;
    void setFolders(Library library, const LibraryPaths::Map &folders);
    void add(Library library, int pathId, const QString &path);
    void remove(Library library, int pathId);
    // The id of the folder; nothing where the library does not hold it.
    [[nodiscard]] std::optional<int> pathId(Library library, const QString &path) const;

private:
    struct State {
        int id{Unknown};
        LibraryPaths::Map folders;
    };
    mutable std::mutex m_mutex;
    std::array<State, 2> m_states;
};
