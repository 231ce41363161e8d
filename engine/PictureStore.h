// Keeps the pictures that were handed out until they come back. Every operation may be called from any
// thread.
#pragma once

#include "Picture.h"

#include "contract/VDRecords.h"

#include <memory>
#include <mutex>
#include <unordered_map>

class PictureStore final {
public:
    // Never null.
    [[nodiscard]] const libvp::VDPicture *add(Picture picture);
    // What was never added, or is gone already, is ignored.
    void release(const libvp::VDPicture *picture);
    [[nodiscard]] std::size_t count() const;

private:
    struct Entry {
        Picture picture;
        libvp::VDPicture record;
    };

    mutable std::mutex m_mutex;
    std::unordered_map<const libvp::VDPicture *, std::unique_ptr<Entry>> m_entries;
};
