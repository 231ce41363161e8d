#include "media/SoundTags.h"
#include "support/SampleClips.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <taglib/apetag.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/flacfile.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/vorbisfile.h>
#include <taglib/wavpackfile.h>
#include <taglib/xiphcomment.h>

namespace {

constexpr int SlowestMs = 6000;

class SoundTagsTest : public testing::Test {
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray name(const QString &name) const { return path(name).toUtf8(); }

    static SoundTags read(const QString &path) { return SoundTags::read(path, MediaDeadline(), nullptr); }

    QTemporaryDir m_folder;
};

TagLib::ByteVector vector(const QByteArray &bytes)
{
    return TagLib::ByteVector(bytes.constData(), unsigned(bytes.size()));
}

void addId3Picture(const QByteArray &file, const QByteArray &picture,
                   TagLib::ID3v2::AttachedPictureFrame::Type type)
{
    TagLib::MPEG::File mp3(file.constData());
    auto *frame = new TagLib::ID3v2::AttachedPictureFrame;
    frame->setMimeType("image/png");
    frame->setType(type);
    frame->setPicture(vector(picture));
    mp3.ID3v2Tag(true)->addFrame(frame);
    ASSERT_TRUE(mp3.save());
}

TagLib::FLAC::Picture *flacPicture(const QByteArray &picture, TagLib::FLAC::Picture::Type type)
{
    auto *made = new TagLib::FLAC::Picture;
    made->setMimeType("image/png");
    made->setType(type);
    made->setData(vector(picture));
    return made;
}

QByteArray id3Size(int size)
{
    QByteArray bytes;
    for (int shift = 21; shift >= 0; shift -= 7)
        bytes.append(char((size >> shift) & 0x7F));
    return bytes;
}

QByteArray bigEndian(int size)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(char((size >> shift) & 0xFF));
    return bytes;
}

TEST_F(SoundTagsTest, TellsTheTagsOfEachFormat)
{
    for (const QString &format : SampleClips::soundFormats()) {
        SCOPED_TRACE(qPrintable(format));
        const QString file = path("clip." + format);
        SampleClips::copy(format, file);
        const SoundTags tags = read(file);
        EXPECT_TRUE(tags.wasRead);
        EXPECT_EQ(tags.title, "Tone");
        EXPECT_EQ(tags.artist, "Player");
        EXPECT_EQ(tags.album, "Samples");
        EXPECT_EQ(tags.genre, "Rock");
        // The maker of the clips writes it into WMA under a name of its own.
        EXPECT_EQ(tags.year, format == "wma" ? 0 : 2004);
        EXPECT_NEAR(tags.durationMs, 400, 120);
        // The information chunk of WAV knows neither, and in WavPack the maker of the clips names it
        // otherwise.
        EXPECT_EQ(tags.albumArtist, format == "wav" || format == "wv" ? "" : "Several");
        EXPECT_EQ(tags.disc, format == "wav" ? 0 : 2);
        EXPECT_EQ(tags.track, 3);
    }
}

TEST_F(SoundTagsTest, TakesTheFrontCoverOfId3v2)
{
    SampleClips::copy("mp3", path("a.mp3"));
    addId3Picture(name("a.mp3"), SampleClips::png(1), TagLib::ID3v2::AttachedPictureFrame::BackCover);
    EXPECT_EQ(read(path("a.mp3")).cover, SampleClips::png(1));
    addId3Picture(name("a.mp3"), SampleClips::png(2), TagLib::ID3v2::AttachedPictureFrame::FrontCover);
    EXPECT_EQ(read(path("a.mp3")).cover, SampleClips::png(2));
}

TEST_F(SoundTagsTest, TakesTheFrontCoverOfFlac)
{
    SampleClips::copy("flac", path("a.flac"));
    TagLib::FLAC::File file(name("a.flac").constData());
    file.addPicture(flacPicture(SampleClips::png(1), TagLib::FLAC::Picture::Artist));
    file.addPicture(flacPicture(SampleClips::png(2), TagLib::FLAC::Picture::FrontCover));
    ASSERT_TRUE(file.save());
    EXPECT_EQ(read(path("a.flac")).cover, SampleClips::png(2));
}

TEST_F(SoundTagsTest, TakesThePictureBlockOfVorbis)
{
    SampleClips::copy("ogg", path("a.ogg"));
    TagLib::Ogg::Vorbis::File file(name("a.ogg").constData());
    file.tag()->addPicture(flacPicture(SampleClips::png(3), TagLib::FLAC::Picture::FrontCover));
    ASSERT_TRUE(file.save());
    EXPECT_EQ(read(path("a.ogg")).cover, SampleClips::png(3));
}

