// Shows, collections and albums: records that stand for many files and are listed as long as one of them is
// there. Collects those whose files change in a transaction and brings their counts and pictures up to date
// at its end.
#pragma once

#include <QSet>

class Connection;

class Containers final {
public:
    void addVideo(int showId, int groupId);
    void addAlbum(int albumId);

    // The collection was described anew.
    void addCollection(int groupId);

    // Raises the versions of the lists that it changes.
    [[nodiscard]] bool refresh(Connection &connection) const;
    // Removes those without any file, missing ones counted too.
    [[nodiscard]] static bool dropEmpty(Connection &connection);

private:
    [[nodiscard]] static bool refreshShow(Connection &connection, int id);
    [[nodiscard]] static bool refreshCollection(Connection &connection, int id);
    [[nodiscard]] static bool refreshAlbum(Connection &connection, int id);

    QSet<int> m_shows;
    QSet<int> m_collections;
    QSet<int> m_albums;
    bool m_videos{false};
    bool m_songs{false};
};
