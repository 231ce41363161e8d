#include "VideoLists.h"

#include "ProtocolNames.h"

namespace VideoLists {

namespace {

using Filter = VideoListRow::Filter;
namespace Method = Rpc::Method;
namespace Key = Rpc::Key;

constexpr std::array<VideoListRow, 5> kRows{{
    {LibraryRole::Movies, Method::GetMovies, Key::movieTotal, Key::movieList, Key::idFile, Filter::Movie,
     true, true},
    {LibraryRole::Collections, Method::GetMovieGroups, Key::limits, Key::groups, Key::idGroup, Filter::None,
     false, true},
    {LibraryRole::TvShows, Method::GetTVShows, Key::limits, Key::tvshowList, Key::idTvshow, Filter::TvShow,
     true, true},
    {LibraryRole::Videos, Method::GetVideos, Key::limits, Key::videoList, Key::idFile, Filter::None, true,
     false},
    {LibraryRole::AdultContent, Method::GetAvs, Key::movieTotal, Key::avList, Key::idFile, Filter::Empty,
     true, true},
}};

} // namespace

const std::array<VideoListRow, 5> &rows()
{
    return kRows;
}

const VideoListRow &row(LibraryRole role)
{
    return kRows.at(std::size_t(role) - std::size_t(LibraryRole::Movies));
}

} // namespace VideoLists
