// What the container of a video says: its length, its picture's size, its title and date, the picture
// attached to it.
//
// read() looks at no more than the beginning where the container allows it, opens no other file and no
// network, is safe on every thread and comes back soon after the deadline whatever the file holds.
#pragma once

#include "MediaDeadline.h"

#include <QByteArray>
#include <QString>

struct StreamFacts {
    bool wasRead{false};
    qint64 durationMs{0};
    int width{0};
    int height{0};
    QString title;
    QString date; // as it is written there, most often ISO 8601
    QByteArray picture;

    [[nodiscard]] static StreamFacts read(const QString &path, const MediaDeadline &deadline);
};
