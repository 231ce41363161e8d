// Scans of the media server, from the request to the end that its heartbeat tells: the first one of 5,000
// tagged songs against a bare read of their tags and against another server, the first one of 1,000 videos
// against a bare opening of each, and one of 20,000 unchanged files against a listing of them with size and
// time.
//
//   bench_scan SERVER_PROGRAM [PAIRS]
#include "ChildProcess.h"
#include "LibraryServer.h"
#include "MediaTree.h"
#include "Report.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

#include <taglib/fileref.h>
#include <taglib/tag.h>

#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int Songs = 5000;
constexpr int Videos = 1000;
constexpr int MoreSongs = 15000;
constexpr int FirstPort = 32180;
constexpr int PeerPort = 32179;
constexpr int PeerMs = 10 * 60 * 1000;
constexpr unsigned long PauseMs = 5;
constexpr double TagLimit = 1.5;
constexpr double PeerLimit = 1;
constexpr double OpenLimit = 1.5;
constexpr double FindLimit = 3;

double ms(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "benchmark: %s\n", what);
    std::exit(1);
}

double readTags(const QStringList &files)
{
    QElapsedTimer timer;
    timer.start();
    unsigned int years = 0;
    for (const QString &path : files) {
        const TagLib::FileRef file(path.toUtf8().constData());
        require(!file.isNull() && !file.tag()->title().isEmpty(), "a song without tags");
        years += file.tag()->year();
    }
    require(years > 0, "songs without years");
    return ms(timer);
}

double openVideos(const QStringList &files)
{
    QElapsedTimer timer;
    timer.start();
    for (const QString &path : files) {
        AVFormatContext *context = nullptr;
        require(avformat_open_input(&context, path.toUtf8().constData(), nullptr, nullptr) >= 0,
                "a video not opened");
        require(avformat_find_stream_info(context, nullptr) >= 0, "a video without streams");
        avformat_close_input(&context);
    }
    return ms(timer);
}

double listWithFind(const QString &folder)
{
    QElapsedTimer timer;
    timer.start();
    QProcess find;
    find.setStandardOutputFile(QProcess::nullDevice());
    find.start(QStringLiteral("find"), {folder, QStringLiteral("-type"), QStringLiteral("f"),
                                        QStringLiteral("-printf"), QStringLiteral("%s %T@\n")});
    require(find.waitForFinished(-1) && find.exitCode() == 0, "find failed");
    return ms(timer);
}

// Until its log tells the end. It writes each song's row on its own, as it is meant to.
double scanWithPeer(const QString &music)
{
    QTemporaryDir home;
    const QString configuration = home.filePath(QStringLiteral("peer.conf"));
    QFile file(configuration);
    require(file.open(QIODevice::WriteOnly), "no configuration for the other server");
    file.write("media_dir=A," + music.toUtf8() + "\nport=" + QByteArray::number(PeerPort)
               + "\ndb_dir=" + home.path().toUtf8() + "\nlog_dir=" + home.path().toUtf8()
               + "\nlog_level=general,scanner=info\n" + "network_interface=lo\ninotify=no\n");
    file.close();
    QElapsedTimer timer;
    timer.start();
    ChildProcess peer({"minidlnad", "-S", "-R", "-f", configuration.toStdString(), "-P",
                       home.filePath(QStringLiteral("pid")).toStdString()},
                      {});
    while (timer.elapsed() < PeerMs && peer.isRunning()) {
        QFile log(home.filePath(QStringLiteral("minidlna.log")));
        if (log.open(QIODevice::ReadOnly) && log.readAll().contains(" finished ("))
            return ms(timer);
        QThread::msleep(PauseMs);
    }
    require(false, "the other server did not end its scan");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    require(argc > 1, "usage: bench_scan SERVER_PROGRAM [PAIRS]");
    const QString program = QString::fromLocal8Bit(argv[1]);
    const int pairs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 3;
    av_log_set_level(AV_LOG_QUIET);

    QTemporaryDir tree;
    const QString music = tree.filePath(QStringLiteral("music"));
    const QString more = tree.filePath(QStringLiteral("more"));
    const QString films = tree.filePath(QStringLiteral("films"));
    const QStringList songs = MediaTree::makeMusic(music, Songs);
    const QStringList videos = MediaTree::makeVideos(films, Videos);
    (void)MediaTree::makeMusic(more, MoreSongs);

    std::vector<double> ours[3];
    std::vector<double> tags;
    std::vector<double> peer;
    std::vector<double> opened;
    std::vector<double> found;
    for (int round = 0; round < pairs; ++round) {
        // What the trees and the last side still have to write to disk is not for the next one to wait for.
        ::sync();
        tags.push_back(readTags(songs));
        peer.push_back(scanWithPeer(music));
        opened.push_back(openVideos(videos));
        ::sync();

        QTemporaryDir data;
        LibraryServer server(program, data.path(), FirstPort + round);
        QElapsedTimer timer;
        timer.start();
        server.addMusic(music);
        server.waitForScan();
        ours[0].push_back(ms(timer));
        require(server.songs() == Songs, "songs are missing");

        timer.start();
        server.addVideos(films);
        server.waitForScan();
        ours[1].push_back(ms(timer));
        require(server.videos() == Videos, "videos are missing");

        server.addMusic(more);
        server.waitForScan();
        timer.start();
        server.updateMusic();
        server.waitForScan();
        ours[2].push_back(ms(timer));
        found.push_back(listWithFind(music) + listWithFind(more));
    }
    bool kept = reportRatio("first scan, 5,000 songs, against bare tags", "ms", ours[0], tags, TagLimit);
    kept &= reportRatio("the same against another server", "ms", ours[0], peer, PeerLimit);
    kept &= reportRatio("first scan, 1,000 videos, against opening", "ms", ours[1], opened, OpenLimit);
    kept &= reportRatio("20,000 files unchanged, against find", "ms", ours[2], found, FindLimit);
    return kept ? 0 : 1;
}
