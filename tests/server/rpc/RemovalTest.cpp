// Deleting with files: what leaves the disk, and above all what does not.
#include "ProtocolFixture.h"

#include <QDir>
#include <QFileInfo>

namespace {

class RemovalTest : public ProtocolFixture {
protected:
    RemovalTest()
    {
        for (const char *name : {"films", "songs", "outside"})
            QDir(m_folder.path()).mkpath(QString::fromUtf8(name));
        m_roots.stored = {{5, 1, at("films"), {}, true}, {6, 2, at("songs"), {}, true}};
    }

    [[nodiscard]] QString at(const QByteArray &path) const
    {
        return m_folder.filePath(QString::fromUtf8(path));
    }
    [[nodiscard]] QString make(const QByteArray &path) const
    {
        QDir().mkpath(QFileInfo(at(path)).absolutePath());
        QFile file(at(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("x");
        return at(path);
    }
    [[nodiscard]] bool exists(const char *path) const { return QFileInfo::exists(at(path)); }
    [[nodiscard]] static QByteArray params(const char *rest)
    {
        return QByteArray("{\"idFile\":7,\"deleteFile\":") + rest + '}';
    }

    void song(int id, const QString &path, int track, const QStringList &files, const QString &sound = {})
    {
        SongRecord record;
        record.idFile = id;
        record.path = path;
        record.iTrack = track;
        record.cuePath = sound;
        record.artist = QStringLiteral("Singer");
        m_music.all.append(record);
        m_music.files.insert(id, files);
    }
    // A call of DelMusic, its ids in the text within the text.
    [[nodiscard]] QByteArray ids(const char *list, bool withFiles) const
    {
        const QString text = QStringLiteral("{\n    \"idFile\": [%1]\n}\n").arg(QString::fromUtf8(list));
        return QJsonDocument(QJsonObject{{"idFile", text}, {"delete", withFiles}}).toJson();
    }
};

} // namespace

TEST_F(RemovalTest, WithoutTheFlagOnlyTheRecordGoes)
{
    m_videos.files[7] = QStringList{make("films/a.mkv")};
    EXPECT_TRUE(result("VLibrary.DeleteMovie", params("false")).value("delete").toBool());
    EXPECT_TRUE(exists("films/a.mkv"));
    EXPECT_EQ(m_videos.removed, QVector<int>{7});
}

TEST_F(RemovalTest, WithTheFlagAllPartsAndVersionsGo)
{
    m_videos.files[7] = QStringList{make("films/a cd1.mkv"), make("films/a cd2.mkv")};
    const QString other = make("films/a.nfo");
    EXPECT_TRUE(result("VLibrary.DeleteEpisode", params("true")).value("delete").toBool());
    EXPECT_EQ(QDir(at("films")).entryList(QDir::Files), QStringList{QStringLiteral("a.nfo")});
    EXPECT_EQ(m_videos.removed, QVector<int>{7});
}

TEST_F(RemovalTest, AnUnknownItemIsAnError)
{
    EXPECT_EQ(refusal("VLibrary.DeleteMovie", params("true")), "there is no item with this idFile: 7");
    EXPECT_TRUE(m_videos.removed.isEmpty());
}

TEST_F(RemovalTest, AFileThatIsGoneAlreadyLetsTheRecordGo)
{
    m_videos.files[7] = QStringList{at("films/gone.mkv")};
    EXPECT_TRUE(result("VLibrary.DeleteMovie", params("true")).value("delete").toBool());
}

TEST_F(RemovalTest, NothingOutsideOfTheLibraryIsTouched)
{
    const QString outside = make("outside/a.mkv");
    const QString song = make("songs/a.flac");
    QFile::link(outside, at("films/link.mkv"));
    QFile::link(at("outside"), at("films/folder"));
    QDir().mkpath(at("films/plain folder"));
    const QString paths[] = {
        outside,
        song,
        at("films/../outside/a.mkv"),
        at("films/link.mkv"),
        at("films/folder/a.mkv"),
        at("films"),
        at("films/plain folder"),
        at("films/"),
    };
    for (const QString &path : paths) {
        const QString inside = make("films/kept.mkv");
        m_videos.files[7] = QStringList{inside, path};
        EXPECT_FALSE(refusal("VLibrary.DeleteMovie", params("true")).empty()) << qPrintable(path);
        EXPECT_TRUE(QFileInfo::exists(inside)) << qPrintable(path);
    }
    EXPECT_TRUE(QFileInfo::exists(outside));
    EXPECT_TRUE(QFileInfo::exists(song));
    EXPECT_TRUE(QFileInfo(at("films/link.mkv")).isSymLink());
    EXPECT_TRUE(m_videos.removed.isEmpty());
}

TEST_F(RemovalTest, OfADiscOnlyItsOwnFolderGoes)
{
    struct Row {
        const char *inside;
        const char *named;
        const char *gone;
    };
    const Row rows[] = {
        {"VIDEO_TS/VIDEO_TS.IFO", "folder.ifo", "VIDEO_TS"},
        {"video_ts/VIDEO_TS.IFO", "folder.ifo", "video_ts"},
        {"VIDEO_TS/VIDEO_TS.IFO", "VIDEO_TS/VIDEO_TS.IFO", "VIDEO_TS"},
        {"VIDEO_TS/VIDEO_TS.IFO", "VIDEO_TS", "VIDEO_TS"},
        {"BDMV/STREAM/1.m2ts", "folder.bdmv", "BDMV"},
        {"BDMV/STREAM/1.m2ts", "", "BDMV"},
        {"BDAV/info.bdav", "folder.bdav", "BDAV"},
        {"DVD_RTAV/VR_MANGR.IFO", "folder.dvdvr", "DVD_RTAV"},
    };
    for (const Row &row : rows) {
        const QByteArray disc("films/disc/");
        const QString inside = make(disc + row.inside);
        const QString other = make(disc + "home video.mkv");
        m_videos.files[7] = QStringList{QDir::cleanPath(at(disc + row.named))};
        EXPECT_TRUE(result("VLibrary.DeleteMovie", params("true")).value("delete").toBool()) << row.named;
        EXPECT_FALSE(QFileInfo::exists(at(disc + row.gone))) << row.named;
        EXPECT_TRUE(QFileInfo::exists(other)) << row.named;
    }
}

TEST_F(RemovalTest, AFileThatCannotBeRemovedKeepsItsRecord)
{
    // Files that nobody removes, whoever runs the test.
    m_roots.stored.first().path = QStringLiteral("/proc/self");
    m_videos.files[7] = QStringList{QStringLiteral("/proc/self/status")};
    EXPECT_NE(refusal("VLibrary.DeleteMovie", params("true")).find("could not be removed"),
              std::string::npos);
    EXPECT_TRUE(m_videos.removed.isEmpty());
}

TEST_F(RemovalTest, AFolderInPlaceOfAFileKeepsItsRecord)
{
    // A folder where the item's file was: nothing that may be removed, whoever asks.
    QDir().mkpath(at("films/a.mkv/inner"));
    m_videos.files[7] = QStringList{at("films/a.mkv")};
    EXPECT_NE(refusal("VLibrary.DeleteMovie", params("true")).find("may not be removed"), std::string::npos);
    EXPECT_TRUE(exists("films/a.mkv/inner"));
    EXPECT_TRUE(m_videos.removed.isEmpty());
}

TEST_F(RemovalTest, ALibraryFolderThatIsAwayKeepsItsRecords)
{
    m_videos.files[7] = QStringList{at("films/a.mkv")};
    QDir(at("films")).removeRecursively();
    EXPECT_NE(refusal("VLibrary.DeleteMovie", params("true")).find("cannot be reached"), std::string::npos);
    EXPECT_TRUE(m_videos.removed.isEmpty());
}

TEST_F(RemovalTest, ThreeSongsGoWithOneTextOfIds)
{
    for (int id = 1; id <= 4; ++id) {
        const QString path = make(QByteArray("songs/" + QByteArray::number(id) + ".flac"));
        song(id, path, -1, {path});
    }
    EXPECT_TRUE(result("VMusicLibrary.DelMusic", ids(R"("1", "2", "4")", true)).value("delete").toBool());
    EXPECT_EQ(m_music.removed, (QVector<int>{1, 2, 4}));
    EXPECT_EQ(QDir(at("songs")).entryList(QDir::Files), QStringList{QStringLiteral("3.flac")});
    EXPECT_EQ(refusal("VMusicLibrary.DelMusic", ids(R"("99")", false)), "there are no such songs");
    EXPECT_EQ(refusal("VMusicLibrary.DelMusic", R"({"idFile":[1],"delete":true})"),
              "key \"idFile\" must be a text");
}

TEST_F(RemovalTest, ATrackOfACueSheetLeavesTheSoundFileToTheOthers)
{
    const QString cue = make("songs/album.cue");
    const QString sound = make("songs/album.flac");
    for (int id = 1; id <= 3; ++id)
        song(id, cue, id, {cue, sound}, sound);
    EXPECT_TRUE(result("VMusicLibrary.DelMusic", ids(R"("2")", true)).value("delete").toBool());
    EXPECT_TRUE(QFileInfo::exists(cue));
    EXPECT_TRUE(QFileInfo::exists(sound));
    EXPECT_TRUE(result("VMusicLibrary.DelMusic", ids(R"("1", "3")", true)).value("delete").toBool());
    EXPECT_FALSE(QFileInfo::exists(cue));
    EXPECT_FALSE(QFileInfo::exists(sound));
    EXPECT_EQ(m_music.removed, (QVector<int>{2, 1, 3}));
}

TEST_F(RemovalTest, AllOfAnArtistGoOrNothingDoesForAnUnknownKind)
{
    const QString path = make("songs/a.flac");
    song(1, path, -1, {path});
    EXPECT_EQ(refusal("VMusicLibrary.DelAllMusic", R"({"delete":true,"type":"year","name":"Singer"})"),
              "key \"type\" must be \"artist\", \"genre\" or \"album\"");
    EXPECT_EQ(refusal("VMusicLibrary.DelAllMusic", R"({"delete":true,"type":"artist","name":"Nobody"})"),
              "there are no such songs");
    EXPECT_TRUE(QFileInfo::exists(path));
    EXPECT_TRUE(result("VMusicLibrary.DelAllMusic", R"({"delete":true,"type":"artist","name":"Singer"})")
                    .value("delete")
                    .toBool());
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(RemovalTest, ASongWhoseFileMayNotGoStaysWhileTheOthersLeave)
{
    const QString path = make("songs/a.flac");
    const QString outside = make("outside/b.flac");
    song(1, outside, -1, {outside});
    song(2, path, -1, {path});
    EXPECT_NE(refusal("VMusicLibrary.DelMusic", ids(R"("1", "2")", true)).find("lies in no library folder"),
              std::string::npos);
    EXPECT_EQ(m_music.removed, QVector<int>{2});
    EXPECT_TRUE(QFileInfo::exists(outside));
}
