#include "IniText.h"

#include <algorithm>

namespace {

constexpr std::string_view kBlanks = " \t\v\f\r";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isComment(std::string_view line)
{
    return !line.empty() && (line.front() == ';' || line.front() == '#');
}

// Key and value of a line; nothing for one that holds none.
std::optional<std::pair<std::string_view, std::string_view>> entry(std::string_view line)
{
    const std::string_view text = trimmed(line);
    const auto equals = text.find('=');
    if (isComment(text) || equals == std::string_view::npos)
        return std::nullopt;
    return std::pair(trimmed(text.substr(0, equals)), trimmed(text.substr(equals + 1)));
}

} // namespace

IniText::IniText(Names names, std::string_view text)
    : m_names(names)
{
    m_sections.emplace_back();
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view current = text.substr(0, end);
        m_openEnd = end == std::string_view::npos;
        text.remove_prefix(m_openEnd ? text.size() : end + 1);
        if (!current.empty() && current.back() == '\r')
            m_lineTail = "\r";
        const std::string_view shown = trimmed(current);
        const auto close = shown.find(']');
        if (!shown.empty() && shown.front() == '[' && close != std::string_view::npos)
            m_sections.push_back({std::string(current), std::string(shown.substr(1, close - 1)), {}});
        else
            m_sections.back().lines.emplace_back(current);
    }
    index();
}

std::vector<std::string> IniText::sections() const
{
    std::vector<std::string> names;
    for (std::size_t index = 1; index < m_sections.size(); ++index)
        names.push_back(m_sections[index].name);
    return names;
}

IniText::Keys IniText::keys(std::string_view section) const
{
    Keys found;
    if (const Section *place = find(section)) {
        for (const std::string &current : place->lines) {
            if (const auto pair = entry(current))
                found.emplace_back(pair->first, pair->second);
        }
    }
    return found;
}

std::optional<std::string> IniText::value(std::string_view section, std::string_view key) const
{
    if (const Section *place = find(section)) {
        for (const std::string &current : place->lines) {
            const auto pair = entry(current);
            if (pair && same(pair->first, key))
                return std::string(pair->second);
        }
    }
    return std::nullopt;
}

void IniText::setValue(const std::string &section, const std::string &key, const std::string &value)
{
    std::vector<std::string> &lines = made(section).lines;
    for (std::string &current : lines) {
        const auto pair = entry(current);
        if (pair && same(pair->first, key)) {
            current = line(key, value);
            return;
        }
    }
    // Before the blank lines that part this section from the next one.
    auto place = lines.end();
    while (place != lines.begin() && trimmed(*std::prev(place)).empty())
        --place;
    lines.insert(place, line(key, value));
}

void IniText::removeValue(std::string_view section, std::string_view key)
{
    Section *place = find(section);
    if (!place)
        return;
    auto &lines = place->lines;
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [&](const std::string &current) {
                                   const auto pair = entry(current);
                                   return pair && same(pair->first, key);
                               }),
                lines.end());
}

void IniText::replaceSection(const std::string &section, const Keys &keys)
{
    std::vector<std::string> &lines = made(section).lines;
    lines.clear();
    for (const auto &[key, value] : keys)
        lines.push_back(line(key, value));
}

void IniText::removeSection(std::string_view section)
{
    const auto first = m_sections.begin() + 1;
    m_sections.erase(std::remove_if(first, m_sections.end(),
                                    [&](const Section &each) { return same(each.name, section); }),
                     m_sections.end());
    index();
}

void IniText::removeSectionIfBlank(std::string_view section)
{
    const Section *place = find(section);
    if (place && std::all_of(place->lines.begin(), place->lines.end(), [](const std::string &current) {
            return trimmed(current).empty();
        }))
        removeSection(section);
}

std::string IniText::text() const
{
    std::string whole;
    const auto add = [&](const std::string &current) { whole += current + '\n'; };
    for (const Section &section : m_sections) {
        if (!section.header.empty())
            add(section.header);
        for (const std::string &current : section.lines)
            add(current);
    }
    if (m_openEnd && !whole.empty())
        whole.pop_back();
    return whole;
}

std::string IniText::line(const std::string &key, const std::string &value) const
{
    return key + '=' + value + m_lineTail;
}

bool IniText::same(std::string_view one, std::string_view other) const
{
    if (m_names == Names::ExactCase)
        return one == other;
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char left, char right) { return lower(left) == lower(right); });
}

std::string IniText::folded(std::string_view name) const
{
    std::string text(name);
    if (m_names == Names::AnyCase)
        std::transform(text.begin(), text.end(), text.begin(), lower);
    return text;
}

void IniText::index()
{
    m_index.clear();
    for (std::size_t place = 1; place < m_sections.size(); ++place)
        m_index.emplace(folded(m_sections[place].name), place);
}

const IniText::Section *IniText::find(std::string_view section) const
{
    const auto place = m_index.find(folded(section));
    return place == m_index.end() ? nullptr : &m_sections[place->second];
}

IniText::Section *IniText::find(std::string_view section)
{
    return const_cast<Section *>(std::as_const(*this).find(section));
}

IniText::Section &IniText::made(const std::string &section)
{
    if (Section *place = find(section))
        return *place;
    m_sections.push_back({'[' + section + ']' + m_lineTail, section, {}});
    m_index.emplace(folded(section), m_sections.size() - 1);
    return m_sections.back();
}
