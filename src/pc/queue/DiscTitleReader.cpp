#include "DiscTitleReader.h"

#include "QueuePath.h"

#include "contract/VDTypes.h"
#include "core/ThreadWorker.h"

#include <QDebug>

namespace {

constexpr int kThreads = 2;
constexpr int kStopMs = 200;

int itemTypeOf(const QString &path)
{
    switch (QueuePath::kindOf(path)) {
    case QueuePath::Folder:
        return libvp::VD_Item_Folder;
    case QueuePath::Disc:
        return libvp::VD_Item_Disc;
    case QueuePath::File:
        break;
    }
    return libvp::VD_Item_File;
}

} // namespace

DiscTitleReader::DiscTitleReader(Titles titles, QObject *parent)
    : QObject(parent)
    , m_titles(std::move(titles))
{
}

DiscTitleReader::~DiscTitleReader()
{
    if (m_worker)
        m_worker->stop(kStopMs);
}

void DiscTitleReader::ask(const QString &path)
{
    if (!m_titles || m_asked.contains(path))
        return;
    m_asked.insert(path);
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(kThreads);
    const auto disc = std::make_shared<PlayerDisc>();
    m_worker->addTask(
        [titles = m_titles, path, disc] {
            if (!ThreadWorker::stopRequested())
                *disc = titles(path, itemTypeOf(path));
        },
        [this, path, disc] {
            m_asked.remove(path);
            qInfo().noquote() << "[Playlist] titles of" << path << ":" << disc->titles.size();
            emit told(path, *disc);
        });
}
