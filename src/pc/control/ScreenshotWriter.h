// Writes pictures of the running source to disc without holding up the window.
//
// Lives on the GUI thread; pictures are encoded and written one after the other on a thread of its own. Every
// write() is answered by exactly one of the two signals, on the thread of the object. The destructor finishes
// what has begun and drops what is only queued.
#pragma once

#include "ScreenshotNaming.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <functional>

class ScreenshotWriter final : public QObject {
    Q_OBJECT

public:
    enum class Error { NoPicture, FolderMissing, NotWritable, DiskFull, WriteFailed };
    Q_ENUM(Error)

    // Bytes free in a folder, below 0 when unknown.
    using FreeSpace = std::function<qint64(const QString &folder)>;

    explicit ScreenshotWriter(QObject *parent = nullptr);
    ~ScreenshotWriter() override;

    void setFreeSpace(FreeSpace freeSpace) { m_freeSpace = std::move(freeSpace); }

    void write(const QImage &picture, const ScreenshotNaming::Target &target,
               const QDateTime &time = QDateTime::currentDateTime());

    // A copy of an engine's frame: four bytes a pixel in the order R, G, B, A, rows without padding; what it
    // says of transparency does not count. Null for a frame that can't be one.
    [[nodiscard]] static QImage copyOf(const unsigned char *rgba, int width, int height);

    // What the user reads.
    [[nodiscard]] static QString errorText(ScreenshotWriter::Error error, const QString &folder);

signals:
    void saved(const QString &path);
    void failed(ScreenshotWriter::Error error, const QString &folder);

private:
    QThreadPool m_pool;
    FreeSpace m_freeSpace;
};
