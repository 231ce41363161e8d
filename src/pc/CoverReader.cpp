#include "CoverReader.h"

#include "core/ThreadWorker.h"
#include "pictures/LocalPictureLoader.h"
#include "pictures/PictureDecoder.h"
#include "player/QPlayer.h"

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
}

CoverReader::~CoverReader()
{
    ++*m_generation;
}

void CoverReader::request(const QString &path)
{
    const int generation = ++*m_generation;
    const auto cover = std::make_shared<QImage>();
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>();
    m_worker->addTask(
        [cover, path, generation, read = m_read, current = m_generation] {
            if (*current == generation)
                *cover = read(path);
        },
        [this, cover, path, generation] {
            if (*m_generation == generation)
                emit ready(path, *cover);
        });
}

void CoverReader::forget()
{
    ++*m_generation;
}
