#include "DriveTable.h"

#include <windows.h>

std::string DriveTable::ownDrive(char letter)
{
    const std::string root = {letter, ':', '\\'};
    const UINT type = GetDriveTypeA(root.c_str());
    return type == DRIVE_UNKNOWN || type == DRIVE_NO_ROOT_DIR ? std::string() : root;
}

std::map<char, std::string> DriveTable::ownOpticalDrives()
{
    std::map<char, std::string> drives;
    const DWORD present = GetLogicalDrives(); // a bit a letter
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string root = {letter, ':', '\\'};
        if ((present >> (letter - 'A') & 1u) != 0 && GetDriveTypeA(root.c_str()) == DRIVE_CDROM)
            drives[letter] = root;
    }
    return drives;
}
