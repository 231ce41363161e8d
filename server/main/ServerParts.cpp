#include "ServerParts.h"

#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "media/SoundTags.h"
#include "metadata/MetadataLayer.h"
#include "scan/FileReader.h"
#include "scan/LibraryWatcher.h"
#include "scan/MusicFolder.h"
#include "scan/Scanner.h"
#include "scan/ServerTasks.h"
#include "scan/VideoFolder.h"
#include "store/ArtworkKeys.h"
#include "store/Database.h"
#include "store/LibraryRoots.h"
#include "store/MusicLibrary.h"
#include "store/ScanStore.h"
#include "store/VideoLibrary.h"

#include <optional>

namespace {

// The members stand in the order in which they need each other; each goes before what it uses.
class Parts final : public IServerParts {
public:
    Parts(const DataFolder &folder, const ServerConfiguration &configuration)
        : m_folder(folder)
        , m_database(folder, configuration)
        , m_roots(m_database)
        , m_scans(m_database)
        , m_videos(m_database)
        , m_music(m_database)
        , m_artwork(m_database)
        , m_metadata(folder, configuration, m_videos, m_music,
                     [this](int idFile) { return hasReadableTags(idFile); })
    {
    }

    bool open(QString &error) override
    {
        if (m_database.open())
            return true;
        error = QStringLiteral("see the log for what is wrong with %1").arg(m_folder.databasePath());
        return false;
    }

    void start() override
    {
        makeTasks();
        m_tasks->start();
    }

    void stop() override
    {
        m_metadata.shutDown();
        if (m_scanner)
            m_scanner->cancel();
    }

    ILibraryRoots &roots() override { return m_roots; }
    IVideoLibrary &videos() override { return m_videos; }
    IMusicLibrary &music() override { return m_music; }
    const IArtworkKeys &artwork() const override { return m_artwork; }
    IServerTasks &tasks() override
    {
        makeTasks();
        return *m_tasks;
    }
    IMetadataService &metadata() override { return m_metadata.service(); }

private:
    // Once the database is open: their threads read it.
    void makeTasks()
    {
        if (m_tasks)
            return;
        const Scanner::Readers readers{std::make_shared<MusicFolder>(), std::make_shared<VideoFolder>(false),
                                       std::make_shared<VideoFolder>(true)};
        m_scanner.emplace(m_roots, m_scans, readers, std::make_shared<FileReader>(m_folder.imageFolder()),
                          [this](const QString &entered) { m_watcher.watch(entered); });
        MetadataRound &round = m_metadata.round();
        MetadataService &service = m_metadata.service();
        m_tasks.emplace(
            m_roots, *m_scanner, m_watcher,
            ServerTasks::Metadata{[&round] { return round.run(); }, [&round] { round.cancel(); },
                                  [&round] { round.resume(); },
                                  [&service](const QString &language) { service.setLanguage(language); }});
    }

    bool hasReadableTags(int idFile) const
    {
        const SongRecord song = m_music.song(idFile);
        const QString file = song.cuePath.isEmpty() ? song.path : song.cuePath;
        return !file.isEmpty() && SoundTags::read(file, MediaDeadline()).wasRead;
    }

    const DataFolder m_folder;
    Database m_database;
    LibraryRoots m_roots;
    ScanStore m_scans;
    VideoLibrary m_videos;
    MusicLibrary m_music;
    ArtworkKeys m_artwork;
    MetadataLayer m_metadata;
    LibraryWatcher m_watcher;
    std::optional<Scanner> m_scanner;
    std::optional<ServerTasks> m_tasks;
};

} // namespace

std::unique_ptr<IServerParts> ServerParts::make(const DataFolder &folder,
                                                const ServerConfiguration &configuration)
{
    return std::make_unique<Parts>(folder, configuration);
}
