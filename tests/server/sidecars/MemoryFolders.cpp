#include "MemoryFolders.h"

void MemoryFolders::add(const QString &path, const QByteArray &content)
{
    QString rest = path;
    bool folder = rest.endsWith('/');
    if (folder)
        rest.chop(1);
    else
        m_files.insert(path, content);
    for (int slash = rest.lastIndexOf('/'); slash >= 0; slash = rest.lastIndexOf('/')) {
        const QString name = rest.mid(slash + 1);
        m_folders[rest.left(slash)].insert(name, {name, {folder ? 0 : content.size() + 1, 1000}, folder});
        rest = rest.left(slash);
        folder = true;
    }
}

QByteArray MemoryFolders::read(const QString &path, qint64 limit) const
{
    const QByteArray content = m_files.value(path);
    return content.size() > limit ? QByteArray() : content;
}

bool MemoryFolders::exists(const QString &path) const
{
    return m_files.contains(path) || m_folders.contains(path);
}

QVector<FolderEntry> MemoryFolders::list(const QString &path) const
{
    return m_folders.value(path).values().toVector();
}

FolderListing MemoryFolders::listing(const QString &path, const QString &root, bool adult) const
{
    return {path, root, adult, list(path)};
}

IdentifiedFolder MemoryFolders::identify(const QString &path, const QString &root, bool adult) const
{
    return Identifier(*this).identify(listing(path, root, adult));
}
