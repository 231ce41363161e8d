// Subtitle files that belong to a source, in real plays: which ones open, which one shows, and that their
// characters are read right.
#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <QDir>
#include <QFile>
#include <QTextCodec>

#include <gtest/gtest.h>

using namespace libvp;

namespace {

std::string script(const std::string &text)
{
    return "1\n00:00:00,000 --> 00:00:09,500\n" + text + "\n";
}

class PlaySubtitleFiles : public testing::Test {
protected:
    // A copy of a clip under another name, with nothing beside it.
    std::string source(const char *clip, const char *name = "film")
    {
        const QString from = QString::fromStdString(TestClips::path(clip));
        const QString to = m_folder + "/" + name + "." + QFileInfo(from).suffix();
        EXPECT_TRUE(QFile::exists(to) || QFile::copy(from, to));
        return to.toStdString();
    }

    void make(const QString &name, const std::string &bytes)
    {
        const QString path = m_folder + "/" + name;
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        TestClips::write(path.toStdString(), bytes);
    }

    // Opens with the subtitle files and stops at the first picture.
    bool open(const std::string &path, int subtitle = VD_DefaultChoice)
    {
        EXPECT_TRUE(m_rig.tool->setBoolProperty("subtitles.autoload", true));
        PlayOptions options;
        options.plays = false;
        options.subtitle = subtitle;
        return m_rig.open(path, options);
    }

    bool shows(const std::string &text) { return m_rig.waitForProperty("sub-text", text); }

    bool waitForTracks(std::size_t count)
    {
        return m_rig.waitForProperty("track-list/count", [count](const MpvValue &value) {
            return value.integer() == static_cast<std::int64_t>(count);
        });
    }

    const QString m_folder = QString::fromStdString(TestClips::scratchFolder());
    PlayRig m_rig;
};

} // namespace

TEST_F(PlaySubtitleFiles, NothingOpensUntilItIsAskedFor)
{
    make("film.srt", script("beside"));
    ASSERT_TRUE(m_rig.open(source("plain.mp4")));
    EXPECT_EQ(m_rig.play->subtitleCount(0), 0);
}

TEST_F(PlaySubtitleFiles, TheFileOfTheSourcesNameShows)
{
    make("film.srt", script("beside"));
    ASSERT_TRUE(open(source("plain.mp4")));
    ASSERT_TRUE(shows("beside"));
    ASSERT_TRUE(m_rig.recorder->waitFor("SubtitleInfo"));
    ASSERT_EQ(m_rig.play->subtitleCount(0), 1);
    EXPECT_EQ(m_rig.play->getSubtitleInfo(0)->isExternal, 1);
    EXPECT_STREQ(m_rig.play->getSubtitleInfo(0)->name, "film.srt");
    EXPECT_EQ(m_rig.play->subtitleTrack(), 0);
}

TEST_F(PlaySubtitleFiles, FilesOfAllPlacesOpenAndTellTheirLanguage)
{
    make("film.en.srt", script("english"));
    make("Subs/film.de.srt", script("deutsch"));
    make("Subtitles/film.fr.srt", script("francais"));
    make("elsewhere/film.it.srt", script("italiano"));
    const std::string folder = (m_folder + "/elsewhere").toStdString();
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.folder", folder.c_str()));
    ASSERT_TRUE(open(source("plain.mp4")));
    ASSERT_TRUE(waitForTracks(6));
    ASSERT_TRUE(shows("deutsch") || shows("english"));
    std::vector<std::string> languages;
    ASSERT_EQ(m_rig.play->subtitleCount(0), 4);
    for (int i = 0; i < 4; ++i)
        languages.emplace_back(m_rig.play->getSubtitleInfo(i)->language);
    std::sort(languages.begin(), languages.end());
    EXPECT_EQ(languages, (std::vector<std::string>{"eng", "fre", "ger", "ita"}));
}

TEST_F(PlaySubtitleFiles, ThePreferredLanguageIsChosen)
{
    make("film.srt", script("any"));
    make("film.en.srt", script("english"));
    make("film.de.srt", script("deutsch"));
    make("film.de.forced.srt", script("gezwungen"));
    m_rig.tool->setPreferredSubtitleLanguage("de");
    ASSERT_TRUE(open(source("plain.mp4")));
    EXPECT_TRUE(shows("deutsch"));
    m_rig.tool->setPreferredSubtitleLanguage("jpn");
    ASSERT_TRUE(open(source("plain.mp4")));
    EXPECT_TRUE(shows("any")) << "a file of no told language stands for all";
}

