// A file that appears under its name only once it is whole: written beside it under another name, and gone
// without trace unless commit() has succeeded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

class BackupFile final {
public:
    BackupFile() = default;
    BackupFile(const BackupFile &) = delete;
    BackupFile &operator=(const BackupFile &) = delete;
    ~BackupFile() { discard(); }

    // False when the folder cannot be written, when the target exists and must not be replaced, and when
    // another backup, be it of another process, is writing the same one.
    bool open(const std::string &target, bool replace);
    // False when not all bytes could be written, for instance on a full disk.
    bool write(const void *data, std::size_t bytes);
    // Brings the bytes onto the disk and the file to its name.
    bool commit();
    void discard();

    // Name that a file has while it is written. Nobody else gives such names, so that what is found under one
    // was left by a run that was killed; no other file is ever removed.
    [[nodiscard]] static std::string draftOf(const std::string &target) { return target + ".quorin-draft"; }

private:
    static constexpr std::intptr_t NoHandle = -1;
    std::string m_target;
    bool m_replace{false};
    std::intptr_t m_handle{NoHandle};
};
