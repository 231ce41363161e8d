#include "BluRayMaker.h"

#include "DiscWorkshop.h"
#include "TestDiscs.h"
#include "TransportClip.h"

#include <QDir>

namespace {

constexpr std::uint16_t VideoPid = 0x1011;
constexpr std::uint16_t FirstAudioPid = 0x1100;
// The encoder times its streams by the video.
constexpr std::uint16_t PcrPid = VideoPid;
constexpr std::uint16_t MapPid = 0x0100;
constexpr const char *Languages[] = {"eng", "deu"};
constexpr int AudioCount = 2;
// Where the first variable block of a file may start, behind the table of addresses.
constexpr int HeaderSize = 40;

// Bytes of a file, written front to back; lengths and addresses are patched in later.
class Bytes {
public:
    Bytes &text(const char *value)
    {
        m_bytes.append(value);
        return *this;
    }
    Bytes &number(std::uint64_t value, int size)
    {
        for (int shift = (size - 1) * 8; shift >= 0; shift -= 8)
            m_bytes.append(char(value >> shift));
        return *this;
    }
    Bytes &zeros(int count)
    {
        m_bytes.append(count, '\0');
        return *this;
    }
    Bytes &zerosUpTo(int offset) { return zeros(offset - m_bytes.size()); }
    Bytes &append(const QByteArray &bytes)
    {
        m_bytes.append(bytes);
        return *this;
    }
    // A block behind its own length.
    Bytes &block(const Bytes &content, int lengthSize)
    {
        number(std::uint64_t(content.size()), lengthSize);
        return append(content.m_bytes);
    }
    int size() const { return m_bytes.size(); }
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

Bytes videoAttributes()
{
    // H.264, 720p at 25 pictures a second, 16:9
    return Bytes().number(0x1b, 1).number(0x53, 1).number(0x30, 1).zeros(2);
}

Bytes audioAttributes(int index)
{
    // AC-3, stereo at 48 kHz
    return Bytes().number(0x81, 1).number(0x31, 1).text(Languages[index]);
}

bool encodeClip(const QString &file, int durationMs, const QString &pattern)
{
    const QString arguments =
        QStringLiteral(
            "-v error -y -nostdin -f lavfi -i %1=size=%2x%3:rate=25:duration=%4 "
            "-f lavfi -i sine=frequency=440:sample_rate=48000:duration=%4 "
            "-f lavfi -i sine=frequency=880:sample_rate=48000:duration=%4 "
            "-map 0:v -map 1:a -map 2:a -c:v libx264 -preset veryfast -pix_fmt yuv420p -g 25 -bf 0 "
            "-threads 1 -c:a ac3 -b:a 128k -ac 2 -f mpegts -mpegts_m2ts_mode 1 -muxdelay 0 -muxpreload 0")
            .arg(pattern)
            .arg(TestDiscs::BluRayWidth)
            .arg(TestDiscs::BluRayHeight)
            .arg(durationMs / 1000.0);
    return DiscWorkshop::run(QStringLiteral("ffmpeg"), arguments.split(QLatin1Char(' ')) + QStringList(file));
}

QByteArray clipInformation(const TransportClip &clip, const QByteArray &version)
{
    Bytes clipInfo;
    clipInfo.zeros(2).number(1, 1).number(1, 1).zeros(4).number(4000000, 4).number(clip.packetCount, 4);
    clipInfo.zeros(128).number(30, 2).number(0x80, 1).text("HDMV").zeros(25);

    Bytes sequence;
    sequence.zeros(1).number(1, 1).number(0, 4).number(1, 1).number(0, 1);
    sequence.number(PcrPid, 2).number(0, 4).number(clip.firstPts / 2, 4).number(clip.endPts / 2, 4);

    Bytes program;
    program.zeros(1).number(1, 1).number(0, 4).number(MapPid, 2).number(1 + AudioCount, 1).number(0, 1);
    program.number(VideoPid, 2).block(videoAttributes().zeros(16), 1);
    for (int i = 0; i < AudioCount; ++i)
        program.number(std::uint64_t(FirstAudioPid + i), 2).block(audioAttributes(i).zeros(16), 1);

    // Entry points: a coarse entry holds the high bits of time and packet, the fine ones after it the low
    // bits.
    Bytes coarse;
    Bytes fine;
    int coarseCount = 0;
    std::uint64_t lastTime = ~0ull;
    std::uint32_t lastPacket = ~0u;
    for (int i = 0; i < clip.entryPoints.size(); ++i) {
        const TransportClip::EntryPoint &point = clip.entryPoints[i];
        const std::uint64_t time = (point.pts >> 19) & 0x3fff;
        const std::uint32_t packet = point.packet >> 17;
        if (time != lastTime || packet != lastPacket) {
            coarse.number((std::uint64_t(i) << 14) | time, 4).number(point.packet, 4);
            lastTime = time;
            lastPacket = packet;
            ++coarseCount;
        }
        fine.number((1u << 28) | (((point.pts >> 9) & 0x7ffu) << 17) | (point.packet & 0x1ffffu), 4);
    }
    Bytes map;
    constexpr int MapStart = 2 + 12;
    map.zeros(1).number(1, 1).number(VideoPid, 2);
    map.number((std::uint64_t(1) << 34) | (std::uint64_t(coarseCount) << 18)
                   | std::uint64_t(clip.entryPoints.size()),
               6);
    map.number(MapStart, 4)
        .number(std::uint64_t(4 + coarse.size()), 4)
        .append(coarse.bytes())
        .append(fine.bytes());
    Bytes points;
    points.number(1, 2).append(map.bytes());

    Bytes blocks;
    blocks.block(clipInfo, 4);
    const int sequenceStart = HeaderSize + blocks.size();
    blocks.block(sequence, 4);
    const int programStart = HeaderSize + blocks.size();
    blocks.block(program, 4);
    const int pointsStart = HeaderSize + blocks.size();
    blocks.block(points, 4);
    const int marksStart = HeaderSize + blocks.size();
    blocks.number(0, 4);

    Bytes file;
    file.text("HDMV")
        .append(version)
        .number(std::uint64_t(sequenceStart), 4)
        .number(std::uint64_t(programStart), 4);
    file.number(std::uint64_t(pointsStart), 4).number(std::uint64_t(marksStart), 4).number(0, 4);
    return file.zerosUpTo(HeaderSize).append(blocks.bytes()).bytes();
}

QByteArray playlist(const TransportClip &clip, const char *clipName, int chapters, const QByteArray &version)
{
    Bytes application;
    application.zeros(1).number(1, 1).zeros(2).zeros(8).number(0x4000, 2);

    Bytes streams;
    streams.zeros(2).number(1, 1).number(AudioCount, 1).zeros(5 + 5);
    streams.block(Bytes().number(1, 1).number(VideoPid, 2).zeros(6), 1).block(videoAttributes(), 1);
    for (int i = 0; i < AudioCount; ++i) {
        streams.block(Bytes().number(1, 1).number(std::uint64_t(FirstAudioPid + i), 2).zeros(6), 1);
        streams.block(audioAttributes(i), 1);
    }

    Bytes item;
    item.text(clipName).text("M2TS").number(1, 2).number(0, 1);
    item.number(clip.firstPts / 2, 4).number(clip.endPts / 2, 4).zeros(8).zeros(1).zeros(1).zeros(2);
    item.block(streams, 2);

    Bytes list;
    list.zeros(2).number(1, 2).number(0, 2).block(item, 2);

    Bytes marks;
    marks.number(std::uint64_t(chapters), 2);
    for (int i = 0; i < chapters; ++i) {
        const std::uint64_t time = clip.firstPts / 2 + std::uint64_t(i) * TestDiscs::ChapterMs * 45;
        marks.zeros(1).number(1, 1).number(0, 2).number(time, 4).number(0xffff, 2).number(0, 4);
    }

    Bytes blocks;
    blocks.block(application, 4);
    const int listStart = HeaderSize + blocks.size();
    blocks.block(list, 4);
    const int marksStart = HeaderSize + blocks.size();
    blocks.block(marks, 4);

    Bytes file;
    file.text("MPLS")
        .append(version)
        .number(std::uint64_t(listStart), 4)
        .number(std::uint64_t(marksStart), 4);
    return file.number(0, 4).zerosUpTo(HeaderSize).append(blocks.bytes()).bytes();
}

QByteArray titleIndex(const QByteArray &version)
{
    const auto object = [](int number) {
        return Bytes().number(0x40000000, 4).number(0, 2).number(std::uint64_t(number), 2).zeros(4);
    };
    Bytes application;
    application.zeros(1).number(0x63, 1).zeros(32);
    Bytes indexes;
    // First play and top menu start the main title.
    indexes.append(object(0).bytes()).append(object(0).bytes()).number(TestDiscs::TitleCount, 2);
    for (int i = 0; i < TestDiscs::TitleCount; ++i)
        indexes.append(object(i).bytes());

    Bytes blocks;
    blocks.block(application, 4);
    const int indexStart = HeaderSize + blocks.size();
    blocks.block(indexes, 4);
    Bytes file;
    file.text("INDX").append(version).number(std::uint64_t(indexStart), 4).number(0, 4);
    return file.zerosUpTo(HeaderSize).append(blocks.bytes()).bytes();
}

QByteArray movieObjects(const QByteArray &version)
{
    constexpr std::uint32_t PlayPlaylist = 0x22800000;
    Bytes objects;
    objects.zeros(4).number(TestDiscs::TitleCount, 2);
    for (int i = 0; i < TestDiscs::TitleCount; ++i) {
        objects.number(0, 2).number(1, 2);
        objects.number(PlayPlaylist, 4).number(std::uint64_t(i), 4).number(0, 4);
    }
    Bytes file;
    file.text("MOBJ").append(version).number(0, 4).zerosUpTo(HeaderSize).block(objects, 4);
    return file.bytes();
}

bool addTitle(const QString &bdmv, const char *name, int durationMs, int chapters, const QString &pattern,
              const QByteArray &version)
{
    const QString stream = QStringLiteral("%1/STREAM/%2.m2ts").arg(bdmv, QLatin1String(name));
    TransportClip clip;
    return encodeClip(stream, durationMs, pattern) && TransportClip::read(stream, clip)
           && DiscWorkshop::write(QStringLiteral("%1/CLIPINF/%2.clpi").arg(bdmv, QLatin1String(name)),
                                  clipInformation(clip, version))
           && DiscWorkshop::write(QStringLiteral("%1/PLAYLIST/%2.mpls").arg(bdmv, QLatin1String(name)),
                                  playlist(clip, name, chapters, version));
}

} // namespace

bool BluRayMaker::make(const QString &folder, const QByteArray &version)
{
    const QString bdmv = folder + QStringLiteral("/BDMV");
    for (const char *part : {"/STREAM", "/CLIPINF", "/PLAYLIST", "/AUXDATA", "/BACKUP", "/META"}) {
        if (!QDir().mkpath(bdmv + QLatin1String(part)))
            return DiscWorkshop::fail(QStringLiteral("cannot make %1").arg(bdmv));
    }
    return addTitle(bdmv, "00000", TestDiscs::MainTitleMs, TestDiscs::MainTitleChapters,
                    QStringLiteral("testsrc2"), version)
           && addTitle(bdmv, "00001", TestDiscs::ShortTitleMs, 1, QStringLiteral("smptebars"), version)
           && DiscWorkshop::write(bdmv + "/index.bdmv", titleIndex(version))
           && DiscWorkshop::write(bdmv + "/MovieObject.bdmv", movieObjects(version));
}

bool BluRayMaker::pack(const QString &folder, const QString &image)
{
    return DiscWorkshop::run(QStringLiteral("genisoimage"),
                             {"-quiet", "-udf", "-iso-level", "3", "-allow-lowercase", "-allow-multidot",
                              "-V", TestDiscs::BluRayVolumeName, "-o", image, folder});
}