TEST_F(PlaySubtitleFiles, ATrackOfTheSourceInTheWantedLanguageStays)
{
    make("film.it.srt", script("italiano"));
    m_rig.tool->setPreferredSubtitleLanguage("ger");
    ASSERT_TRUE(open(source("tracks.mkv")));
    ASSERT_TRUE(waitForTracks(8));
    EXPECT_TRUE(shows("Hello"));
    EXPECT_EQ(m_rig.play->subtitleTrack(), 1);
    m_rig.tool->setPreferredSubtitleLanguage("ita");
    ASSERT_TRUE(open(source("tracks.mkv")));
    EXPECT_TRUE(shows("italiano"));
}

TEST_F(PlaySubtitleFiles, NoneShowsWhenNoneIsWanted)
{
    make("film.srt", script("beside"));
    m_rig.tool->setPreferredSubtitleLanguage("close");
    ASSERT_TRUE(open(source("plain.mp4")));
    ASSERT_TRUE(waitForTracks(3));
    EXPECT_EQ(m_rig.tool->readProperty("sid"), MpvValue(false));
    m_rig.tool->setPreferredSubtitleLanguage("");
    ASSERT_TRUE(open(source("plain.mp4"), VD_NoSubtitle));
    ASSERT_TRUE(waitForTracks(3));
    EXPECT_EQ(m_rig.tool->readProperty("sid"), MpvValue(false));
    EXPECT_EQ(m_rig.play->subtitleCount(0), 1) << "it can be chosen all the same";
}

TEST_F(PlaySubtitleFiles, TheChoiceOfTheLastTimeMayBeAFile)
{
    make("film.en.srt", script("english"));
    make("film.fr.srt", script("francais"));
    ASSERT_TRUE(open(source("plain.mp4")));
    ASSERT_TRUE(shows("english"));
    m_rig.play->setSubtitleTrack(1);
    ASSERT_TRUE(shows("francais"));
    ASSERT_TRUE(m_rig.recorder->waitUntil([](const PlayRecorder::Event &event) {
        return event.name == "SubtitleInfo" && event.text == "fre";
    }));
    m_rig.close();
    ASSERT_TRUE(open(source("plain.mp4"), VD_ResumeChoice));
    EXPECT_TRUE(shows("francais")) << m_rig.tool->readProperty("sub-text").text();
}

TEST_F(PlaySubtitleFiles, RubbishBesideTheSourceHarmsNothing)
{
    std::string noise;
    for (unsigned i = 0; i < 70000; ++i)
        noise += static_cast<char>((i * 2654435761U) >> 13);
    make("film.srt", noise);
    make("film.ass", std::string(4096, '\0'));
    make("film.en.vtt", "\xFF\xFE\x00\xD8 broken");
    make("film.idx", "no index at all");
    make("film.list.srt", "#EXTM3U\n/etc/passwd\n");
    make("film.de.srt", script("deutsch"));
    ASSERT_TRUE(open(source("plain.mp4")));
    EXPECT_TRUE(shows("deutsch"));
    m_rig.play->togglePause();
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 300; })) << "the play goes on";
}

TEST_F(PlaySubtitleFiles, AFolderThatIsGoneHoldsNothingUp)
{
    make("film.srt", script("beside"));
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.folder", "/nowhere/at all"));
    ASSERT_TRUE(open(source("plain.mp4")));
    EXPECT_TRUE(shows("beside"));
}

// ---- characters

namespace {

struct CharsetRow {
    const char *name;
    const char *codec;
    const char *first; // UTF-8
    const char *second;
};

constexpr CharsetRow charsetRows[] = {
    {"Cyrillic of Windows", "windows-1251", "Привет, мир!", "Сегодня мы идём в кино, а потом гулять."},
    {"Cyrillic of Unix", "KOI8-R", "Привет, мир!", "Сегодня мы идём в кино."},
    {"simplified Chinese", "GB18030", "你好，世界！", "今天我们去看电影，然后在城里散步。"},
    {"traditional Chinese", "Big5", "你好，世界！", "今天我們去看電影，然後在城裡散步。"},
    {"Japanese", "Shift-JIS", "こんにちは、世界！", "今日は映画を見に行きます。"},
    {"Korean", "EUC-KR", "안녕하세요, 세계!", "오늘 우리는 영화를 보러 갑니다."},
    {"Latin-1", "ISO-8859-1", "Où êtes-vous, mon ami? À bientôt.", "Das Mädchen läuft über die Straße."},
    {"Greek", "windows-1253", "Καλημέρα κόσμε!", "Σήμερα πάμε σινεμά."},
    {"Turkish", "windows-1254", "İyi günler, nasılsınız?", "Bugün sinemaya gidiyoruz, şöyle böyle."},
    {"Arabic", "windows-1256", "مرحبا بالعالم", "اليوم نذهب إلى السينما"},
    {"UTF-8", "UTF-8", "Привет, 世界, héllo", "ça va"},
    {"UTF-16", "UTF-16LE", "Привет, 世界, héllo", "ça va"},
    {"UTF-16, other order", "UTF-16BE", "Привет, 世界, héllo 🎬", "ça va"},
};

class PlaySubtitleCharset : public PlaySubtitleFiles, public testing::WithParamInterface<CharsetRow> {};

} // namespace

