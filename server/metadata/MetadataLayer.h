// The whole of the metadata, put together: the one object that the program makes.
//
// Owns the clock, the HTTP layer, the provider, the service for requests and the round for scans. The
// libraries must outlive it. Made and destroyed by the main thread, when no request and no round runs.
#pragma once

#include "MetadataRound.h"
#include "MetadataService.h"
#include "SystemClock.h"
#include "TmdbProvider.h"

class DataFolder;

class MetadataLayer final {
public:
    MetadataLayer(const DataFolder &folder, const ServerConfiguration &configuration, IVideoLibrary &videos,
                  IMusicLibrary &music, MetadataService::SongReader readSong);

    [[nodiscard]] MetadataService &service() { return m_service; }
    [[nodiscard]] MetadataRound &round() { return m_round; }

    // From any thread: requests and the round that wait for the network end within a second, later ones at
    // once.
    void shutDown();

private:
    SystemClock m_clock;
    MetadataHttp m_http;
    TmdbProvider m_provider;
    MetadataPictures m_pictures;
    MetadataService m_service;
    MetadataRound m_round;
};
