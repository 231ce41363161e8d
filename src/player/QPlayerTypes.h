// What QPlayer hands to the rest of the program: plain values, no engine memory.
#pragma once

#include "contract/Orbix.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// The names that signals, slots and their string forms use.
using libvp::VD_ErrorCallbackType;
using libvp::VD_OPTRA_DISC_ERROR_TYPE;
using libvp::VD_OPTRA_DISC_NOTIFY_TYPE;
using libvp::VD_SeekState;

struct PlayerAudioTrack {
    int index{-1};
    int channels{0};
    int sampleRate{0}; // hertz
    int bitRate{0};    // bits a second, 0 when unknown
    bool isDefault{false};
    QString language;
    QString name;
    QString format; // codec and channel layout
};

struct PlayerSubtitleTrack {
    QString language;
    QString name;
    bool isBitmap{false};
    bool isExternal{false};
};

struct PlayerAudioDevice {
    QString name;
    int connection{0};      // libvp::VD_AudioConnection
    unsigned capability{0}; // libvp::VD_AudioCapability bits
};

struct PlayerDiscTitle {
    int number{0}; // what setTitle() takes
    int durationMs{0};
    int chapterCount{0};
    QString name;
};

struct PlayerDisc {
    bool isValid{false};
    QList<PlayerDiscTitle> titles;
    int mainTitle{-1};
};

struct PlayerDiscInfo {
    bool isValid{false};
    int discType{0}; // libvp::VD_DiscType
    bool hasMedia{false};
    qint64 sizeBytes{0};
    QString volumeName;
};

// A picture of a source, as QPlayer::grabPicture() answers it.
struct PlayerPicture {
    QByteArray data;
    int width{0};
    int height{0};
    int format{-1}; // libvp::VD_PictureFormat, -1 when there is none
    int positionMs{0};
};

Q_DECLARE_METATYPE(vdFileInfo)
Q_DECLARE_METATYPE(vdStopPlayInfo)
Q_DECLARE_METATYPE(libvp::VD_ErrorCallbackType)
Q_DECLARE_METATYPE(libvp::VD_OPTRA_DISC_NOTIFY_TYPE)
Q_DECLARE_METATYPE(libvp::VD_OPTRA_DISC_ERROR_TYPE)
Q_DECLARE_METATYPE(libvp::VD_SeekState)
