#include "OpenedFile.h"

#include <QDir>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

OpenedFile OpenedFile::open(const QString &path)
{
    OpenedFile file;
    const QString native = QDir::toNativeSeparators(path);
    file.m_descriptor =
        ::_wopen(reinterpret_cast<const wchar_t *>(native.utf16()), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (file.m_descriptor < 0)
        return file;
    struct _stat64 status {};
    if (::_fstat64(file.m_descriptor, &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG) {
        file.close();
        return file;
    }
    file.m_size = status.st_size;
    return file;
}

QString OpenedFile::realPath() const
{
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(m_descriptor));
    wchar_t buffer[32768];
    const DWORD length =
        ::GetFinalPathNameByHandleW(handle, buffer, DWORD(std::size(buffer)), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= std::size(buffer))
        return {};
    QString path = QString::fromWCharArray(buffer, int(length));
    // The form without limits of length names the same file.
    if (path.startsWith(QLatin1String("\\\\?\\")))
        path.remove(0, 4);
    return QDir::fromNativeSeparators(path);
}

QByteArray OpenedFile::head(int bytes) const
{
    QByteArray buffer(bytes, '\0');
    const int length = ::_read(m_descriptor, buffer.data(), unsigned(bytes));
    ::_lseeki64(m_descriptor, 0, SEEK_SET);
    buffer.resize(qMax(length, 0));
    return buffer;
}

void OpenedFile::close()
{
    if (m_descriptor >= 0)
        ::_close(m_descriptor);
    m_descriptor = -1;
    m_size = 0;
}