TEST_F(SoundTagsTest, TakesTheCoverOfMp4)
{
    SampleClips::copy("m4a", path("a.m4a"));
    TagLib::MP4::File file(name("a.m4a").constData());
    TagLib::MP4::CoverArtList list;
    list.append(TagLib::MP4::CoverArt(TagLib::MP4::CoverArt::PNG, vector(SampleClips::png(4))));
    file.tag()->setItem("covr", TagLib::MP4::Item(list));
    ASSERT_TRUE(file.save());
    EXPECT_EQ(read(path("a.m4a")).cover, SampleClips::png(4));
}

TEST_F(SoundTagsTest, TakesTheCoverOfAnApeTag)
{
    SampleClips::copy("wv", path("a.wv"));
    {
        // The end of the file is written when it is closed.
        TagLib::WavPack::File file(name("a.wv").constData());
        file.APETag(true)->setItem(
            "COVER ART (FRONT)",
            TagLib::APE::Item("COVER ART (FRONT)",
                              vector(QByteArray("front.png") + '\0' + SampleClips::png(5)), true));
        ASSERT_TRUE(file.save());
    }
    EXPECT_EQ(read(path("a.wv")).cover, SampleClips::png(5));
}

TEST_F(SoundTagsTest, ReadsOldTagsInTheCharsetTheyWereWrittenIn)
{
    const QString word = QString::fromUtf8("Музыка");
    const QByteArray utf8 = word.toUtf8();
    QTextCodec *cyrillic = QTextCodec::codecForName("windows-1251");
    for (const QByteArray &bytes : {utf8, cyrillic->fromUnicode(word)}) {
        SampleClips::copy("mp3", path("a.mp3"));
        {
            TagLib::MPEG::File file(name("a.mp3").constData());
            file.strip();
            auto *frame = new TagLib::ID3v2::TextIdentificationFrame("TIT2", TagLib::String::Latin1);
            frame->setText(TagLib::String(bytes.toStdString(), TagLib::String::Latin1));
            file.ID3v2Tag(true)->addFrame(frame);
            ASSERT_TRUE(file.save(TagLib::MPEG::File::ID3v2));
        }
        EXPECT_EQ(SoundTags::read(path("a.mp3"), MediaDeadline(), cyrillic).title, word);
    }
}

TEST_F(SoundTagsTest, ReadsId3v1InTheLocalCharset)
{
    const QString word = QString::fromUtf8("Песня");
    QTextCodec *cyrillic = QTextCodec::codecForName("windows-1251");
    SampleClips::copy("mp3", path("a.mp3"));
    {
        TagLib::MPEG::File file(name("a.mp3").constData());
        file.strip();
        file.ID3v1Tag(true)->setArtist(TagLib::String(cyrillic->fromUnicode(word).toStdString()));
        ASSERT_TRUE(file.save(TagLib::MPEG::File::ID3v1));
    }
    EXPECT_EQ(SoundTags::read(path("a.mp3"), MediaDeadline(), cyrillic).artist, word);
}

TEST_F(SoundTagsTest, FramesOfId3v2AreNumbersOfGenresListsAndPartsOfDates)
{
    using Text = TagLib::ID3v2::TextIdentificationFrame;
    SampleClips::copy("mp3", path("a.mp3"));
    {
        TagLib::MPEG::File file(name("a.mp3").constData());
        file.strip();
        const auto add = [&file](const char *frame, const TagLib::StringList &values) {
            auto *text = new Text(frame, TagLib::String::UTF16);
            text->setText(values);
            file.ID3v2Tag(true)->addFrame(text);
        };
        add("TIT2", TagLib::StringList("Title"));
        add("TCON", TagLib::StringList("17").append(TagLib::StringList("Chamber")));
        add("TPE1", TagLib::StringList("One").append(TagLib::StringList("Two")));
        add("TPE1", TagLib::StringList("Three"));
        add("TRCK", TagLib::StringList("3/12"));
        add("TPOS", TagLib::StringList("2/2"));
        add("TDRC", TagLib::StringList("2004-05-01T10:00:00"));
        ASSERT_TRUE(file.save(TagLib::MPEG::File::ID3v2));
    }
    const SoundTags tags = read(path("a.mp3"));
    EXPECT_EQ(tags.title, "Title");
    EXPECT_EQ(tags.genre, "Rock, Chamber");
    EXPECT_EQ(tags.artist, "One; Two; Three");
    EXPECT_EQ(tags.track, 3);
    EXPECT_EQ(tags.disc, 2);
    EXPECT_EQ(tags.year, 2004);
}

TEST_F(SoundTagsTest, AUserTextOfId3v2StandsForThePropertyThatItNames)
{
    SampleClips::copy("mp3", path("a.mp3"));
    {
        TagLib::MPEG::File file(name("a.mp3").constData());
        file.strip();
        auto *text = new TagLib::ID3v2::UserTextIdentificationFrame(TagLib::String::UTF16);
        text->setDescription("ALBUMARTIST");
        text->setText("Several");
        file.ID3v2Tag(true)->addFrame(text);
        file.ID3v2Tag()->setTitle("Title");
        ASSERT_TRUE(file.save(TagLib::MPEG::File::ID3v2));
    }
    EXPECT_EQ(read(path("a.mp3")).albumArtist, "Several");
    EXPECT_EQ(read(path("a.mp3")).title, "Title");
}

