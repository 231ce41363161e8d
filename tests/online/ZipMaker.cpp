#include "ZipMaker.h"

#include <zlib.h>

namespace {

constexpr quint16 kDeflate = 8;
constexpr quint16 kStored = 0;
constexpr quint16 kNeeded = 20;
constexpr quint16 kMadeOnUnix = (3 << 8) | kNeeded;
constexpr quint16 kUtf8Names = 1 << 11;

template<class T>
QByteArray little(T value)
{
    QByteArray bytes;
    for (unsigned i = 0; i < sizeof(T); ++i)
        bytes.append(char((value >> (8 * i)) & 0xff));
    return bytes;
}

QByteArray deflated(const QByteArray &bytes)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    QByteArray out(int(deflateBound(&stream, uLong(bytes.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    deflate(&stream, Z_FINISH);
    out.truncate(int(stream.total_out));
    deflateEnd(&stream);
    return out;
}

// What the local header and the list have in common, from the needed version to the length of the extra
// field.
QByteArray facts(const ZipMember &member, quint16 method, const QByteArray &packed)
{
    const auto sum = quint32(
        crc32(0, reinterpret_cast<const Bytef *>(member.bytes.constData()), uInt(member.bytes.size())));
    return little(kNeeded) + little(kUtf8Names) + little(method) + little<quint32>(0) + little(sum)
           + little(quint32(packed.size())) + little(quint32(member.bytes.size()))
           + little(quint16(member.name.size())) + little<quint16>(0);
}

} // namespace

QByteArray makeZip(const QList<ZipMember> &members, ZipPacking packing)
{
    const quint16 method = packing == ZipPacking::Deflated ? kDeflate : kStored;
    QByteArray files;
    QByteArray list;
    for (const ZipMember &member : members) {
        const QByteArray packed = method == kDeflate ? deflated(member.bytes) : member.bytes;
        const QByteArray common = facts(member, method, packed);
        list += "PK\1\2" + little(kMadeOnUnix) + common + little<quint16>(0) + little<quint16>(0)
                + little<quint16>(0) + little(quint32(member.mode << 16)) + little(quint32(files.size()))
                + member.name;
        files += "PK\3\4" + common + member.name + packed;
    }
    const auto count = little(quint16(members.size()));
    return files + list + "PK\5\6" + little<quint32>(0) + count + count + little(quint32(list.size()))
           + little(quint32(files.size())) + little<quint16>(0);
}
