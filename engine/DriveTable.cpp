#include "DriveTable.h"

#include <cctype>
#include <utility>

char DriveTable::letterOf(const std::string &pathOrLetter)
{
    const bool named = pathOrLetter.size() == 1 || (pathOrLetter.size() == 2 && pathOrLetter[1] == ':')
                       || (pathOrLetter.size() == 3 && pathOrLetter[1] == ':'
                           && (pathOrLetter[2] == '/' || pathOrLetter[2] == '\\'));
    if (!named)
        return 0;
    const auto letter = static_cast<unsigned char>(pathOrLetter[0]);
    if (letter >= 128 || !std::isalpha(letter))
        return 0;
    return static_cast<char>(std::toupper(letter));
}

std::string DriveTable::resolve(const std::string &pathOrLetter) const
{
    const char letter = letterOf(pathOrLetter);
    if (!letter)
        return pathOrLetter;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto bound = m_bound.find(letter);
        if (bound != m_bound.end())
            return bound->second;
    }
    return ownDrive(letter);
}

void DriveTable::bind(char letter, std::string path)
{
    const char name = letterOf(std::string(1, letter));
    if (!name)
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (path.empty())
        m_bound.erase(name);
    else
        m_bound[name] = std::move(path);
}

std::vector<DriveTable::Place> DriveTable::places() const
{
    std::map<char, Place> byLetter;
    for (const auto &[letter, path] : ownOpticalDrives())
        byLetter[letter] = {letter, path, false};
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const auto &[letter, path] : m_bound)
            byLetter[letter] = {letter, path, true};
    }
    std::vector<Place> places;
    for (auto &[letter, place] : byLetter)
        places.push_back(std::move(place));
    return places;
}

bool DriveTable::hasDrive(char letter) const
{
    return letterOf(std::string(1, letter)) != 0 && !resolve(std::string(1, letter)).empty();
}
