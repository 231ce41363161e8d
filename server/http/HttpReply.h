// An answer on its way out: a status with bytes or with an opened file.
#pragma once

#include "OpenedFile.h"

#include <QByteArray>

struct HttpReply {
    int status{0};
    QByteArray contentType;
    QByteArray body; // where file is not open
    OpenedFile file;
    QByteArray allow; // of a 405
};
