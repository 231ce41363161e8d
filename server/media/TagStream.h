// The bytes of a file as TagLib reads them, with every bound that a hostile file calls for: a deadline, a
// limit on what one read may ask for, and a look at what would nest so deep that the parser ran out of its
// stack.
//
// Small reads are answered from a few blocks that are kept, since tags are read in steps of some bytes at
// both ends of a file. Never writes. One thread.
#pragma once

#include "MediaDeadline.h"
#include "RegularFile.h"

#include <taglib/tiostream.h>

#include <array>

class TagStream final : public TagLib::IOStream {
public:
    TagStream(const QString &path, const MediaDeadline &deadline);

    TagLib::FileName name() const override { return m_name.constData(); }
    TagLib::ByteVector readBlock(unsigned long length) override;
    void writeBlock(const TagLib::ByteVector &) override {}
    void insert(const TagLib::ByteVector &, unsigned long, unsigned long) override {}
    void removeBlock(unsigned long, unsigned long) override {}
    bool readOnly() const override { return true; }
    bool isOpen() const override { return m_file.isOpen(); }
    void seek(long offset, Position from) override;
    void clear() override {}
    long tell() const override { return long(m_position); }
    long length() override;
    void truncate(long) override {}

private:
    static constexpr qint64 BlockSize = 4 * 1024;
    struct Block {
        qint64 number{-1};
        qint64 used{0};
        QByteArray bytes;
    };

    const Block &block(qint64 number);
    [[nodiscard]] bool isNestedTooDeep(const TagLib::ByteVector &bytes);

    const MediaDeadline &m_deadline;
    QByteArray m_name;
    RegularFile m_file;
    qint64 m_position{0};
    qint64 m_uses{0};
    int m_containers{0}; // atoms that hold atoms, as their heads were read
    std::array<Block, 4> m_blocks;
};
