#include "CoverReader.h"

#include "pictures/LocalPictureLoader.h"
#include "pictures/PictureDecoder.h"
#include "player/QPlayer.h"

#include <QRunnable>

namespace {

QImage pictureOf(const QString &path)
{
    const QSize size(CoverReader::WantedSize, CoverReader::WantedSize);
    return PictureDecoder::fromEngine(
        QPlayer::instance()->grabPicture(LocalPictureLoader::requestJson(path, false, size)));
}

} // namespace

CoverReader::CoverReader(QObject *parent)
    : CoverReader(&pictureOf, parent)
{
}

CoverReader::CoverReader(Read read, QObject *parent)
    : QObject(parent)
    , m_read(std::move(read))
    , m_generation(std::make_shared<std::atomic_int>(0))
{
    m_pool.setMaxThreadCount(1);
}

CoverReader::~CoverReader()
{
    ++*m_generation;
    m_pool.clear();
    m_pool.waitForDone();
}

void CoverReader::request(const QString &path)
{
    const int generation = ++*m_generation;
    m_pool.clear();
    m_pool.start(QRunnable::create([this, path, generation, read = m_read, current = m_generation] {
        if (*current != generation)
            return;
        const QImage cover = read(path);
        // The object waits for its thread before it goes.
        QMetaObject::invokeMethod(
            this, [this, generation, path, cover] { answer(generation, path, cover); }, Qt::QueuedConnection);
    }));
}

void CoverReader::forget()
{
    ++*m_generation;
    m_pool.clear();
}

void CoverReader::answer(int generation, const QString &path, const QImage &cover)
{
    if (*m_generation == generation)
        emit ready(path, cover);
}
