// Archives for tests, written entry by entry as the format's own document (APPNOTE.TXT) lays them out, so
// that they may hold what no packer would write.
#pragma once

#include <QByteArray>
#include <QList>

struct ZipMember {
    QByteArray name;
    QByteArray bytes;
    quint32 mode{0}; // of a Unix file; 0: none is told
};

enum class ZipPacking { Deflated, Stored };

[[nodiscard]] QByteArray makeZip(const QList<ZipMember> &members, ZipPacking packing = ZipPacking::Deflated);
