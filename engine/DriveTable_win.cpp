#include "DriveTable.h"

#include <windows.h>

std::string DriveTable::ownDrive(char letter)
{
    const std::string root = {letter, ':', '\\'};
    const UINT type = GetDriveTypeA(root.c_str());
    return type == DRIVE_UNKNOWN || type == DRIVE_NO_ROOT_DIR ? std::string() : root;
}
