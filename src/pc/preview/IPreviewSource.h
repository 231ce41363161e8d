// Where the pictures of a source come from. The player gives them; tests give their own.
#pragma once

#include <QImage>
#include <QString>

struct PreviewPicture {
    QImage image;    // null: there is none for this position
    int shownMs{-1}; // the picture's own time, below 0 when it is not known
};

class IPreviewSource {
public:
    virtual ~IPreviewSource() = default;

    // Both wait for the file and are called on one worker thread. False: this source has no pictures.
    [[nodiscard]] virtual bool open(const QString &path) = 0;
    // The key frame at or before the position.
    [[nodiscard]] virtual PreviewPicture grab(int positionMs) = 0;

    // Any thread, returns at once, harmless without an open source. A grab under way ends soon, with nothing.
    virtual void close() = 0;
};
