// Every key of the wire, request and reply. The spellings are the protocol's own, those that look misspelt
// included.
#pragma once

#include <QLatin1String>

namespace Keys {

// With its length: to find it out is no constant expression for every compiler.
#define QUORIN_NAMED_KEY(name, text) inline constexpr QLatin1String name(text, int(sizeof text) - 1)
#define QUORIN_KEY(name) QUORIN_NAMED_KEY(name, #name)

// The envelope.
QUORIN_KEY(id);
QUORIN_KEY(jsonrpc);
QUORIN_KEY(method);
QUORIN_KEY(params);
QUORIN_KEY(ret);
QUORIN_KEY(result);
QUORIN_KEY(message);

// Shapes that many methods share.
QUORIN_KEY(limits);
QUORIN_KEY(start);
QUORIN_KEY(end);
QUORIN_KEY(total);
QUORIN_KEY(sort);
QUORIN_KEY(order);
QUORIN_KEY(filter);
QUORIN_KEY(field);
QUORIN_KEY(value);
QUORIN_KEY(pattern);
QUORIN_KEY(type);
QUORIN_NAMED_KEY(filterAnd, "and");
QUORIN_NAMED_KEY(filterOperator, "operator");

// Libraries and their folders.
QUORIN_KEY(idlibrary);
QUORIN_KEY(LibraryId);
QUORIN_KEY(libraries);
QUORIN_KEY(Library);
QUORIN_KEY(paths);
QUORIN_KEY(PathId);
QUORIN_KEY(path);
QUORIN_KEY(name);
QUORIN_KEY(autoscan);
QUORIN_KEY(scanType);
QUORIN_KEY(scraperType);
QUORIN_KEY(language);
QUORIN_KEY(update);
QUORIN_KEY(rebuild);
QUORIN_KEY(deletePath);

// The server itself.
QUORIN_KEY(Finished);
QUORIN_KEY(ScraperFinished);
QUORIN_KEY(ip);
QUORIN_KEY(port);
QUORIN_KEY(username);
QUORIN_KEY(password);
QUORIN_KEY(setResult);
QUORIN_KEY(CancelProxy);
QUORIN_KEY(movieServer);

// Films, shows and videos.
QUORIN_KEY(idFile);
QUORIN_KEY(idGroup);
QUORIN_KEY(idMediaGroup);
QUORIN_KEY(idTvshow);
QUORIN_KEY(idtvshow);
QUORIN_KEY(idSeason);
QUORIN_KEY(iSeason);
QUORIN_KEY(iseason);
QUORIN_KEY(iEpisode);
QUORIN_KEY(iepisode);
QUORIN_KEY(title);
QUORIN_KEY(rating);
QUORIN_KEY(runtime);
QUORIN_KEY(director);
QUORIN_KEY(cast);
QUORIN_KEY(genre);
QUORIN_KEY(overview);
QUORIN_KEY(poster);
QUORIN_KEY(backdrop);
QUORIN_KEY(year);
QUORIN_KEY(fileCount);
QUORIN_KEY(movieTotal);
QUORIN_KEY(movieList);
QUORIN_KEY(movieDetils);
QUORIN_KEY(groups);
QUORIN_KEY(groupDetails);
QUORIN_KEY(tvshowList);
QUORIN_KEY(seasonList);
QUORIN_KEY(seasonDetils);
QUORIN_KEY(episodeList);
QUORIN_KEY(episodeDetils);
QUORIN_KEY(videoList);
QUORIN_KEY(avList);
QUORIN_KEY(countries);
QUORIN_KEY(genres);
QUORIN_KEY(years);
QUORIN_KEY(deleteFile);

// Searches and what the user chose of them.
QUORIN_KEY(strScraperName);
QUORIN_KEY(strScraperYear);
QUORIN_KEY(strSearchFrom);
QUORIN_KEY(strScraperFrom);
QUORIN_KEY(strScraperId);
QUORIN_KEY(strSourceMediaType);
QUORIN_KEY(strMediaId);
QUORIN_KEY(releaseDate);
QUORIN_KEY(SearchMovieList);
QUORIN_KEY(SearchTvsList);
QUORIN_KEY(modified);

// Music.
QUORIN_KEY(artist);
QUORIN_KEY(album);
QUORIN_KEY(suffix);
QUORIN_KEY(cuePath);
QUORIN_KEY(iTrack);
QUORIN_KEY(iLikeFlag);
QUORIN_KEY(idAlbum);
QUORIN_KEY(localPath);
QUORIN_KEY(idPlayList);
QUORIN_KEY(idPlaylist);
QUORIN_KEY(musicTotal);
QUORIN_KEY(musicList);
QUORIN_KEY(playList);
QUORIN_KEY(albums);
QUORIN_KEY(artistList);
QUORIN_KEY(fix);
QUORIN_KEY(edite);
QUORIN_KEY(add);
QUORIN_KEY(ablum_name);
QUORIN_KEY(duration);
QUORIN_KEY(artists);
QUORIN_NAMED_KEY(deleted, "delete");

#undef QUORIN_KEY
#undef QUORIN_NAMED_KEY

} // namespace Keys
