#include "CoverReader.h"

#include "player/QPlayer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRunnable>

namespace {

QImage pictureOf(const QString &path)
{
    const QJsonObject request{{QStringLiteral("url"), path},
                              {QStringLiteral("width"), CoverReader::WantedSize},
                              {QStringLiteral("height"), CoverReader::WantedSize},
                              {QStringLiteral("sourcetype"), 0}};
    const PlayerPicture picture =
        QPlayer::instance()->grabPicture(QJsonDocument(request).toJson(QJsonDocument::Compact));
    if (picture.format != libvp::VD_Picture_Rgba)
        return QImage::fromData(picture.data);
    const qint64 needed = qint64(picture.width) * picture.height * 4;
    if (picture.width <= 0 || picture.height <= 0 || picture.data.size() < needed)
        return {};
    return QImage(reinterpret_cast<const uchar *>(picture.data.constData()), picture.width, picture.height,
                  picture.width * 4, QImage::Format_RGBX8888)
        .copy();
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
