#include "ScreenshotWriter.h"

#include <QBuffer>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRunnable>
#include <QStorageInfo>

#include <limits>

namespace {

using Error = ScreenshotWriter::Error;

constexpr int JpegQuality = 95;
constexpr int MostAttempts = 1000; // names of one second

struct Outcome {
    bool isSaved{false};
    QString path;
    Error error{Error::WriteFailed};
};

Outcome failure(Error error)
{
    return {false, {}, error};
}

QByteArray encoded(const QImage &picture, const QString &suffix)
{
    const QByteArray format = suffix.mid(1).toUpper().toLatin1();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, format.constData(), format == "JPG" ? JpegQuality : -1) ? bytes
                                                                                         : QByteArray();
}

// A name is taken by making its file: two pictures of one second, or two programs, can't overwrite each
// other.
bool takeName(QFile &file, const ScreenshotNaming::Target &target, const QDateTime &time)
{
    const QDir folder(target.folder);
    for (int attempt = 1; attempt <= MostAttempts; ++attempt) {
        file.setFileName(folder.filePath(ScreenshotNaming::baseName(time, attempt) + target.suffix));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return true;
        if (!QFileInfo::exists(file.fileName()))
            return false;
    }
    return false;
}

Outcome writeNow(const QImage &picture, const ScreenshotNaming::Target &target, const QDateTime &time,
                 const ScreenshotWriter::FreeSpace &freeSpace)
{
    if (picture.isNull())
        return failure(Error::NoPicture);
    const QFileInfo folder(target.folder);
    if (!folder.isDir())
        return failure(Error::FolderMissing);
    const QByteArray bytes = encoded(picture, target.suffix);
    if (bytes.isEmpty())
        return failure(Error::WriteFailed);
    const qint64 free = freeSpace(target.folder);
    if (free >= 0 && free < bytes.size())
        return failure(Error::DiskFull);

    QFile file;
    if (!takeName(file, target, time))
        return failure(Error::NotWritable);
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    const bool isFull = file.error() == QFileDevice::ResourceError;
    file.close();
    if (isWritten && file.error() == QFileDevice::NoError)
        return {true, file.fileName(), {}};
    file.remove(); // half a picture helps nobody
    return failure(isFull ? Error::DiskFull : Error::WriteFailed);
}

qint64 systemFreeSpace(const QString &folder)
{
    const QStorageInfo storage(folder);
    return storage.isValid() ? storage.bytesAvailable() : -1;
}

class Job final : public QRunnable {
public:
    explicit Job(std::function<void()> work)
        : m_work(std::move(work))
    {
    }
    void run() override { m_work(); }

private:
    std::function<void()> m_work;
};

} // namespace

ScreenshotWriter::ScreenshotWriter(QObject *parent)
    : QObject(parent)
    , m_freeSpace(systemFreeSpace)
{
    qRegisterMetaType<ScreenshotWriter::Error>("ScreenshotWriter::Error");
    m_pool.setMaxThreadCount(1);
}

ScreenshotWriter::~ScreenshotWriter()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void ScreenshotWriter::write(const QImage &picture, const ScreenshotNaming::Target &target,
                             const QDateTime &time)
{
    m_pool.start(new Job([this, picture, target, time, freeSpace = m_freeSpace] {
        const Outcome outcome = writeNow(picture, target, time, freeSpace);
        QMetaObject::invokeMethod(
            this,
            [this, outcome, folder = target.folder] {
                if (outcome.isSaved) {
                    qInfo().noquote() << "[Screenshot] saved:" << outcome.path;
                    emit saved(outcome.path);
                } else {
                    qInfo().noquote() << "[Screenshot] failed:" << errorText(outcome.error, folder);
                    emit failed(outcome.error, folder);
                }
            },
            Qt::QueuedConnection);
    }));
}

QImage ScreenshotWriter::copyOf(const unsigned char *rgba, int width, int height)
{
    constexpr int BytesPerPixel = 4;
    if (!rgba || width <= 0 || height <= 0
        || width > std::numeric_limits<int>::max() / BytesPerPixel / height)
        return {};
    return QImage(rgba, width, height, width * BytesPerPixel, QImage::Format_RGBX8888)
        .convertToFormat(QImage::Format_RGB32);
}

QString ScreenshotWriter::errorText(Error error, const QString &folder)
{
    const QString shown = QDir::toNativeSeparators(folder);
    switch (error) {
    case Error::NoPicture:
        return tr("There is no picture to save.");
    case Error::FolderMissing:
        return tr("The snapshot could not be saved: the folder \"%1\" does not exist.").arg(shown);
    case Error::NotWritable:
        return tr("The snapshot could not be saved: the folder \"%1\" is not writable.").arg(shown);
    case Error::DiskFull:
        return tr("The snapshot could not be saved: there is no free space in the folder \"%1\".").arg(shown);
    case Error::WriteFailed:
        break;
    }
    return tr("The snapshot could not be saved in the folder \"%1\".").arg(shown);
}
