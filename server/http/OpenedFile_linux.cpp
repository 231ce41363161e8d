#include "OpenedFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

OpenedFile OpenedFile::open(const QString &path)
{
    OpenedFile file;
    file.m_descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat status {};
    if (file.m_descriptor < 0)
        return file;
    if (::fstat(file.m_descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        file.close();
        return file;
    }
    file.m_size = status.st_size;
    return file;
}

QString OpenedFile::realPath() const
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(m_descriptor));
}

QByteArray OpenedFile::head(int bytes) const
{
    QByteArray buffer(bytes, '\0');
    const ssize_t length = ::pread(m_descriptor, buffer.data(), size_t(bytes), 0);
    buffer.resize(int(qMax<ssize_t>(length, 0)));
    return buffer;
}

void OpenedFile::close()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
    m_size = 0;
}
