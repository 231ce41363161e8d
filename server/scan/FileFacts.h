// What was read out of one media file, and the interface of what reads it.
#pragma once

#include "media/MediaDeadline.h"
#include "media/SoundTags.h"
#include "media/StreamFacts.h"

#include <QString>

struct FileTask {
    enum class Kind { Sound, Video };

    QString path;
    Kind kind{Kind::Sound};
    // The records of the folder that the file tells about: one, or the tracks of its CUE sheet.
    int firstRecord{0};
    int recordCount{1};
    int lastStartMs{0}; // where the last of several records begins in the file
};

struct FileFacts {
    // Without their pictures, which are in the cache already.
    SoundTags sound;
    StreamFacts stream;
    QString picture; // its key in the picture cache, empty without one
};

// Called from several threads at once.
class IFileReader {
public:
    virtual ~IFileReader() = default;
    [[nodiscard]] virtual FileFacts read(const FileTask &task, const MediaDeadline &deadline) = 0;
};
