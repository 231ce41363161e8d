#include "SoundFile.h"

#include "support/SampleClips.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <taglib/attachedpictureframe.h>
#include <taglib/fileref.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/tpropertymap.h>

namespace {

TagLib::String toTag(const QString &text)
{
    return TagLib::String(text.toStdString(), TagLib::String::UTF8);
}

} // namespace

void SoundFile::write(const QString &path) const
{
    SampleClips::copy(QFileInfo(path).suffix(), path);
    const struct {
        const char *key;
        QString value;
    } rows[] = {
        {"TITLE", title},
        {"ARTIST", artist},
        {"ALBUM", album},
        {"ALBUMARTIST", albumArtist},
        {"GENRE", genre},
        {"DATE", year > 0 ? QString::number(year) : QString()},
        {"TRACKNUMBER", track > 0 ? QString::number(track) : QString()},
    };
    TagLib::PropertyMap tags;
    for (const auto &row : rows) {
        if (!row.value.isEmpty())
            tags.insert(row.key, toTag(row.value));
    }
    {
        TagLib::FileRef file(QFile::encodeName(path).constData());
        ASSERT_FALSE(file.isNull()) << qPrintable(path);
        file.file()->setProperties(tags);
        ASSERT_TRUE(file.file()->save()) << qPrintable(path);
    }
    if (cover.isEmpty())
        return;
    TagLib::MPEG::File file(QFile::encodeName(path).constData());
    auto *frame = new TagLib::ID3v2::AttachedPictureFrame; // the tag's from here on
    frame->setMimeType("image/png");
    frame->setType(TagLib::ID3v2::AttachedPictureFrame::FrontCover);
    frame->setPicture(TagLib::ByteVector(cover.constData(), unsigned(cover.size())));
    file.ID3v2Tag(true)->addFrame(frame);
    ASSERT_TRUE(file.save()) << qPrintable(path);
}
