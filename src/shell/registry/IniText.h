// The text of an INI file or desktop entry, changed without touching what is not meant: comments, blank
// lines, unknown lines and the order of all stay. Pure text, no file; a value is what stands behind the first
// '=', without the blanks around it.
//
// A section that is there twice counts once, the first time; so does a key.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

class IniText final {
public:
    enum class Names { AnyCase, ExactCase };
    using Keys = std::vector<std::pair<std::string, std::string>>;

    explicit IniText(Names names, std::string_view text = {});

    [[nodiscard]] std::vector<std::string> sections() const;
    // All keys of a section, in its order.
    [[nodiscard]] Keys keys(std::string_view section) const;
    [[nodiscard]] std::optional<std::string> value(std::string_view section, std::string_view key) const;

    // Changes the key's line, or adds one at the end of the section, or section and line at the end.
    void setValue(const std::string &section, const std::string &key, const std::string &value);
    void removeValue(std::string_view section, std::string_view key);
    // What the section held goes.
    void replaceSection(const std::string &section, const Keys &keys);
    void removeSection(std::string_view section);
    // The same, where nothing but blank lines is left in it.
    void removeSectionIfBlank(std::string_view section);

    [[nodiscard]] std::string text() const;

private:
    struct Section {
        // Empty for what stands before the first header.
        std::string header;
        std::string name;
        std::vector<std::string> lines;
    };

    [[nodiscard]] bool same(std::string_view one, std::string_view other) const;
    [[nodiscard]] const Section *find(std::string_view section) const;
    [[nodiscard]] Section *find(std::string_view section);
    [[nodiscard]] Section &made(const std::string &section);
    [[nodiscard]] std::string line(const std::string &key, const std::string &value) const;

    [[nodiscard]] std::string folded(std::string_view name) const;
    void index();

    Names m_names;
    // What stands before the line feed of an added line, as in the text that was read.
    std::string m_lineTail;
    bool m_openEnd{false};
    std::vector<Section> m_sections;
    // Folded names, to the first section of each.
    std::unordered_map<std::string, std::size_t> m_index;
};
