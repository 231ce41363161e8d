#include "DvdMaker.h"

#include "DiscWorkshop.h"
#include "TestDiscs.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

namespace {

// One title as a program stream with two sound tracks.
bool encodeTitle(const QString &file, int durationMs, const QString &pattern)
{
    const QString arguments =
        QStringLiteral(
            "-v error -y -nostdin -f lavfi -i %1=size=%2x%3:rate=25:duration=%4 "
            "-f lavfi -i sine=frequency=440:sample_rate=48000:duration=%4 "
            "-f lavfi -i sine=frequency=880:sample_rate=48000:duration=%4 "
            "-map 0:v -map 1:a -map 2:a -target pal-dvd -s %2x%3 -b:v 900k -g 12 -c:a ac3 -b:a 128k "
            "-ac 2 -threads 1")
            .arg(pattern)
            .arg(TestDiscs::DvdWidth)
            .arg(TestDiscs::DvdHeight)
            .arg(durationMs / 1000.0);
    return DiscWorkshop::run(QStringLiteral("ffmpeg"), arguments.split(QLatin1Char(' ')) + QStringList(file));
}

// The subtitle's picture may have four colours, the transparent ground among them.
bool drawSubtitle(const QString &file)
{
    QImage picture(TestDiscs::DvdWidth, TestDiscs::DvdHeight, QImage::Format_Indexed8);
    picture.setColorTable({qRgba(0, 0, 0, 0), qRgba(255, 255, 255, 255)});
    picture.fill(0);
    for (int y = 240; y < 256; ++y) {
        for (int x = 100; x < 250; ++x)
            picture.setPixel(x, y, 1);
    }
    return picture.save(file, "PNG") || DiscWorkshop::fail(QStringLiteral("cannot save the subtitle"));
}

bool addSubtitle(const QString &work, const QString &from, const QString &to)
{
    if (!drawSubtitle(work + "/subtitle.png"))
        return false;
    const QByteArray description = "<subpictures format=\"PAL\"><stream>"
                                   "<spu start=\"00:00:01.00\" end=\"00:00:04.00\" image=\""
                                   + QFile::encodeName(work)
                                   + "/subtitle.png\" force=\"no\"/></stream></subpictures>";
    if (!DiscWorkshop::write(work + "/subtitle.xml", description))
        return false;
    // spumux is a filter between standard input and output.
    return DiscWorkshop::run(QStringLiteral("sh"), {"-c", "exec spumux -P \"$1\" <\"$2\" >\"$3\"", "sh",
                                                    work + "/subtitle.xml", from, to});
}

QByteArray structure(const QString &work, const QString &folder)
{
    const QByteArray place = QFile::encodeName(work);
    return "<dvdauthor dest=\"" + QFile::encodeName(folder)
           + "\"><vmgm/><titleset><titles>"
             "<video format=\"pal\" aspect=\"4:3\"/><audio lang=\"en\"/><audio lang=\"de\"/>"
             "<subpicture lang=\"en\"/>"
             "<pgc><vob file=\""
           + place + "/main.mpg\" chapters=\"0,0:05,0:10,0:15\"/></pgc><pgc><vob file=\"" + place
           + "/short.mpg\" chapters=\"0\"/></pgc></titles></titleset></dvdauthor>";
}

} // namespace

bool DvdMaker::make(const QString &folder)
{
    const QString work = folder + QStringLiteral("-work");
    QDir(work).removeRecursively();
    if (!QDir().mkpath(work))
        return DiscWorkshop::fail(QStringLiteral("cannot make %1").arg(work));
    qputenv("VIDEO_FORMAT", "PAL");
    const bool made =
        encodeTitle(work + "/plain.mpg", TestDiscs::MainTitleMs, QStringLiteral("testsrc2"))
        && encodeTitle(work + "/short.mpg", TestDiscs::ShortTitleMs, QStringLiteral("smptebars"))
        && addSubtitle(work, work + "/plain.mpg", work + "/main.mpg")
        && DiscWorkshop::write(work + "/dvd.xml", structure(work, folder))
        && DiscWorkshop::run(QStringLiteral("dvdauthor"), {"-x", work + "/dvd.xml"});
    QDir(work).removeRecursively();
    return made;
}

bool DvdMaker::pack(const QString &folder, const QString &image)
{
    return DiscWorkshop::run(QStringLiteral("genisoimage"),
                             {"-quiet", "-dvd-video", "-V", TestDiscs::DvdVolumeName, "-o", image, folder});
}