TEST_F(SoundTagsTest, LeavesUnicodeTagsAlone)
{
    SampleClips::copy("flac", path("a.flac"));
    {
        TagLib::FLAC::File file(name("a.flac").constData());
        file.xiphComment(true)->setTitle(TagLib::String("Ã©", TagLib::String::UTF8));
        ASSERT_TRUE(file.save());
    }
    EXPECT_EQ(
        SoundTags::read(path("a.flac"), MediaDeadline(), QTextCodec::codecForName("windows-1251")).title,
        QString::fromUtf8("Ã©"));
}

TEST_F(SoundTagsTest, TakesTheNameOfAFileThatIsNoSound)
{
    SampleClips::write(path("07 - Rubbish.mp3"), "no sound at all");
    const SoundTags tags = read(path("07 - Rubbish.mp3"));
    EXPECT_EQ(tags.title, "Rubbish");
    EXPECT_EQ(tags.track, 7);
    EXPECT_EQ(tags.durationMs, 0);
}

TEST_F(SoundTagsTest, TakesTheNameOfAnEmptyFile)
{
    SampleClips::write(path("Nothing.flac"), {});
    const SoundTags tags = read(path("Nothing.flac"));
    EXPECT_FALSE(tags.wasRead);
    EXPECT_EQ(tags.title, "Nothing");
}

TEST_F(SoundTagsTest, NeverOpensAPipeOrAFolder)
{
    ASSERT_EQ(::mkfifo(name("pipe.mp3").constData(), 0600), 0);
    EXPECT_FALSE(read(path("pipe.mp3")).wasRead);
    EXPECT_FALSE(read(m_folder.path()).wasRead);
    EXPECT_FALSE(read(path("missing.mp3")).wasRead);
}

TEST_F(SoundTagsTest, FollowsNoLink)
{
    SampleClips::copy("mp3", path("a.mp3"));
    ASSERT_TRUE(QFile::link(path("a.mp3"), path("b.mp3")));
    EXPECT_FALSE(read(path("b.mp3")).wasRead);
}

TEST_F(SoundTagsTest, EndsAtItsDeadline)
{
    SampleClips::copy("mp3", path("a.mp3"));
    EXPECT_FALSE(
        SoundTags::read(path("a.mp3"), MediaDeadline(std::chrono::milliseconds(0)), nullptr).wasRead);
    std::atomic<bool> cancelled{true};
    EXPECT_FALSE(
        SoundTags::read(path("a.mp3"), MediaDeadline(MediaDeadline::PerFile, &cancelled), nullptr).wasRead);
}

TEST_F(SoundTagsTest, SurvivesAtomsNestedWithoutEnd)
{
    constexpr int Depth = 200000;
    QByteArray bytes = bigEndian(20) + "ftypM4A " + QByteArray(4, '\0') + "M4A ";
    QByteArray nested;
    nested.reserve(Depth * 8);
    for (int level = 0; level < Depth; ++level)
        nested += bigEndian((Depth - level) * 8) + "moov";
    SampleClips::write(path("deep.m4a"), bytes + nested);
    EXPECT_EQ(read(path("deep.m4a")).title, "deep");
}

TEST_F(SoundTagsTest, SurvivesChaptersNestedWithoutEnd)
{
    constexpr int Depth = 60000;
    constexpr int Head = 10 + 2 + 16;
    QByteArray frames;
    for (int level = 0; level < Depth; ++level) {
        const int size = (Depth - level) * Head - 10;
        frames += "CHAP" + id3Size(size) + QByteArray(2, '\0') + "c" + QByteArray(17, '\0');
    }
    SampleClips::write(path("deep.mp3"), "ID3" + QByteArray("\x04\0\0", 3) + id3Size(frames.size()) + frames
                                             + SampleClips::bytes("mp3"));
    EXPECT_EQ(read(path("deep.mp3")).title.isEmpty(), false);
}

TEST_F(SoundTagsTest, SurvivesDamagedFiles)
{
    constexpr unsigned Rounds = 200;
    const QStringList formats = SampleClips::soundFormats();
    SampleClips::copy("mp3", path("covered.mp3"));
    for (unsigned seed = 0; seed < Rounds; ++seed) {
        const QString format = formats.at(int(seed) % formats.size());
        const QString file = path(QString("damaged%1.%2").arg(seed).arg(format));
        SampleClips::write(file, SampleClips::damaged(SampleClips::bytes(format), seed));
        QElapsedTimer timer;
        timer.start();
        const SoundTags tags = read(file);
        EXPECT_LT(timer.elapsed(), SlowestMs) << seed;
        EXPECT_FALSE(tags.title.isEmpty()) << seed;
        EXPECT_GE(tags.durationMs, 0) << seed;
    }
}

} // namespace
