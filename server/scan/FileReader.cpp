#include "FileReader.h"

#include <limits>

namespace {

QString take(PictureCache &cache, QByteArray &picture)
{
    const QString key = picture.isEmpty() ? QString() : cache.store(picture);
    picture.clear();
    return key;
}

} // namespace

FileFacts FileReader::read(const FileTask &task, const MediaDeadline &deadline)
{
    FileFacts facts;
    if (task.kind == FileTask::Kind::Video) {
        facts.stream = StreamFacts::read(task.path, deadline);
        facts.picture = take(m_pictures, facts.stream.picture);
        return facts;
    }
    facts.sound = SoundTags::read(task.path, deadline);
    facts.picture = take(m_pictures, facts.sound.cover);
    // A container that TagLib does not know may still tell its length.
    if (facts.sound.durationMs == 0 && !deadline.isOver()) {
        const StreamFacts stream = StreamFacts::read(task.path, deadline);
        facts.sound.durationMs = int(qMin<qint64>(stream.durationMs, std::numeric_limits<int>::max()));
    }
    return facts;
}
