#include "PictureManager.h"

#include "GenreCollage.h"
#include "LocalPictureLoader.h"
#include "PictureDecoder.h"
#include "PosterLoader.h"

#include <QCoreApplication>
#include <QDebug>
#include <QThread>

#include <array>

PictureManager *PictureManager::instance()
{
    // Never destroyed: code that runs at exit may still ask.
    static PictureManager *const manager = [] {
        auto *made = new PictureManager;
        if (auto *application = QCoreApplication::instance()) {
            made->moveToThread(application->thread());
            connect(application, &QCoreApplication::aboutToQuit, made, &PictureManager::stop,
                    Qt::DirectConnection);
        }
        return made;
    }();
    return manager;
}

PictureManager::PictureManager(PictureSources sources, std::chrono::milliseconds interval)
    : m_sources(std::make_shared<const PictureSources>(std::move(sources)))
    , m_posters(
          "poster",
          [this](const QString &key, const auto &) { return PosterLoader::load(key, *this->sources()); },
          [this](int row) {
              emit sig_pictureLoaded(row);
              emit sig_pictureLoaded();
          },
          interval)
    , m_locals(
          "picture",
          [this](const QString &path, const auto &) {
              return LocalPictureLoader::load(path, *this->sources());
          },
          [this](int row) { emit sig_LocalPictureLoaded(row); }, interval)
    , m_genres(
          "genre picture",
          [this](const QString &genre, const auto &wanted) {
              return GenreCollage::load(genre, *this->sources(), wanted);
          },
          [this](int row) { emit sig_musicGenrePictureLoaded(row); }, interval)
{
}

PictureManager::~PictureManager()
{
    stop();
}

void PictureManager::setSources(PictureSources sources)
{
    auto taken = std::make_shared<const PictureSources>(std::move(sources));
    std::lock_guard lock(m_sourcesMutex);
    m_sources.swap(taken);
}

std::shared_ptr<const PictureSources> PictureManager::sources() const
{
    std::lock_guard lock(m_sourcesMutex);
    return m_sources;
}

bool PictureManager::isOnOwnThread() const
{
    return QThread::currentThread() == thread();
}

// ---- requests

QPixmap *PictureManager::request(PictureLane &lane, int row, const QString &key)
{
    if (key.isEmpty())
        return nullptr;
    if (isOnOwnThread())
        return lane.request(row, key);
    lane.queue(row, key);
    return nullptr;
}

QPixmap *PictureManager::requestPoster(int nRow, const QString &key)
{
    return request(m_posters, nRow, key);
}

QPixmap *PictureManager::requestLocalPicture(int nRow, const QString &path)
{
    return request(m_locals, nRow, path);
}

QPixmap *PictureManager::requestGenrePicture(int nRow, const QString &genre)
{
    return request(m_genres, nRow, genre);
}

QPixmap *PictureManager::loadPosterNow(const QString &key)
{
    if (!isOnOwnThread()) {
        qInfo() << "[Picture] a poster is asked for at once on a thread that can't have it:" << key;
        return nullptr;
    }
    if (QPixmap *known = m_posters.find(key))
        return known;
    QImage image = PosterLoader::load(key, *sources());
    return image.isNull() ? nullptr : m_posters.keep(key, std::move(image));
}

// ---- end of a list, end of the program

void PictureManager::clearAll()
{
    for (PictureLane *lane : {&m_posters, &m_locals, &m_genres})
        retire(lane->clear());
}

// Somebody may be painting one of them.
void PictureManager::retire(PictureLane::Retired pictures)
{
    if (pictures.empty())
        return;
    {
        std::lock_guard lock(m_retiredMutex);
        m_retired.push_back(std::move(pictures));
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            std::lock_guard lock(m_retiredMutex);
            m_retired.clear();
        },
        Qt::QueuedConnection);
}

void PictureManager::stop()
{
    for (PictureLane *lane : {&m_posters, &m_locals, &m_genres})
        lane->askToStop();
    for (PictureLane *lane : {&m_posters, &m_locals, &m_genres})
        lane->stop();
}

// ---- drawing

QPixmap PictureManager::scaleAndCrop(const QPixmap &pixmap, const QSize &target)
{
    if (pixmap.isNull() || target.isEmpty())
        return {};
    return pixmap.copy(PictureDecoder::middlePart(pixmap.size(), target))
        .scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
