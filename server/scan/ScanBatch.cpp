#include "ScanBatch.h"

#include <QDebug>

namespace {

constexpr int FilesPerBatch = 200;
// Folders without files make batches too.
constexpr int FoldersPerBatch = 1000;
constexpr std::chrono::milliseconds LongestWait{500};

} // namespace

void ScanBatch::add(ScannedFolder &&folder)
{
    if (m_folders.isEmpty())
        m_begin = std::chrono::steady_clock::now();
    m_files += folder.songs.size() + folder.videos.size();
    m_folders.append(std::move(folder));
    if (m_files >= FilesPerBatch || m_folders.size() >= FoldersPerBatch
        || std::chrono::steady_clock::now() - m_begin >= LongestWait)
        flush();
}

void ScanBatch::flush()
{
    // Without their fingerprints in the database the folders are read again by the next scan.
    if (!m_folders.isEmpty() && !m_store.store(m_folders))
        qWarning() << "[scan] the database did not take" << m_folders.size() << "folders";
    m_folders.clear();
    m_files = 0;
}
