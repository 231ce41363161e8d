#include "MetadataLayer.h"

#include "base/DataFolder.h"

namespace {

// Beside the answers of the provider: both are lost together, and the next round starts afresh.
constexpr char kLanguageFile[] = "/language";

} // namespace

MetadataLayer::MetadataLayer(const DataFolder &folder, const ServerConfiguration &configuration,
                             IVideoLibrary &videos, IMusicLibrary &music,
                             MetadataService::SongReader readSong)
    : m_http(configuration, folder.providerCacheFolder(), m_clock, MetadataHttp::Limits())
    , m_provider(m_http)
    , m_pictures(folder.imageFolder(), m_provider)
    , m_service(ProviderParts{videos, m_provider, m_pictures, m_clock}, music, m_http, std::move(readSong))
    , m_round(
          ProviderParts{videos, m_provider, m_pictures, m_clock}, [this] { return m_service.language(); },
          folder.providerCacheFolder() + QLatin1String(kLanguageFile))
{
}

void MetadataLayer::shutDown()
{
    m_service.shutDown();
    m_round.cancel();
}
