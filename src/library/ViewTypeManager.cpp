#include "ViewTypeManager.h"

#include "LibraryRole.h"

#include <QDebug>

#include <algorithm>
#include <array>

namespace {

struct PageRow {
    int page;
    int role; // 0: none
    int back; // MediaPage::NoPage: nowhere
    bool isTopLevel;
};

constexpr int kMovies = int(LibraryRole::Movies);
constexpr int kCollections = int(LibraryRole::Collections);
constexpr int kShows = int(LibraryRole::TvShows);
constexpr int kVideos = int(LibraryRole::Videos);
constexpr int kAdult = int(LibraryRole::AdultContent);
constexpr int kMusic = int(LibraryRole::Music);

constexpr std::array<PageRow, 24> kPages{{
    {MediaPage::Movies, kMovies, MediaPage::NoPage, true},
    {MediaPage::MovieDetail, kMovies, MediaPage::Movies, false},
    {MediaPage::Collections, kCollections, MediaPage::NoPage, true},
    {MediaPage::CollectionMovies, kCollections, MediaPage::Collections, false},
    {MediaPage::CollectionMovieDetail, kCollections, MediaPage::CollectionMovies, false},
    {MediaPage::TvShows, kShows, MediaPage::NoPage, true},
    {MediaPage::Seasons, kShows, MediaPage::TvShows, false},
    {MediaPage::Episodes, kShows, MediaPage::Seasons, false},
    {MediaPage::EpisodeDetail, kShows, MediaPage::Episodes, false},
    {MediaPage::Videos, kVideos, MediaPage::NoPage, true},
    {MediaPage::AdultContent, kAdult, MediaPage::NoPage, true},
    {MediaPage::AdultDetail, kAdult, MediaPage::AdultContent, false},
    {MediaPage::MusicHome, kMusic, MediaPage::NoPage, true},
    {MediaPage::Playlists, kMusic, MediaPage::MusicHome, false},
    {MediaPage::PlaylistSongs, kMusic, MediaPage::Playlists, false},
    {MediaPage::Albums, kMusic, MediaPage::MusicHome, false},
    {MediaPage::AlbumSongs, kMusic, MediaPage::Albums, false},
    {MediaPage::Artists, kMusic, MediaPage::MusicHome, false},
    {MediaPage::ArtistSongs, kMusic, MediaPage::Artists, false},
    {MediaPage::Genres, kMusic, MediaPage::MusicHome, false},
    {MediaPage::GenreSongs, kMusic, MediaPage::Genres, false},
    {MediaPage::LikedSongs, kMusic, MediaPage::MusicHome, false},
    {MediaPage::AllSongs, kMusic, MediaPage::MusicHome, false},
    {MediaPage::ExplorerFolder, 0, MediaPage::NoPage, true},
}};

const PageRow *rowOf(int page)
{
    const auto row =
        std::find_if(kPages.begin(), kPages.end(), [page](const PageRow &r) { return r.page == page; });
    return row == kPages.end() ? nullptr : &*row;
}

struct ViewRow {
    int index;
    const char *name;
};

constexpr ViewRow kViews[]{
    {0, "View_none"},   {1, "VIEW_disc"},  {2, "VIEW_movie"}, {3, "VIEW_collection"},
    {4, "VIEW_tvshow"}, {6, "VIEW_music"}, {7, "VIEW_adult"}, {8, "VIEW_computer"},
};
// The videos, 5, have no name of their own in the records.
constexpr char kOtherView[] = "VIEW_fileExplorer";

} // namespace

ViewTypeManager *ViewTypeManager::instance()
{
    static auto *const manager = new ViewTypeManager;
    return manager;
}

int ViewTypeManager::role(int page)
{
    const PageRow *row = rowOf(page);
    return row ? row->role : 0;
}

int ViewTypeManager::backPage(int page)
{
    const PageRow *row = rowOf(page);
    return row ? row->back : MediaPage::NoPage;
}

bool ViewTypeManager::isTopLevel(int page)
{
    const PageRow *row = rowOf(page);
    return row && row->isTopLevel;
}

void ViewTypeManager::setPage(int page)
{
    if (!rowOf(page)) {
        qInfo() << "[library] no page has the number" << page;
        return;
    }
    if (m_dropPictures && isTopLevel(page) && isTopLevel(m_page))
        m_dropPictures();
    m_page = page;
    emit sig_mediaPageTypeChanged(page);
}

bool ViewTypeManager::back()
{
    if (m_page == MediaPage::ExplorerFolder) {
        if (m_folders.isEmpty())
            return false;
        (void)popFolder();
        return true;
    }
    const int above = backPage(m_page);
    if (above == MediaPage::NoPage)
        return false;
    setPage(above);
    return true;
}

void ViewTypeManager::setPath(int page, const QString &path)
{
    m_paths.insert(page, path);
    emit sig_pathChanged(path);
}

QString ViewTypeManager::path(int page) const
{
    return m_paths.value(page);
}

void ViewTypeManager::pushFolder(const QString &path)
{
    m_folders.append(path);
    setPath(MediaPage::ExplorerFolder, path);
    emit sig_pathStackChanged(m_folders.size());
}

QString ViewTypeManager::popFolder()
{
    if (m_folders.isEmpty())
        return {};
    m_folders.removeLast();
    const QString shown = m_folders.isEmpty() ? QString() : m_folders.last();
    setPath(MediaPage::ExplorerFolder, shown);
    emit sig_pathStackChanged(m_folders.size());
    return shown;
}

void ViewTypeManager::clearFolders()
{
    m_folders.clear();
    emit sig_pathStackChanged(0);
}

QString ViewTypeManager::viewName(int viewIndex)
{
    const auto row = std::find_if(std::begin(kViews), std::end(kViews),
                                  [viewIndex](const ViewRow &r) { return r.index == viewIndex; });
    return QLatin1String(row == std::end(kViews) ? kOtherView : row->name);
}
