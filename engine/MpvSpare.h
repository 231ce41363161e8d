// Keeps one instance of libmpv ready, so that a play that begins need not wait for its set-up.
//
// Owned by the tool, which has one to spare from its own set-up. Any thread.
#pragma once

#include "MpvHandle.h"

#include <memory>
#include <mutex>

class MpvSpare final {
public:
    // options: what the instance was made with.
    void keep(std::unique_ptr<MpvHandle> handle, MpvMap options);

    // An instance with these options: the spare one, changed where it differs, or a new one. Null where
    // libmpv refuses.
    std::unique_ptr<MpvHandle> take(const MpvMap &options);

    // A property of the spare instance, nothing when there is none. Waits for libmpv.
    [[nodiscard]] MpvValue read(const std::string &name);

private:
    std::mutex m_mutex;
    std::unique_ptr<MpvHandle> m_handle;
    MpvMap m_options;
};
