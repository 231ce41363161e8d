// Opens media files: sound with TagLib, video with libavformat, and puts their pictures into the cache.
//
// Owns the cache. Any thread.
#pragma once

#include "FileFacts.h"

#include "media/PictureCache.h"

class FileReader final : public IFileReader {
public:
    explicit FileReader(const QString &imageFolder)
        : m_pictures(imageFolder)
    {
    }

    [[nodiscard]] FileFacts read(const FileTask &task, const MediaDeadline &deadline) override;

private:
    PictureCache m_pictures;
};
