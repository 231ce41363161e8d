#include "CueSheet.h"

#include "TextDecoder.h"
#include "names/NameText.h"

#include <QDebug>
#include <QStringList>

namespace {

constexpr int mostTracks = 999;
constexpr int longestValue = 1024;

// Words of a line, those in quotation marks as one; a missing closing mark reaches to the line's end.
QStringList split(const QString &line)
{
    QStringList words;
    for (int i = 0; i < line.size();) {
        if (line.at(i).isSpace()) {
            ++i;
            continue;
        }
        const bool quoted = line.at(i) == QLatin1Char('"');
        const int start = quoted ? i + 1 : i;
        int end = start;
        while (end < line.size() && (quoted ? line.at(end) != QLatin1Char('"') : !line.at(end).isSpace()))
            ++end;
        words.append(line.mid(start, qMin(end - start, longestValue)));
        i = end + 1;
    }
    return words;
}

// mm:ss:ff; -1 for anything else
int frameOf(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() != 3)
        return -1;
    int numbers[3];
    for (int i = 0; i < 3; ++i) {
        const NameText::Number number = NameText::numberAt(parts.at(i), 0, 4);
        if (!number.isValid() || number.digits != parts.at(i).size())
            return -1;
        numbers[i] = number.value;
    }
    if (numbers[1] >= 60 || numbers[2] >= CueTrack::framesPerSecond)
        return -1;
    return (numbers[0] * 60 + numbers[1]) * CueTrack::framesPerSecond + numbers[2];
}

QString withoutFolders(const QString &path)
{
    const int slash = qMax(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    const QString name = path.mid(slash + 1);
    return name == QLatin1String(".") || name == QLatin1String("..") ? QString() : name;
}

class Parser final {
public:
    explicit Parser(CueSheet &sheet)
        : m_sheet(sheet)
    {
    }

    void take(const QString &line)
    {
        struct Row {
            const char *command;
            void (Parser::*handler)(const QStringList &);
        };
        static constexpr Row rows[] = {
            {"FILE", &Parser::takeFile},   {"TRACK", &Parser::takeTrack},
            {"INDEX", &Parser::takeIndex}, {"TITLE", &Parser::takeTitle},
            {"REM", &Parser::takeRemark},  {"PERFORMER", &Parser::takePerformer},
        };
        const QStringList words = split(line);
        if (words.size() < 2)
            return;
        for (const Row &row : rows)
            if (words.first().compare(QLatin1String(row.command), Qt::CaseInsensitive) == 0)
                (this->*row.handler)(words);
    }

    void finish()
    {
        QVector<CueTrack> &tracks = m_sheet.tracks;
        for (int i = tracks.size() - 1; i >= 0; --i)
            if (tracks.at(i).startFrame < 0 || tracks.at(i).fileName.isEmpty())
                tracks.removeAt(i);
        for (int i = 0; i + 1 < tracks.size(); ++i) {
            const CueTrack &next = tracks.at(i + 1);
            if (next.fileName == tracks.at(i).fileName && next.startFrame > tracks.at(i).startFrame)
                tracks[i].endFrame = next.startFrame;
        }
    }

private:
    void takeFile(const QStringList &words)
    {
        // Without quotation marks the name may hold spaces; the last word is the type.
        const bool spread = words.size() > 3;
        m_file = withoutFolders(spread ? words.mid(1, words.size() - 2).join(QLatin1Char(' ')) : words.at(1));
    }

    void takeTrack(const QStringList &words)
    {
        const NameText::Number number = NameText::numberAt(words.at(1), 0, 3);
        // Tracks of data hold nothing to hear.
        const bool audio =
            words.size() < 3 || words.at(2).compare(QLatin1String("AUDIO"), Qt::CaseInsensitive) == 0;
        m_open = number.isValid() && audio && m_sheet.tracks.size() < mostTracks;
        m_seen = true;
        if (!m_open)
            return;
        CueTrack track;
        track.number = number.value;
        track.fileName = m_file;
        m_sheet.tracks.append(track);
    }

    void takeIndex(const QStringList &words)
    {
        if (!m_open || words.size() < 3)
            return;
        const NameText::Number index = NameText::numberAt(words.at(1), 0, 2);
        const int frame = frameOf(words.at(2));
        CueTrack &track = m_sheet.tracks.last();
        if (!index.isValid() || frame < 0)
            return;
        if (index.value == 0) {
            track.pregapFrame = frame;
        } else if (index.value == 1 && track.startFrame < 0) {
            // The pause before a track may lie in the file before, and the track itself in this one.
            if (track.fileName != m_file)
                track.pregapFrame = -1;
            track.fileName = m_file;
            track.startFrame = frame;
        }
    }

    void takeTitle(const QStringList &words) { valueOf(m_sheet.title, &CueTrack::title, words); }
    void takePerformer(const QStringList &words) { valueOf(m_sheet.performer, &CueTrack::performer, words); }

    void valueOf(QString &ofSheet, QString CueTrack::*ofTrack, const QStringList &words)
    {
        const QString value = words.mid(1).join(QLatin1Char(' ')).trimmed();
        if (!m_seen)
            ofSheet = value;
        else if (m_open)
            m_sheet.tracks.last().*ofTrack = value;
    }

    void takeRemark(const QStringList &words)
    {
        const QString value = words.mid(2).join(QLatin1Char(' ')).trimmed();
        if (words.at(1).compare(QLatin1String("GENRE"), Qt::CaseInsensitive) == 0)
            m_sheet.genre = value;
        if (words.at(1).compare(QLatin1String("DATE"), Qt::CaseInsensitive) == 0) {
            const NameText::Number year = NameText::numberAt(value, 0, 4);
            if (year.digits == 4)
                m_sheet.year = year.value;
        }
    }

    CueSheet &m_sheet;
    QString m_file;
    bool m_open{false}; // the lines belong to the last track of the list
    bool m_seen{false}; // a track was named, taken or not
};

} // namespace

CueSheet CueSheet::parse(const QByteArray &data)
{
    CueSheet sheet;
    if (data.size() > largestFile) {
        qInfo() << "[sidecars] a CUE sheet of" << data.size() << "bytes is left out";
        return sheet;
    }
    QString text = TextDecoder::decode(data);
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    Parser parser(sheet);
    for (const QString &line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        parser.take(line);
    parser.finish();
    return sheet;
}
