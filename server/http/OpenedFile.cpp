#include "OpenedFile.h"

#include <utility>

OpenedFile::~OpenedFile()
{
    close();
}

OpenedFile::OpenedFile(OpenedFile &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_size(std::exchange(other.m_size, 0))
{
}

OpenedFile &OpenedFile::operator=(OpenedFile &&other) noexcept
{
    if (this != &other) {
        close();
        m_descriptor = std::exchange(other.m_descriptor, -1);
        m_size = std::exchange(other.m_size, 0);
    }
    return *this;
}

int OpenedFile::release()
{
    return std::exchange(m_descriptor, -1);
}
