#include "SoundCover.h"

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/apetag.h>
#include <taglib/asffile.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/trueaudiofile.h>
#include <taglib/vorbisfile.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>
#include <taglib/xiphcomment.h>

namespace {

QByteArray toBytes(const TagLib::ByteVector &bytes)
{
    return QByteArray(bytes.data(), int(bytes.size()));
}

// The picture of a list that says it is the front cover, else the first that holds anything.
template<typename Pictures, typename Bytes, typename IsFront>
QByteArray choose(const Pictures &pictures, Bytes bytes, IsFront isFront)
{
    TagLib::ByteVector chosen;
    for (const auto &picture : pictures) {
        const TagLib::ByteVector data = bytes(picture);
        if (data.isEmpty())
            continue;
        if (isFront(picture))
            return toBytes(data);
        if (chosen.isEmpty())
            chosen = data;
    }
    return toBytes(chosen);
}

QByteArray ofId3v2(const TagLib::ID3v2::Tag *tag)
{
    using Frame = TagLib::ID3v2::AttachedPictureFrame;
    if (!tag)
        return {};
    // A frame that cannot be parsed is in the list all the same, as another class.
    const auto asPicture = [](TagLib::ID3v2::Frame *frame) { return dynamic_cast<Frame *>(frame); };
    return choose(
        tag->frameList("APIC"),
        [&](TagLib::ID3v2::Frame *frame) {
            const Frame *picture = asPicture(frame);
            return picture ? picture->picture() : TagLib::ByteVector();
        },
        [&](TagLib::ID3v2::Frame *frame) { return asPicture(frame)->type() == Frame::FrontCover; });
}

QByteArray ofPictures(const TagLib::List<TagLib::FLAC::Picture *> &pictures)
{
    return choose(
        pictures, [](const TagLib::FLAC::Picture *picture) { return picture->data(); },
        [](const TagLib::FLAC::Picture *picture) {
            return picture->type() == TagLib::FLAC::Picture::FrontCover;
        });
}

QByteArray ofXiph(TagLib::Ogg::XiphComment *comment)
{
    return comment ? ofPictures(comment->pictureList()) : QByteArray();
}

// The picture follows its file name and a zero byte.
QByteArray ofApe(TagLib::APE::Tag *tag)
{
    if (!tag)
        return {};
    for (const char *key : {"COVER ART (FRONT)", "COVER ART (BACK)"}) {
        const auto found = tag->itemListMap().find(key);
        if (found == tag->itemListMap().end())
            continue;
        const TagLib::ByteVector data = found->second.binaryData();
        const int end = data.find('\0');
        if (end >= 0)
            return toBytes(data.mid(static_cast<unsigned int>(end) + 1));
    }
    return {};
}

QByteArray ofMp4(TagLib::MP4::Tag *tag)
{
    if (!tag || !tag->contains("covr"))
        return {};
    return choose(
        tag->item("covr").toCoverArtList(), [](const TagLib::MP4::CoverArt &art) { return art.data(); },
        [](const TagLib::MP4::CoverArt &) { return true; });
}

QByteArray ofAsf(TagLib::ASF::Tag *tag)
{
    if (!tag || !tag->attributeListMap().contains("WM/Picture"))
        return {};
    return choose(
        tag->attributeListMap()["WM/Picture"],
        [](const TagLib::ASF::Attribute &attribute) { return attribute.toPicture().picture(); },
        [](const TagLib::ASF::Attribute &attribute) {
            return attribute.toPicture().type() == TagLib::ASF::Picture::FrontCover;
        });
}

template<typename Format, typename Read>
bool tryFormat(TagLib::File *file, QByteArray &picture, Read read)
{
    auto *format = dynamic_cast<Format *>(file);
    if (format)
        picture = read(format);
    return format;
}

template<typename Format>
bool tryXiph(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<Format>(file, picture, [](Format *format) { return ofXiph(format->tag()); });
}

template<typename Format>
bool tryApe(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<Format>(file, picture, [](Format *format) {
        return format->hasAPETag() ? ofApe(format->APETag()) : QByteArray();
    });
}

template<typename Format>
bool tryId3v2(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<Format>(file, picture, [](Format *format) {
        return format->hasID3v2Tag() ? ofId3v2(format->ID3v2Tag()) : QByteArray();
    });
}

bool tryMpeg(TagLib::File *file, QByteArray &picture)
{
    return tryId3v2<TagLib::MPEG::File>(file, picture)
           && (!picture.isEmpty() || tryApe<TagLib::MPEG::File>(file, picture));
}

bool tryFlac(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<TagLib::FLAC::File>(
        file, picture, [](TagLib::FLAC::File *flac) { return ofPictures(flac->pictureList()); });
}

bool tryAiff(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<TagLib::RIFF::AIFF::File>(
        file, picture, [](TagLib::RIFF::AIFF::File *aiff) { return ofId3v2(aiff->tag()); });
}

bool tryMp4(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<TagLib::MP4::File>(file, picture,
                                        [](TagLib::MP4::File *mp4) { return ofMp4(mp4->tag()); });
}

bool tryAsf(TagLib::File *file, QByteArray &picture)
{
    return tryFormat<TagLib::ASF::File>(file, picture,
                                        [](TagLib::ASF::File *asf) { return ofAsf(asf->tag()); });
}

// The frequent ones first.
constexpr bool (*formats[])(TagLib::File *, QByteArray &) = {
    tryMpeg,
    tryFlac,
    tryMp4,
    tryXiph<TagLib::Ogg::Vorbis::File>,
    tryXiph<TagLib::Ogg::Opus::File>,
    tryAsf,
    tryId3v2<TagLib::RIFF::WAV::File>,
    tryApe<TagLib::WavPack::File>,
    tryApe<TagLib::APE::File>,
    tryAiff,
    tryXiph<TagLib::Ogg::FLAC::File>,
    tryXiph<TagLib::Ogg::Speex::File>,
    tryApe<TagLib::MPC::File>,
    tryId3v2<TagLib::TrueAudio::File>,
};

} // namespace

QByteArray SoundCover::of(TagLib::File *file)
{
    QByteArray picture;
    for (const auto format : formats) {
        if (format(file, picture))
            break;
    }
    return picture;
}
