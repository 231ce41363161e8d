#include "DriveControl.h"

#include "LocalFile.h"
#include "NativePath.h"

namespace DriveControl {

Medium medium(const std::string &path)
{
    switch (LocalFile::kindOf(path)) {
    case LocalFile::Kind::Regular:
        return Medium::Present;
    case LocalFile::Kind::Folder: {
        std::error_code error;
        const std::filesystem::directory_iterator first(nativePath(path), error);
        if (error)
            return Medium::Unknown;
        return first == std::filesystem::directory_iterator() ? Medium::None : Medium::Present;
    }
    case LocalFile::Kind::Device:
        return deviceMedium(path);
    default:
        return Medium::None;
    }
}

bool isReadable(const std::string &path)
{
    switch (LocalFile::kindOf(path)) {
    case LocalFile::Kind::Regular: {
        LocalFile image;
        return image.open(path) && image.size() > 0;
    }
    case LocalFile::Kind::Folder:
        return medium(path) == Medium::Present;
    case LocalFile::Kind::Device:
        return isDeviceReadable(path);
    default:
        return false;
    }
}

} // namespace DriveControl
