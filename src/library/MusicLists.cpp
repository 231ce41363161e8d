#include "MusicLists.h"

#include "ProtocolNames.h"

namespace MusicLists {

namespace Method = Rpc::Method;
namespace Key = Rpc::Key;
namespace Text = Rpc::Text;

const MusicListRow Songs{Method::GetMusics, Key::musicTotal, Key::musicList,
                         Text::dateadded,   Text::dateadded, true};
const MusicListRow RecentSongs{Method::GetRencentSongs, Key::musicTotal,    Key::musicList,
                               Text::modifiedtime,      Text::modifiedtime, true};
const MusicListRow Albums{Method::GetAlbums, Key::limits,     Key::albums,
                          Text::dateadded,   Text::dateadded, true};
const MusicListRow PlaylistSongs{Method::GetPlayListMusics, Key::musicTotal, Key::musicList,
                                 Text::dateadded,           Text::dateadded, true};
// The protocol asks for the number in another order than for the songs.
const MusicListRow AlbumSongs{
    Method::GetAlbumMusics, Key::musicTotal, Key::musicList, Text::title, Text::dateadded, false};
const MusicListRow ArtistSongs{Method::GetArtistMusics, Key::musicTotal, Key::musicList,
                               Text::dateadded,         Text::dateadded, true};
const MusicListRow GenreSongs{Method::GetGenreMusics, Key::musicTotal, Key::musicList,
                              Text::dateadded,        Text::dateadded, true};

} // namespace MusicLists
