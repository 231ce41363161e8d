#include "SoundTags.h"

#include "SoundCover.h"
#include "TagStream.h"
#include "TagText.h"

#include <QDebug>

#include <taglib/aifffile.h>
#include <taglib/fileref.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/tpropertymap.h>
#include <taglib/trueaudiofile.h>
#include <taglib/wavfile.h>

#include <exception>
#include <string_view>

namespace {

constexpr int LastYear = 9999;

struct TextRow {
    const char *property;
    const char *frame; // of ID3v2
    const char *separator;
    QString SoundTags::*member;
};

constexpr TextRow texts[] = {
    {"TITLE", "TIT2", "; ", &SoundTags::title},
    {"ARTIST", "TPE1", "; ", &SoundTags::artist},
    {"ALBUMARTIST", "TPE2", "; ", &SoundTags::albumArtist},
    {"ALBUM", "TALB", "; ", &SoundTags::album},
    {"GENRE", "TCON", ", ", &SoundTags::genre},
};

struct NumberRow {
    const char *property;
    const char *frame;
    int SoundTags::*member;
    int highest;
};

constexpr NumberRow numbers[] = {
    {"TRACKNUMBER", "TRCK", &SoundTags::track, 9999},
    {"DISCNUMBER", "TPOS", &SoundTags::disc, 9999},
    {"DATE", "TDRC", &SoundTags::year, LastYear},
};

template<typename Format>
bool findId3v2(TagLib::File *file, TagLib::ID3v2::Tag *&tag)
{
    auto *format = dynamic_cast<Format *>(file);
    if (!format)
        return false;
    tag = format->hasID3v2Tag() ? format->ID3v2Tag() : nullptr;
    return true;
}

// AIFF has its tag by another name.
bool findAiffTag(TagLib::File *file, TagLib::ID3v2::Tag *&tag)
{
    auto *format = dynamic_cast<TagLib::RIFF::AIFF::File *>(file);
    if (format)
        tag = format->hasID3v2Tag() ? format->tag() : nullptr;
    return format;
}

// What a file says of itself, by the names of its properties. Frames of ID3v2 are read one by one: the table
// of all properties, which TagLib makes for any format, takes a fifth of the time that such a file needs.
class TagValues final {
public:
    explicit TagValues(TagLib::File *file)
        : m_mayBeLegacy(findId3v2<TagLib::MPEG::File>(file, m_tag)
                        || findId3v2<TagLib::RIFF::WAV::File>(file, m_tag)
                        || findId3v2<TagLib::TrueAudio::File>(file, m_tag) || findAiffTag(file, m_tag))
        , m_readsFrames(m_tag && !m_tag->isEmpty() && m_tag->frameList(UserTexts).isEmpty())
    {
        if (!m_readsFrames)
            m_properties = file->properties();
    }

    [[nodiscard]] TagLib::StringList of(const char *property, const char *frame) const
    {
        return m_readsFrames ? ofFrames(property, frame) : valuesIn(m_properties, property);
    }

    // Whether a text may hold other bytes than the Latin-1 that it is read as.
    [[nodiscard]] bool isLegacy(const char *frame) const
    {
        if (!m_mayBeLegacy || !m_tag)
            return m_mayBeLegacy;
        const TagLib::ID3v2::FrameList &frames = m_tag->frameList(frame);
        if (frames.isEmpty())
            return true;
        const auto *text = dynamic_cast<TagLib::ID3v2::TextIdentificationFrame *>(frames.front());
        return text && text->textEncoding() == TagLib::String::Latin1;
    }

private:
    // Some of these stand for other properties.
    static constexpr char UserTexts[] = "TXXX";
    // Some genres are numbers of a list, which TagLib knows.
    static constexpr char Genre[] = "TCON";

    [[nodiscard]] static TagLib::StringList valuesIn(const TagLib::PropertyMap &map, const char *property)
    {
        const auto found = map.find(property);
        return found == map.end() ? TagLib::StringList() : found->second;
    }

    [[nodiscard]] TagLib::StringList ofFrames(const char *property, const char *frame) const
    {
        TagLib::StringList values;
        for (TagLib::ID3v2::Frame *each : m_tag->frameList(frame)) {
            const auto *text = dynamic_cast<TagLib::ID3v2::TextIdentificationFrame *>(each);
            if (!text)
                continue;
            values.append(std::string_view(frame) == Genre ? valuesIn(text->asProperties(), property)
                                                           : text->fieldList());
        }
        return values;
    }

    TagLib::ID3v2::Tag *m_tag{nullptr};
    bool m_mayBeLegacy{false};
    bool m_readsFrames{false};
    TagLib::PropertyMap m_properties;
};

QString toText(const TagLib::String &text, bool isLegacy, QTextCodec *local)
{
    if (isLegacy && text.isLatin1() && !text.isAscii()) {
        const std::string bytes = text.to8Bit(false);
        return TagText::clean(TagText::decodeLegacy(QByteArray(bytes.data(), int(bytes.size())), local));
    }
    const std::wstring wide = text.toWString();
    // TagLib keeps UTF-16 units, whatever the size of a wide character is.
    QString result;
    result.reserve(int(wide.size()));
    for (const wchar_t unit : wide)
        result.append(QChar(ushort(unit)));
    return TagText::clean(result);
}

// "3/12" and "2004-05-01" begin with what counts.
int leadingNumber(const TagLib::StringList &values, int highest)
{
    if (values.isEmpty())
        return 0;
    const int value = values.front().stripWhiteSpace().toInt();
    return value > 0 && value <= highest ? value : 0;
}

void fill(SoundTags &tags, TagLib::File *file, QTextCodec *local)
{
    const TagValues said(file);
    for (const TextRow &row : texts) {
        const bool isLegacy = said.isLegacy(row.frame);
        QStringList values;
        for (const TagLib::String &value : said.of(row.property, row.frame)) {
            const QString text = toText(value, isLegacy, local);
            if (!text.isEmpty() && !values.contains(text))
                values << text;
        }
        tags.*row.member = values.join(QLatin1String(row.separator));
    }
    for (const NumberRow &row : numbers)
        tags.*row.member = leadingNumber(said.of(row.property, row.frame), row.highest);
    if (const TagLib::AudioProperties *sound = file->audioProperties())
        tags.durationMs = qMax(0, sound->lengthInMilliseconds());
    tags.cover = SoundCover::of(file);
    tags.wasRead = true;
}

} // namespace

SoundTags SoundTags::read(const QString &path, const MediaDeadline &deadline)
{
    return read(path, deadline, TagText::localCharset());
}

SoundTags SoundTags::read(const QString &path, const MediaDeadline &deadline, QTextCodec *local)
{
    SoundTags tags;
    try {
        TagStream stream(path, deadline);
        if (stream.isOpen()) {
            const TagLib::FileRef reference(&stream, true, TagLib::AudioProperties::Fast);
            if (TagLib::File *file = reference.file(); file && file->isValid())
                fill(tags, file, local);
        }
    } catch (const std::exception &error) {
        qWarning().noquote() << "[tags]" << path << "cannot be read:" << error.what();
        tags = {};
    }
    // The parser takes the end of its time for the end of the file; what it made of that is worth nothing.
    if (deadline.isOver())
        tags = {};
    if (tags.title.isEmpty()) {
        int number = 0;
        tags.title = TagText::titleOf(path, &number);
        if (tags.track == 0)
            tags.track = number;
    }
    return tags;
}
