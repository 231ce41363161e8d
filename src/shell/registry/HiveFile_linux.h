// The registry of a system that has none: keys and values in one text file.
//
// A line a key, a value or the number of all lines at the end, so that a file that was cut is known for what
// it is: then the whole lines count, that is told in the log, and before anything is written the cut file is
// kept beside as ".damaged". Written in one step. Names are found in any case and keep the one they were made
// with. Not thread-safe.
#pragma once

#include "RegTypes.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

class HiveFile final {
public:
    using Value = std::variant<std::string, std::uint32_t>;

    explicit HiveFile(std::string path);

    // Where this user's hive lies: in the folder of the user's data, of root's programs in the machine's.
    [[nodiscard]] static std::string defaultPath();

    // False when there is a file that can't be read; no file is an empty hive.
    [[nodiscard]] bool load();
    // False when it could not be written, and then the file is as it was.
    [[nodiscard]] bool save();
    [[nodiscard]] bool isDamaged() const { return m_damaged; }

    [[nodiscard]] bool hasKey(RegRoot root, const std::string &path) const;
    [[nodiscard]] std::optional<Value> value(RegRoot root, const std::string &path,
                                             const std::string &name) const;

    // These are false for a root or a path that is none.
    bool setValue(RegRoot root, const std::string &path, const std::string &name, Value value);
    bool deleteValue(RegRoot root, const std::string &path, const std::string &name);
    bool deleteKey(RegRoot root, const std::string &path, const std::string &subKey);

private:
    struct AnyCaseLess {
        using is_transparent = void;
        bool operator()(std::string_view one, std::string_view other) const;
    };
    using Values = std::map<std::string, Value, AnyCaseLess>;

    void parse(std::string_view text);
    [[nodiscard]] std::string text() const;
    [[nodiscard]] bool keepDamaged();
    Values &made(const std::string &fullPath);

    std::string m_path;
    // By "<number of the root>\<path>".
    std::map<std::string, Values, AnyCaseLess> m_keys;
    bool m_damaged{false};
    std::string m_damagedText;
};
