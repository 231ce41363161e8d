// Knows which page of the library is on show, what its path line reads, and the trail of folders in the file
// explorer. GUI thread.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace MediaPage {

enum Page {
    NoPage = 0,
    Movies,
    MovieDetail,
    Collections,
    CollectionMovies,
    CollectionMovieDetail,
    TvShows,
    Seasons,
    Episodes,
    EpisodeDetail,
    Videos,
    AdultContent,
    AdultDetail,
    MusicHome,
    Playlists,
    PlaylistSongs,
    Albums,
    AlbumSongs,
    Artists,
    ArtistSongs,
    Genres,
    GenreSongs,
    LikedSongs,
    AllSongs,
    ExplorerFolder
};

} // namespace MediaPage

class ViewTypeManager final : public QObject {
    Q_OBJECT
public:
    using Drop = std::function<void()>;

    static ViewTypeManager *instance();
    explicit ViewTypeManager(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    // Called when one top-level list gives way to another: pictures that are still to come are for nothing.
    void setPicturesDropper(Drop drop) { m_dropPictures = std::move(drop); }

    [[nodiscard]] int page() const { return m_page; }
    // A number that is no page is logged and changes nothing.
    void setPage(int page);
    // To the page above, by the table of pages; from a folder of the explorer to the one before. False where
    // there is none.
    bool back();

    // The role that the page shows; 0 for the explorer and for a number that is no page.
    [[nodiscard]] static int role(int page);
    // The page above; MediaPage::NoPage where there is none.
    [[nodiscard]] static int backPage(int page);
    [[nodiscard]] static bool isTopLevel(int page);

    // What the path line reads on a page.
    void setPath(int page, const QString &path);
    [[nodiscard]] QString path(int page) const;

    // The folders that led to the one on show, which is the last.
    void pushFolder(const QString &path);
    // The folder on show after that; empty when the trail is at its end.
    QString popFolder();
    void clearFolders();
    [[nodiscard]] QStringList folders() const { return m_folders; }

    // The name of a place of the navigation, in the usage records.
    [[nodiscard]] static QString viewName(int viewIndex);

signals:
    void sig_mediaPageTypeChanged(int type);
    void sig_pathChanged(QString path);
    void sig_pathStackChanged(int nCount);

private:
    int m_page{MediaPage::NoPage};
    QMap<int, QString> m_paths;
    QStringList m_folders;
    Drop m_dropPictures;
};
