#include "DirectoryListing.h"

#include <QDir>

#include <windows.h>

namespace {

// Between 1601, where the system's clock begins, and 1970, in milliseconds.
constexpr qint64 EpochOffsetMs = 11644473600000;
constexpr qint64 TicksPerMs = 10000;

qint64 toMs(const FILETIME &time)
{
    return ((qint64(time.dwHighDateTime) << 32) | time.dwLowDateTime) / TicksPerMs - EpochOffsetMs;
}

DirectoryListing::Outcome failure(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return DirectoryListing::Outcome::Gone;
    case ERROR_FILENAME_EXCED_RANGE:
        return DirectoryListing::Outcome::TooLong;
    default:
        return DirectoryListing::Outcome::Unreadable;
    }
}

QPair<quint64, quint64> identityOf(const std::wstring &path)
{
    const HANDLE handle = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION info = {};
    const bool known = GetFileInformationByHandle(handle, &info);
    CloseHandle(handle);
    if (!known)
        return {};
    return {info.dwVolumeSerialNumber, (quint64(info.nFileIndexHigh) << 32) | info.nFileIndexLow};
}

bool isMark(const QString &name)
{
    return name == QLatin1String(".nomedia") || name == QLatin1String(".ignore");
}

} // namespace

DirectoryListing DirectoryListing::read(const QString &path)
{
    DirectoryListing listing;
    const std::wstring folder = QDir::toNativeSeparators(path).toStdWString();
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &found,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        listing.outcome = failure(GetLastError());
        return listing;
    }
    listing.identity = identityOf(folder);
    do {
        const QString name = QString::fromWCharArray(found.cFileName);
        const DWORD attributes = found.dwFileAttributes;
        const bool hidden = (attributes & FILE_ATTRIBUTE_HIDDEN) != 0 || name.startsWith(QLatin1Char('.'));
        if ((hidden && !isMark(name))
            || (attributes & (FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE)) != 0)
            continue;
        const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const qint64 size = (qint64(found.nFileSizeHigh) << 32) | found.nFileSizeLow;
        listing.entries.append({name, {isFolder ? 0 : size, toMs(found.ftLastWriteTime)}, isFolder});
    } while (FindNextFileW(search, &found));
    listing.outcome = GetLastError() == ERROR_NO_MORE_FILES ? Outcome::Read : Outcome::Unreadable;
    FindClose(search);
    return listing;
}
