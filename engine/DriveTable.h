// What stands behind a drive letter: an optical drive of this machine, or a device, an image or a disc folder
// that was bound to the letter.
//
// A bound letter hides the machine's own. Every operation may be called from any thread.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <vector>

class DriveTable final {
public:
    struct Place {
        char letter = 0;
        std::string path;
        bool isBound = false;
    };

    DriveTable() = default;
    DriveTable(const DriveTable &) = delete;
    DriveTable &operator=(const DriveTable &) = delete;

    // Path behind a drive name ("D", "D:", "D:/", "D:\"), empty when no drive has the letter. Any other text
    // is a path already and comes back as it is.
    [[nodiscard]] std::string resolve(const std::string &pathOrLetter) const;

    // Puts a device, an image or a folder behind a letter; an empty path forgets it. What is no letter is
    // ignored.
    void bind(char letter, std::string path);

    // The optical drives of this machine and all bound letters, by letter.
    [[nodiscard]] std::vector<Place> places() const;

    // True for a letter with something behind it.
    [[nodiscard]] bool hasDrive(char letter) const;

    // Upper-case letter that a drive name stands for, 0 for a path.
    [[nodiscard]] static char letterOf(const std::string &pathOrLetter);

private:
    // Any drive of this machine, and the optical ones among them.
    [[nodiscard]] static std::string ownDrive(char letter);
    [[nodiscard]] static std::map<char, std::string> ownOpticalDrives();

    mutable std::mutex m_mutex;
    std::map<char, std::string> m_bound;
};
