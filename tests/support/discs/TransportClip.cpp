#include "TransportClip.h"

#include "DiscWorkshop.h"

#include <QFile>

#include <algorithm>

namespace {

constexpr int PacketSize = 192;
constexpr int VideoPid = 0x1011;
constexpr std::uint64_t FrameTicks = 90000 / 25;

struct Packet {
    explicit Packet(const uchar *bytes)
        : ts(bytes + 4)
    {
    }
    bool valid() const { return ts[0] == 0x47; }
    int pid() const { return ((ts[1] & 0x1f) << 8) | ts[2]; }
    bool startsUnit() const { return ts[1] & 0x40; }
    bool hasAdaptation() const { return ts[3] & 0x20; }
    bool isRandomAccess() const { return hasAdaptation() && ts[4] > 0 && (ts[5] & 0x40); }
    const uchar *payload() const { return ts + 4 + (hasAdaptation() ? ts[4] + 1 : 0); }

    const uchar *ts;
};

bool readPts(const uchar *pes, const uchar *end, std::uint64_t &pts)
{
    if (pes + 14 > end || pes[0] != 0 || pes[1] != 0 || pes[2] != 1 || !(pes[7] & 0x80))
        return false;
    pts = (std::uint64_t(pes[9] & 0x0e) << 29) | (std::uint64_t(pes[10]) << 22)
          | (std::uint64_t(pes[11] & 0xfe) << 14) | (std::uint64_t(pes[12]) << 7) | (pes[13] >> 1);
    return true;
}

} // namespace

bool TransportClip::read(const QString &file, TransportClip &clip)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return DiscWorkshop::fail(QStringLiteral("cannot read %1").arg(file));
    const QByteArray bytes = input.readAll();
    const auto *data = reinterpret_cast<const uchar *>(bytes.constData());
    clip = {};
    clip.packetCount = std::uint32_t(bytes.size() / PacketSize);
    clip.firstPts = ~std::uint64_t(0);
    for (std::uint32_t number = 0; number < clip.packetCount; ++number) {
        const Packet packet(data + std::size_t(number) * PacketSize);
        std::uint64_t pts = 0;
        if (!packet.valid() || packet.pid() != VideoPid || !packet.startsUnit()
            || !readPts(packet.payload(), packet.ts + 188, pts))
            continue;
        clip.firstPts = std::min(clip.firstPts, pts);
        clip.endPts = std::max(clip.endPts, pts + FrameTicks);
        if (packet.isRandomAccess())
            clip.entryPoints.append({pts, number});
    }
    if (clip.entryPoints.isEmpty())
        return DiscWorkshop::fail(QStringLiteral("no entry point in %1").arg(file));
    return true;
}
