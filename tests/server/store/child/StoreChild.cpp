// Changes a library as fast as it can, one user and one scan at a time, and says after each change of the
// user's that it stands. Arguments: the data folder. Ends by being killed.
#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "store/Database.h"
#include "store/LibraryRoots.h"
#include "store/MusicLibrary.h"
#include "store/ScanStore.h"

#include <QCoreApplication>

#include <cstdio>
#include <thread>

namespace {

ScannedFolder folderOf(int root, int number, int songs)
{
    ScannedFolder folder;
    folder.pathId = root;
    folder.path = QStringLiteral("/music/%1").arg(number);
    folder.fingerprint = QByteArray::number(number);
    for (int index = 0; index < songs; ++index) {
        ScannedSong song;
        song.path = folder.path + QStringLiteral("/%1.mp3").arg(index);
        song.stamp = {1000 + index, 5000 + number};
        song.title = QStringLiteral("Song %1").arg(index);
        song.artist = QStringLiteral("Artist");
        song.album = QStringLiteral("Album %1").arg(number);
        folder.songs << song;
    }
    return folder;
}

void say(const char *what, int id)
{
    std::printf("%s %d\n", what, id);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const DataFolder folder(QString::fromLocal8Bit(argv[1]));
    Database database(folder, ServerConfiguration());
    if (!database.open())
        return 1;
    LibraryRoots roots(database);
    ScanStore scans(database);
    MusicLibrary music(database);
    const int root = roots.addFolder(roots.musicLibraryId(), QStringLiteral("/music"), {});
    if (root <= 0 || !scans.store({folderOf(root, 0, 50)}))
        return 1;
    ListRequest all;
    all.end = 50;
    const QVector<SongRecord> songs = music.songs(all).rows;
    std::thread scan([&] {
        for (int number = 1; scans.store({folderOf(root, number, 20)}); ++number) {
        }
    });
    for (int index = 0;; ++index) {
        const int song = songs.at(index % songs.size()).idFile;
        PlaylistRecord playlist;
        playlist.title = QStringLiteral("List %1").arg(index);
        const int id = music.createPlaylist(playlist);
        if (id > 0)
            say("playlist", id);
        if (music.addToPlaylist(id, song))
            say("filled", id);
        if (music.setLiked(song, true))
            say("liked", song);
    }
}
