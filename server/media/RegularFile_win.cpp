#include "RegularFile.h"

#include <QDir>

#include <windows.h>

bool RegularFile::open(const QString &path)
{
    close();
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    const HANDLE handle =
        CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    BY_HANDLE_FILE_INFORMATION info = {};
    const bool isRegular =
        GetFileType(handle) == FILE_TYPE_DISK && GetFileInformationByHandle(handle, &info)
        && (info.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
    if (!isRegular) {
        CloseHandle(handle);
        return false;
    }
    m_handle = reinterpret_cast<std::intptr_t>(handle);
    m_size = (qint64(info.nFileSizeHigh) << 32) | info.nFileSizeLow;
    return true;
}

void RegularFile::close()
{
    if (isOpen())
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    m_handle = NoHandle;
    m_size = 0;
}

qint64 RegularFile::readAt(qint64 offset, void *buffer, qint64 bytes)
{
    if (!isOpen() || offset < 0)
        return -1;
    qint64 done = 0;
    while (done < bytes) {
        OVERLAPPED place = {};
        place.Offset = DWORD((offset + done) & 0xFFFFFFFF);
        place.OffsetHigh = DWORD((offset + done) >> 32);
        const DWORD wanted = DWORD(qMin<qint64>(bytes - done, 1 << 30));
        DWORD count = 0;
        if (!ReadFile(reinterpret_cast<HANDLE>(m_handle), static_cast<char *>(buffer) + done, wanted, &count,
                      &place))
            return GetLastError() == ERROR_HANDLE_EOF || done > 0 ? done : -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}
