#include "DriveTable.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace {

// First letter that an optical drive of this machine takes; the others follow in the order of their devices.
constexpr char FirstLetter = 'D';
constexpr char LastLetter = 'Z';

std::vector<int> opticalDevices()
{
    std::vector<int> numbers;
    std::error_code error;
    for (std::filesystem::directory_iterator entry("/dev", error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.size() < 3 || name.compare(0, 2, "sr") != 0)
            continue;
        if (std::all_of(name.begin() + 2, name.end(), [](unsigned char c) { return std::isdigit(c) != 0; }))
            numbers.push_back(std::atoi(name.c_str() + 2));
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

} // namespace

std::string DriveTable::ownDrive(char letter)
{
    const std::map<char, std::string> drives = ownOpticalDrives();
    const auto found = drives.find(letter);
    return found == drives.end() ? std::string() : found->second;
}

std::map<char, std::string> DriveTable::ownOpticalDrives()
{
    std::map<char, std::string> drives;
    char letter = FirstLetter;
    for (const int number : opticalDevices()) {
        if (letter > LastLetter)
            break;
        drives[letter++] = "/dev/sr" + std::to_string(number);
    }
    return drives;
}
