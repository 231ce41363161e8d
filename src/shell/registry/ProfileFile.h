// A private profile: sections of keys with texts and numbers, as Windows keeps them in INI files.
//
// On Windows the system's own calls read and write it, with their code page and limits; elsewhere a reader
// that follows them in what counts: names in any case, blanks and one pair of quotes around a value taken
// off, the first section and key of a name hold. Changes reach the file as a whole or not at all: they are
// made in a copy beside it that then takes its place. What others write while the object lives need not be
// seen.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

class ProfileFile final {
public:
    // What the buffer of a read takes; longer values are cut there.
    static constexpr std::size_t MaxValueLength = 1040;

    struct Section {
        std::string name;
        // Written in this order, in place of all that the section held.
        std::vector<std::pair<std::string, std::string>> keys;
    };

    explicit ProfileFile(const std::string &path);
    ~ProfileFile();
    ProfileFile(const ProfileFile &) = delete;
    ProfileFile &operator=(const ProfileFile &) = delete;

    [[nodiscard]] std::string readString(const std::string &section, const std::string &key,
                                         const std::string &fallback) const;
    // The fallback for a missing or empty key; 0 for a text that begins with no number.
    [[nodiscard]] int readInt(const std::string &section, const std::string &key, int fallback) const;
    // In the order of the file.
    [[nodiscard]] std::vector<std::string> sectionNames() const;

    // Replaces these sections and adds those that are not there; all others stay as they are. False when the
    // file could not be written, and then it is as it was; the reason is in the log.
    [[nodiscard]] bool writeSections(const std::vector<Section> &sections);

    // Whether a name or value comes back as it went in: no line ends and no zero bytes.
    [[nodiscard]] static bool canHold(const std::string &text);

private:
    // A value with the quotes that keep a reader from taking its own ones or its outer blanks off.
    [[nodiscard]] static std::string guarded(const std::string &value);

    struct Store;
    std::unique_ptr<Store> m_store;
};
