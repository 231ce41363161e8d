// Makes items of a folder of the video library: what names and sidecars say, with the length and the picture
// that the files hold.
//
// A file that is unchanged is not opened again. Keeps no state.
#pragma once

#include "FolderWork.h"
#include "SidecarFiles.h"

#include "sidecars/Identifier.h"

class VideoFolder final : public IFolderReader {
public:
    // adult: everything in it is adult content.
    explicit VideoFolder(bool adult)
        : m_adult(adult)
    {
    }

    VideoFolder(const VideoFolder &) = delete;
    VideoFolder &operator=(const VideoFolder &) = delete;

    [[nodiscard]] QByteArray kind() const override
    {
        return m_adult ? QByteArrayLiteral("adult") : QByteArray();
    }
    void prepare(FolderWork &work, const StoredFolder &stored) const override;
    void finish(FolderWork &work) const override;

private:
    bool m_adult;
    SidecarFiles m_files;
    Identifier m_identifier{m_files};
};
