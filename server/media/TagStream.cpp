#include "TagStream.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

// More than the largest picture that is kept, with its tag around it.
constexpr qint64 LongestRead = 24 * 1024 * 1024;
// Frames of chapters hold frames; each level costs the parser a few hundred bytes of stack.
constexpr int MostChapterFrames = 2000;
constexpr qint64 SmallestChapterFrame = 26;
constexpr std::string_view ChapterFrames[] = {"CHAP", "CTOC"};
// So do atoms. Their heads are read one by one; a long recording in fragments has two of these for each.
constexpr int MostContainers = 4000;
constexpr unsigned int AtomHead = 8;
constexpr std::string_view Containers[] = {"moov", "udta", "mdia", "meta", "ilst", "stbl",
                                           "minf", "moof", "traf", "trak", "stsd"};

} // namespace

TagStream::TagStream(const QString &path, const MediaDeadline &deadline)
    : m_deadline(deadline)
    , m_name(path.toUtf8())
    , m_file(path)
{
}

long TagStream::length()
{
    // Loops of the parser that go on until the end of the file end here once the time is over.
    return m_deadline.isOver() ? 0 : long(m_file.size());
}

void TagStream::seek(long offset, Position from)
{
    const qint64 base = from == Beginning ? 0 : from == Current ? m_position : m_file.size();
    m_position = qMax<qint64>(0, base + offset);
}

TagLib::ByteVector TagStream::readBlock(unsigned long length)
{
    const qint64 left = m_file.size() - m_position;
    if (left <= 0 || length == 0 || m_deadline.isOver())
        return {};
    const qint64 wanted = qMin(qMin(left, LongestRead), length > LongestRead ? LongestRead : qint64(length));
    TagLib::ByteVector bytes(static_cast<unsigned int>(wanted), 0);
    qint64 done = 0;
    if (wanted > BlockSize) {
        done = qMax<qint64>(0, m_file.readAt(m_position, bytes.data(), wanted));
    } else {
        while (done < wanted) {
            const qint64 at = m_position + done;
            const Block &kept = block(at / BlockSize);
            const qint64 offset = at % BlockSize;
            const qint64 count = qMin(wanted - done, kept.bytes.size() - offset);
            if (count <= 0)
                break;
            std::memcpy(bytes.data() + done, kept.bytes.constData() + offset, size_t(count));
            done += count;
        }
    }
    m_position += done;
    bytes.resize(static_cast<unsigned int>(done));
    return isNestedTooDeep(bytes) ? TagLib::ByteVector() : bytes;
}

const TagStream::Block &TagStream::block(qint64 number)
{
    Block *oldest = m_blocks.data();
    for (Block &kept : m_blocks) {
        if (kept.number == number) {
            kept.used = ++m_uses;
            return kept;
        }
        if (kept.used < oldest->used)
            oldest = &kept;
    }
    oldest->number = number;
    oldest->used = ++m_uses;
    // Not past the end: one more call of the system for each file would tell nothing but that.
    const qint64 begin = number * BlockSize;
    const qint64 wanted = qBound<qint64>(0, m_file.size() - begin, BlockSize);
    oldest->bytes.resize(int(wanted));
    const qint64 count = m_file.readAt(begin, oldest->bytes.data(), wanted);
    oldest->bytes.truncate(int(qMax<qint64>(0, count)));
    return *oldest;
}

bool TagStream::isNestedTooDeep(const TagLib::ByteVector &bytes)
{
    if (bytes.size() == AtomHead) {
        const std::string_view name(bytes.data() + AtomHead / 2, AtomHead / 2);
        const bool isContainer =
            std::find(std::begin(Containers), std::end(Containers), name) != std::end(Containers);
        m_containers += isContainer;
        return isContainer && m_containers > MostContainers;
    }
    if (qint64(bytes.size()) < MostChapterFrames * SmallestChapterFrame)
        return false;
    const std::string_view text(bytes.data(), bytes.size());
    int found = 0;
    for (const std::string_view name : ChapterFrames) {
        for (std::size_t at = text.find(name); at != text.npos; at = text.find(name, at + name.size())) {
            if (++found > MostChapterFrames)
                return true;
        }
    }
    return false;
}