TEST_P(PlaySubtitleCharset, IsFoundOut)
{
    const CharsetRow &row = GetParam();
    QTextCodec *codec = QTextCodec::codecForName(row.codec);
    ASSERT_NE(codec, nullptr);
    QString text;
    for (int i = 0; i < 20; ++i)
        text += QString("%1\n00:00:%2,000 --> 00:00:%2,900\n%3\n\n")
                    .arg(i + 1)
                    .arg(i, 2, 10, QChar('0'))
                    .arg(QString::fromUtf8(i % 2 ? row.second : row.first));
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QByteArray bytes = codec->fromUnicode(text.constData(), text.size(), &state);
    ASSERT_EQ(state.invalidChars, 0);
    if (qstrcmp(row.codec, "UTF-16LE") == 0)
        bytes.prepend("\xFF\xFE");
    else if (qstrcmp(row.codec, "UTF-16BE") == 0)
        bytes.prepend("\xFE\xFF");
    make("film.srt", bytes.toStdString());
    ASSERT_TRUE(open(source("plain.mp4")));
    EXPECT_TRUE(shows(row.first)) << m_rig.tool->readProperty("sub-text").text();
}

INSTANTIATE_TEST_SUITE_P(All, PlaySubtitleCharset, testing::ValuesIn(charsetRows),
                         [](const testing::TestParamInfo<CharsetRow> &row) {
                             std::string name = row.param.codec;
                             name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                             return name;
                         });

namespace {

// Without a mark.
std::string utf16(const QString &text, bool bigEndian)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(bigEndian ? "UTF-16BE" : "UTF-16LE")
        ->fromUnicode(text.constData(), text.size(), &state)
        .toStdString();
}

} // namespace

TEST_F(PlaySubtitleFiles, Utf16WithoutAMarkIsRecognised)
{
    for (const bool bigEndian : {false, true}) {
        make("film.srt", utf16(QString::fromStdString(script("Привет")), bigEndian));
        ASSERT_TRUE(open(source("plain.mp4")));
        EXPECT_TRUE(shows("Привет")) << bigEndian;
        EXPECT_STREQ(m_rig.play->getSubtitleInfo(0)->name, "film.srt");
    }
}

TEST_F(PlaySubtitleFiles, AFileInUtf16MayBeAddedByHand)
{
    const std::string file = TestClips::scratchFolder() + "/hand.srt";
    TestClips::write(file, "\xFF\xFE" + utf16(QString::fromStdString(script("П")), false));
    ASSERT_TRUE(open(source("plain.mp4")));
    ASSERT_EQ(m_rig.play->addSubtitle(file.c_str()), 0);
    EXPECT_EQ(m_rig.play->addSubtitle(file.c_str()), 0);
    m_rig.play->setSubtitleTrack(0);
    EXPECT_TRUE(shows("П"));
    // libmpv reads the open files again.
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.charset", "1252"));
    EXPECT_TRUE(m_rig.waitForProperty("sub-codepage", "cp1252"));
    EXPECT_TRUE(shows("П"));
}

TEST_F(PlaySubtitleFiles, AChosenCharacterSetIsForced)
{
    // Bytes that are letters in both.
    make("film.srt", script("\xCF\xF0\xE8\xE2\xE5\xF2"));
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.charset", "1253"));
    ASSERT_TRUE(open(source("plain.mp4")));
    EXPECT_TRUE(shows("Οπθβες")) << m_rig.tool->readProperty("sub-text").text();
    ASSERT_TRUE(m_rig.tool->setStringProperty("subtitles.charset", "1251"));
    EXPECT_TRUE(shows("Привет")) << m_rig.tool->readProperty("sub-text").text();
}
