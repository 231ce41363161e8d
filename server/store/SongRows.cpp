#include "SongRows.h"

#include "StoredJson.h"
#include "TextFold.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <variant>

namespace {

struct EditableField {
    QLatin1String name;
    std::variant<QString SongRow::*, int SongRow::*> row;
    std::variant<QString SongRecord::*, int SongRecord::*> record;
    bool mayBeEmpty;
};

const EditableField kEditable[] = {
    {QLatin1String("title"), &SongRow::title, &SongRecord::title, false},
    {QLatin1String("poster"), &SongRow::poster, &SongRecord::poster, false},
    {QLatin1String("artist"), &SongRow::artist, &SongRecord::artist, true},
    {QLatin1String("genre"), &SongRow::genre, &SongRecord::genre, true},
    {QLatin1String("runtime"), &SongRow::runtime, &SongRecord::runtime, false},
    {QLatin1String("year"), &SongRow::year, &SongRecord::year, true},
};

QJsonValue valueOf(const SongRow &row, const EditableField &field)
{
    return std::visit([&](auto member) { return QJsonValue(row.*member); }, field.row);
}

QJsonValue valueOf(const SongRecord &record, const EditableField &field)
{
    return std::visit([&](auto member) { return QJsonValue(record.*member); }, field.record);
}

void setValue(SongRow *row, const EditableField &field, const QJsonValue &value)
{
    if (const auto text = std::get_if<QString SongRow::*>(&field.row))
        row->**text = value.toString();
    else if (const auto number = std::get_if<int SongRow::*>(&field.row))
        row->**number = value.toInt();
}

bool isEmpty(const QJsonValue &value)
{
    return value.isString() ? value.toString().isEmpty() : value.toInt() == 0;
}

void takeScanned(SongRow *row, const ScannedSong &song)
{
    row->title = song.title.isEmpty() ? QFileInfo(row->path).completeBaseName() : song.title;
    row->artist = song.artist;
    row->genre = song.genre;
    row->album = song.album;
    row->poster = song.poster;
    row->cuePath = song.cuePath;
    row->suffix = song.suffix;
    row->disc = song.discNumber;
    row->trackNumber = song.trackNumber > 0 ? song.trackNumber : qMax(0, song.track);
    row->year = song.year;
    row->runtime = song.runtimeMs;
}

} // namespace

const RowTable<SongRow> &SongRow::table()
{
    static const RowTable<SongRow> table(QStringLiteral("songs"),
                                         {
                                             {"id", &SongRow::id},
                                             {"missing_since", &SongRow::missingSince},
                                             {"added", &SongRow::added},
                                             {"sort_title", &SongRow::sortTitle},
                                             {"year", &SongRow::year},
                                             {"modified", &SongRow::modified},
                                             {"album_id", &SongRow::albumId},
                                             {"disc", &SongRow::disc},
                                             {"track_number", &SongRow::trackNumber},
                                             {"track", &SongRow::track},
                                             {"liked", &SongRow::liked},
                                             {"runtime", &SongRow::runtime},
                                             {"root", &SongRow::root},
                                             {"size", &SongRow::size},
                                             {"seen", &SongRow::seen},
                                             {"suffix", &SongRow::suffix},
                                             {"folder", &SongRow::folder},
                                             {"path", &SongRow::path},
                                             {"cue_path", &SongRow::cuePath},
                                             {"title", &SongRow::title},
                                             {"search", &SongRow::search},
                                             {"artist", &SongRow::artist},
                                             {"genre", &SongRow::genre},
                                             {"album", &SongRow::album},
                                             {"poster", &SongRow::poster},
                                             {"scanned", &SongRow::scanned},
                                             {"edited", &SongRow::edited},
                                         });
    return table;
}

ScannedSong SongRow::scannedSong() const
{
    ScannedSong song = StoredJson::song(scanned);
    song.path = path;
    song.stamp = {size, modified};
    return song;
}

void SongRow::describe(const ScannedSong &said)
{
    takeScanned(this, said);
    if (!edited.isEmpty()) {
        const QJsonObject edits = QJsonDocument::fromJson(edited.toUtf8()).object();
        for (const EditableField &field : kEditable) {
            const auto edit = edits.find(field.name);
            if (edit != edits.end())
                setValue(this, field, edit.value());
        }
    }
    sortTitle = TextFold::folded(title);
    search = sortTitle;
}

void SongRow::edit(const SongRecord &record)
{
    SongRow asScanned = *this;
    takeScanned(&asScanned, StoredJson::song(scanned));
    QJsonObject edits;
    for (const EditableField &field : kEditable) {
        const QJsonValue wanted = valueOf(record, field);
        if (wanted != valueOf(asScanned, field) && (field.mayBeEmpty || !isEmpty(wanted)))
            edits.insert(field.name, wanted);
    }
    edited =
        edits.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(edits).toJson(QJsonDocument::Compact));
}
