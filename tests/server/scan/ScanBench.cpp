#include "ScanBench.h"

#include "support/Eventually.h"
#include "support/SampleClips.h"

#include <QFileInfo>

#include <sys/resource.h>

FileFacts CountingReader::read(const FileTask &task, const MediaDeadline &deadline)
{
    {
        std::unique_lock lock(m_mutex);
        m_opened << task.path;
        m_nice = ::getpriority(PRIO_PROCESS, 0);
        if (QFileInfo(task.path).fileName().startsWith("stuck")) {
            ++m_held;
            m_released.wait(lock, [this] { return m_open; });
            --m_held;
            m_released.notify_all();
            return {};
        }
    }
    return m_reader.read(task, deadline);
}

QStringList CountingReader::takeOpened()
{
    std::lock_guard lock(m_mutex);
    QStringList opened;
    opened.swap(m_opened);
    opened.sort();
    return opened;
}

int CountingReader::takenNice() const
{
    std::lock_guard lock(m_mutex);
    return m_nice;
}

int CountingReader::held() const
{
    std::lock_guard lock(m_mutex);
    return m_held;
}

void CountingReader::release()
{
    std::unique_lock lock(m_mutex);
    m_open = true;
    m_released.notify_all();
    m_released.wait(lock, [this] { return m_held == 0; });
}

ScanBench::ScanBench(ProbePool::Limits limits)
    : reader(std::make_shared<CountingReader>(m_images.path()))
{
    musicRoot = store.addFolder(FakeStore::MusicLibrary, m_tree.path(), {});
    videoRoot = store.addFolder(FakeStore::VideoLibrary, m_tree.path(), {});
    const Scanner::Readers readers{std::make_shared<MusicFolder>(), std::make_shared<VideoFolder>(false),
                                   std::make_shared<VideoFolder>(true)};
    scanner = std::make_unique<Scanner>(
        store, store, readers, reader,
        [this](const QString &folder) {
            if (onEnter)
                onEnter(folder);
        },
        limits);
    QObject::connect(scanner.get(), &Scanner::rootScanned, &m_context,
                     [this](int, RootScan::Result result) { lastResult = result; });
    QObject::connect(scanner.get(), &Scanner::scanFinished, &m_context, [this] { ++finished; });
}

ScanBench::~ScanBench()
{
    reader->release();
    scanner.reset();
}

void ScanBench::sound(const QString &name, const QString &format) const
{
    SampleClips::copy(format, path(name));
}

bool ScanBench::waitForEnd()
{
    return QTest::qWaitFor([this] { return finished > 0 && scanner->isIdle(); }, 3 * Eventually::WaitMs);
}

void ScanBench::scanMusic()
{
    finished = 0;
    scanner->scan(music());
    EXPECT_TRUE(waitForEnd());
}

void ScanBench::scanVideo()
{
    finished = 0;
    scanner->scan({{store.root(videoRoot), false}});
    EXPECT_TRUE(waitForEnd());
}
