#include "MediaTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/tag.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int FilesPerFolder = 50;
constexpr int FirstYear = 1950;
constexpr int Years = 70;

[[noreturn]] void giveUp(const QString &path)
{
    std::fprintf(stderr, "benchmark: cannot make %s\n", qPrintable(path));
    std::exit(1);
}

QByteArray encode(const QString &path, const QStringList &arguments)
{
    const QStringList all = QStringList{QStringLiteral("-v"), QStringLiteral("error"),
                                        QStringLiteral("-nostdin"), QStringLiteral("-y")}
                            + arguments + QStringList{path};
    QFile file(path);
    if (QProcess::execute(QStringLiteral("ffmpeg"), all) != 0 || !file.open(QIODevice::ReadOnly))
        giveUp(path);
    const QByteArray bytes = file.readAll();
    file.remove();
    return bytes;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(bytes) != bytes.size())
        giveUp(path);
}

void tag(const QString &path, int number)
{
    TagLib::MPEG::File file(path.toUtf8().constData(), false);
    TagLib::Tag *tag = file.ID3v2Tag(true);
    tag->setTitle("Song number " + std::to_string(number));
    tag->setArtist("Artist " + std::to_string(number / FilesPerFolder / 2));
    tag->setAlbum("Album " + std::to_string(number / FilesPerFolder));
    tag->setGenre(number % 2 ? "Rock" : "Jazz");
    tag->setTrack(unsigned(number % FilesPerFolder + 1));
    tag->setYear(unsigned(FirstYear + number % Years));
    if (!file.save())
        giveUp(path);
}

} // namespace

QStringList MediaTree::makeMusic(const QString &folder, int files)
{
    QDir().mkpath(folder);
    const QByteArray clip =
        encode(folder + QStringLiteral("/base.mp3"),
               QStringLiteral("-f lavfi -i sine=frequency=440 -t 2 -c:a libmp3lame -b:a 128k")
                   .split(QLatin1Char(' ')));
    QStringList paths;
    for (int i = 0; i < files; ++i) {
        const int album = i / FilesPerFolder;
        const QString path = QStringLiteral("%1/%2/%3/%4.mp3").arg(folder).arg(album / 20).arg(album).arg(i);
        write(path, clip);
        tag(path, i);
        paths << path;
    }
    return paths;
}

QStringList MediaTree::makeVideos(const QString &folder, int files)
{
    QDir().mkpath(folder);
    const QByteArray clip = encode(
        folder + QStringLiteral("/base.mkv"),
        QStringLiteral("-f lavfi -i testsrc=size=320x180:rate=25 -f lavfi -i sine -t 2 -c:v libx264 -c:a aac")
            .split(QLatin1Char(' ')));
    QStringList paths;
    for (int i = 0; i < files; ++i) {
        const QString name = QStringLiteral("Film %1 (%2)").arg(i).arg(FirstYear + i % Years);
        const QString path = QStringLiteral("%1/%2/%2.mkv").arg(folder, name);
        write(path, clip);
        paths << path;
    }
    return paths;
}
