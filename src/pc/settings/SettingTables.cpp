#include "SettingTables.h"

#include "core/LanguageTable.h"
#include "core/SettingsDefaults.h"
#include "core/SettingsKeys.h"
#include "player/PreferenceRows.h"
#include "player/PreferenceValues.h"
#include "player/SubtitleCharsets.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace SettingTables {

namespace {

using namespace SettingsKeys;

constexpr const char *Titles[SettingsPageCount] = {
    QT_TRANSLATE_NOOP("NormalSettingPage", "General"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Playback"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Library"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Video"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "3D Display"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Audio"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Subtitle"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Blu-ray"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "File Association"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Snapshot"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "HotKeys"),
    QT_TRANSLATE_NOOP("NormalSettingPage", "Network"),
};

using Choices = std::vector<SettingChoice>;

SettingRow onOff(const char *key, const char *text, SaveStep step, bool standard)
{
    return {key, SettingControl::Switch, text, step, standard};
}

// What the engine gets has its default and its range where it is handed over.
SettingRow onOff(const FlagRow &row, const char *text, SaveStep step)
{
    return onOff(row.key, text, step, row.fallback);
}

std::function<QVariant(const QVariant &)> takenNumber(const NumberRow &row)
{
    return [row](const QVariant &stored) {
        const std::optional<int> number = PreferenceValues::number(row, stored);
        return number ? QVariant(*number) : QVariant();
    };
}

QVariant takenColor(const QVariant &stored)
{
    const std::optional<QString> color = PreferenceValues::color(stored);
    return color ? QVariant(*color) : QVariant();
}

SettingRow choice(const char *key, const char *text, SaveStep step, QVariant standard, Choices choices)
{
    return {key, SettingControl::Choice, text, step, std::move(standard), std::move(choices)};
}

SettingRow choice(const NumberRow &row, const char *text, SaveStep step, Choices choices)
{
    SettingRow made = choice(row.key, text, step, row.fallback, std::move(choices));
    made.taken = takenNumber(row);
    return made;
}

SettingRow radio(const char *key, const char *text, SaveStep step, QVariant standard, Choices choices)
{
    return {key, SettingControl::Radio, text, step, std::move(standard), std::move(choices)};
}

SettingRow slider(const char *key, const char *text, SaveStep step, int standard, int minimum, int maximum,
                  std::function<QString(int)> valueText = {})
{
    SettingRow row{key, SettingControl::Slider, text, step, standard};
    row.minimum = minimum;
    row.maximum = maximum;
    row.valueText = std::move(valueText);
    return row;
}

SettingRow slider(const NumberRow &row, const char *text, SaveStep step,
                  std::function<QString(int)> valueText = {})
{
    SettingRow made = slider(row.key, text, step, row.fallback, row.least, row.most, std::move(valueText));
    made.taken = takenNumber(row);
    return made;
}

SettingRow folder(const char *key, const char *text, SaveStep step, const QString &standard, FolderNeed need)
{
    SettingRow row{key, SettingControl::Folder, text, step, standard};
    row.folder = need;
    return row;
}

SettingRow plain(const char *key, SettingControl control, const char *text, SaveStep step,
                 const QString &standard = QStringLiteral(""))
{
    return {key, control, text, step, standard};
}

SettingRow color(const TextRow &row, const char *text, SaveStep step)
{
    SettingRow made = plain(row.key, SettingControl::Color, text, step, QString::fromLatin1(row.fallback));
    made.taken = takenColor;
    return made;
}

SettingRow hidden(const char *key, SaveStep step, QVariant standard)
{
    return {key, SettingControl::None, "", step, std::move(standard)};
}

SettingRow under(const char *head, SettingRow row)
{
    row.head = head;
    return row;
}

SettingRow notStored(SettingRow row)
{
    row.isStored = false;
    return row;
}

QString seconds(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    return QCoreApplication::translate("NormalSettingPage", "%1 s").arg(value > 0 ? '+' + text : text);
}

QString wholeSeconds(int value)
{
    return seconds(value, 0);
}

QString subtitleSeconds(int value)
{
    return seconds(double(value * PreferenceRows::SecondsPerOffsetStep), 1);
}

QString percent(int value)
{
    return QStringLiteral("%1 %").arg(value);
}

QString plus(int value)
{
    return value > 0 ? QStringLiteral("+%1").arg(value) : QString::number(value);
}

Choices interfaceLanguages()
{
    Choices choices;
    for (const LanguageEntry &entry : LanguageTable::interfaceLanguages())
        choices.push_back({"", entry.code, entry.name});
    return choices;
}

Choices discLanguages(bool withOff)
{
    Choices choices{{QT_TRANSLATE_NOOP("NormalSettingPage", "Same as UI language"), QStringLiteral("same")}};
    if (withOff)
        choices.push_back({QT_TRANSLATE_NOOP("NormalSettingPage", "Off"), QStringLiteral("close")});
    for (const LanguageEntry &entry : LanguageTable::entries())
        choices.push_back({"", entry.code, entry.name});
    return choices;
}

Choices playModes()
{
    return {{QT_TRANSLATE_NOOP("NormalSettingPage", "Simple Mode"), false},
            {QT_TRANSLATE_NOOP("NormalSettingPage", "Menu Mode"), true}};
}

Choices charsets()
{
    Choices choices;
    for (const SubtitleCharsets::Row &row : SubtitleCharsets::rows())
        choices.push_back({row.name, QString::number(row.codePage), {}, "SubtitleCharsets"});
    return choices;
}

// The window's policy is stored in these very words.
constexpr char MatchVideo[] =
    QT_TRANSLATE_NOOP("NormalSettingPage", "Always match to the original video size");
constexpr char RememberLast[] = QT_TRANSLATE_NOOP("NormalSettingPage", "Always remember the last choice");

std::vector<SettingRow> generalRows(const SettingsFacts &facts)
{
    constexpr auto step = SaveStep::General;
    return {
        choice(PC_Language, QT_TRANSLATE_NOOP("NormalSettingPage", "UI Language"), step, facts.systemLanguage,
               interfaceLanguages()),
        choice(launchModeVersion6, QT_TRANSLATE_NOOP("NormalSettingPage", "Launch Mode"), step, 1,
               {{QT_TRANSLATE_NOOP("NormalSettingPage", "Ask me each time"), 0},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "PC Mode"), 1},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "TV Mode"), 2}}),
        choice(PC_WindowSize, QT_TRANSLATE_NOOP("NormalSettingPage", "Window size"), step,
               QString::fromLatin1(RememberLast),
               {{MatchVideo, QString::fromLatin1(MatchVideo)},
                {RememberLast, QString::fromLatin1(RememberLast)}}),
        folder(PC_LogPath, QT_TRANSLATE_NOOP("NormalSettingPage", "Log Path"), step, facts.logFolder,
               FolderNeed::Writable),
        onOff(PC_AutoPlay, QT_TRANSLATE_NOOP("NormalSettingPage", "Auto play when disc inserted"), step,
              true),
        onOff(PC_PausePlay, QT_TRANSLATE_NOOP("NormalSettingPage", "Pause play when minimized"), step, false),
        onOff(PC_ShowProgress, QT_TRANSLATE_NOOP("NormalSettingPage", "Show progress in taskbar"), step,
              true),
        onOff(PC_RememberPosition,
              QT_TRANSLATE_NOOP("NormalSettingPage", "Remember the last playback position"), step, false),
        onOff(PC_DisableScreenSaver, QT_TRANSLATE_NOOP("NormalSettingPage", "Disable Screensaver"), step,
              SettingsDefaults::PC_DisableScreenSaver),
        onOff(PC_MultipleInstance, QT_TRANSLATE_NOOP("NormalSettingPage", "Allow multiple instances"), step,
              false),
        onOff(PC_CheckUpdate, QT_TRANSLATE_NOOP("NormalSettingPage", "Check for new version automatically"),
              step, SettingsDefaults::PC_CheckUpdate),
    };
}

std::vector<SettingRow> playbackRows()
{
    return {
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Discs"),
              choice(PC_DVDPlayMode, QT_TRANSLATE_NOOP("NormalSettingPage", "DVD Playback Mode"),
                     SaveStep::PlayModes, false, playModes())),
        choice(PC_BDPlayMode, QT_TRANSLATE_NOOP("NormalSettingPage", "UHD / Blu-ray Playback Mode"),
               SaveStep::PlayModes, false, playModes()),
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Languages"),
              choice(PC_MenuLanguage, QT_TRANSLATE_NOOP("NormalSettingPage", "Menu language"),
                     SaveStep::Languages, QStringLiteral("same"), discLanguages(false))),
        choice(PC_AudioLanguage, QT_TRANSLATE_NOOP("NormalSettingPage", "Audio language"),
               SaveStep::Languages, QStringLiteral("same"), discLanguages(false)),
        choice(PC_SubtitleLanguage, QT_TRANSLATE_NOOP("NormalSettingPage", "Subtitle language"),
               SaveStep::Languages, QStringLiteral("same"), discLanguages(true)),
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Tips"),
              onOff(PC_PlayStateTip, QT_TRANSLATE_NOOP("NormalSettingPage", "Show tips for playback status"),
                    SaveStep::PlayModes, true)),
    };
}

std::vector<SettingRow> libraryRows()
{
    return {onOff(PC_EnableAdultContent,
                  QT_TRANSLATE_NOOP("NormalSettingPage", "Enable the library for adult contents"),
                  SaveStep::LibraryState, false)};
}

std::vector<SettingRow> videoRows()
{
    constexpr auto step = SaveStep::Video;
    return {
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Decoding"),
              onOff(PreferenceRows::Hardware,
                    QT_TRANSLATE_NOOP("NormalSettingPage", "Enable Hardware Acceleration Decoding"), step)),
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "HDR"),
              onOff(PreferenceRows::Hdr, QT_TRANSLATE_NOOP("NormalSettingPage", "Enable HDR"), step)),
        choice(PreferenceRows::HdrMode, QT_TRANSLATE_NOOP("NormalSettingPage", "Mode"), step,
               {{QT_TRANSLATE_NOOP("NormalSettingPage", "Auto"), 0},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Force HDR->SDR"), 1}}),
        choice(PreferenceRows::SdrMode, QT_TRANSLATE_NOOP("NormalSettingPage", "Tone map"), step,
               {{QT_TRANSLATE_NOOP("NormalSettingPage", "Simple"), 0},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Hable"), 1},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Filmic"), 2},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Aces"), 3},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Auto"), PreferenceRows::SdrMode.fallback}}),
        slider(PreferenceRows::SdrValue, QT_TRANSLATE_NOOP("NormalSettingPage", "Luminance Scale:"), step,
               percent),
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Output"),
              choice(PreferenceRows::ColorMode, QT_TRANSLATE_NOOP("NormalSettingPage", "Output Color Range "),
                     step,
                     {{QT_TRANSLATE_NOOP("NormalSettingPage", "Full Color Range (0-255)"),
                       PreferenceRows::FullRange},
                      {QT_TRANSLATE_NOOP("NormalSettingPage", "Limited Color Range (16-235)"), 0}})),
    };
}

std::vector<SettingRow> display3DRows(const SettingsFacts &facts)
{
    constexpr auto step = SaveStep::Display3D;
    const bool isOn = !facts.isWindows7;
    return {
        onOff(PC_3DEngine,
              QT_TRANSLATE_NOOP("NormalSettingPage",
                                "Enable 3D Playback Engine (effective upon next playback)"),
              step, isOn),
        onOff(PC_PlayIn3D, QT_TRANSLATE_NOOP("NormalSettingPage", "Play 3D Media in 3D"), step, isOn),
        onOff(PC_ConvertTo3D, QT_TRANSLATE_NOOP("NormalSettingPage", "Convert 2D Media to 3D"), step, false),
        choice(PC_3DMode, QT_TRANSLATE_NOOP("NormalSettingPage", "3D Display Device"), step, 0,
               {{QT_TRANSLATE_NOOP("NormalSettingPage", "Auto"), 0},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Anaglyph Red/Cyan Mode"), 1},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "3D-Ready HDTV (Checkerboard)"), 2},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Micro-polarizer LCD 3D (Row-interleaved)"), 3},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "HDMI 1.4 enabled 3D TV"), Hdmi14Mode}}),
        choice(PC_MoveDirection, QT_TRANSLATE_NOOP("NormalSettingPage", "Swap eye view"), step, 0,
               {{QT_TRANSLATE_NOOP("NormalSettingPage", "Left view first"), 0},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Right view first"), 1}}),
    };
}

std::vector<SettingRow> audioRows()
{
    constexpr auto step = SaveStep::Audio;
    return {
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Output"),
              notStored(choice(
                  OutputMode, QT_TRANSLATE_NOOP("NormalSettingPage", "Output Mode"), step, int(OutputNone),
                  {{QT_TRANSLATE_NOOP("NormalSettingPage", "None"), int(OutputNone)},
                   {QT_TRANSLATE_NOOP("NormalSettingPage", "Analog"), int(OutputAnalog)},
                   {QT_TRANSLATE_NOOP("NormalSettingPage", "Optical/Coax"), int(OutputOptical)},
                   {QT_TRANSLATE_NOOP("NormalSettingPage", "HDMI"), int(OutputHdmi)},
                   {QT_TRANSLATE_NOOP("NormalSettingPage", "DisplayPort"), int(OutputDisplayPort)}}))),
        plain(PC_DefaultAudioDeviceName, SettingControl::Device,
              QT_TRANSLATE_NOOP("NormalSettingPage", "Output Device"), step),
        choice(
            PreferenceRows::Speaker, QT_TRANSLATE_NOOP("NormalSettingPage", "Speaker"), step,
            {{"", 0, QStringLiteral("2.0")}, {"", 1, QStringLiteral("5.1")}, {"", 2, QStringLiteral("7.1")}}),
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Passthrough"),
              onOff(PC_PassThrough, QT_TRANSLATE_NOOP("NormalSettingPage", "Enable Audio Passthrough"), step,
                    false)),
        hidden(PC_PassThroughButtonEnable, step, true),
        onOff(PreferenceRows::Ac3,
              QT_TRANSLATE_NOOP("NormalSettingPage", "Dolby Digital(AC3) capable receiver"), step),
        onOff(PreferenceRows::Dts, QT_TRANSLATE_NOOP("NormalSettingPage", "DTS capable receiver"), step),
        onOff(PreferenceRows::TrueHd,
              QT_TRANSLATE_NOOP("NormalSettingPage", "TrueHD/DTS-HD capable receiver"), step),
        under(QT_TRANSLATE_NOOP("NormalSettingPage", "Level and timing"),
              slider(PreferenceRows::Amplification,
                     QT_TRANSLATE_NOOP("NormalSettingPage", "Volume Amplification"), step, plus)),
        slider(PreferenceRows::AudioOffset, QT_TRANSLATE_NOOP("NormalSettingPage", "Audio Offset"), step,
               wholeSeconds),
    };
}

std::vector<SettingRow> subtitleRows()
{
    constexpr auto step = SaveStep::Subtitle;
    return {
        plain(PC_Font, SettingControl::FontFamily, QT_TRANSLATE_NOOP("NormalSettingPage", "Font"), step),
        choice(PC_Charset, QT_TRANSLATE_NOOP("NormalSettingPage", "Charset"), step,
               QString::fromLatin1(PreferenceRows::Charset.fallback), charsets()),
        slider(PreferenceRows::FontSize, QT_TRANSLATE_NOOP("NormalSettingPage", "Size"), step),
        choice(PC_FontPosition, QT_TRANSLATE_NOOP("NormalSettingPage", "Position"), step,
               QString::fromLatin1(PreferenceRows::FontPosition.fallback),
               {{QT_TRANSLATE_NOOP("NormalSettingPage", "Top"),
                 QString::fromLatin1(PreferenceRows::TopPosition)},
                {QT_TRANSLATE_NOOP("NormalSettingPage", "Bottom"),
                 QString::fromLatin1(PreferenceRows::FontPosition.fallback)}}),
        color(PreferenceRows::FontColor, QT_TRANSLATE_NOOP("NormalSettingPage", "Color"), step),
        color(PreferenceRows::OutLineColor, QT_TRANSLATE_NOOP("NormalSettingPage", "OutLine Color"), step),
        onOff(PreferenceRows::Bold, QT_TRANSLATE_NOOP("NormalSettingPage", "Bold"), step),
        onOff(PreferenceRows::Italic, QT_TRANSLATE_NOOP("NormalSettingPage", "Italic"), step),
        onOff(PreferenceRows::OutLine, QT_TRANSLATE_NOOP("NormalSettingPage", "Outline"), step),
        onOff(PreferenceRows::OverrideAss,
              QT_TRANSLATE_NOOP("NormalSettingPage", "Override Ass/SSA subtitles config"), step),
        folder(PC_SubtitlePath, QT_TRANSLATE_NOOP("NormalSettingPage", "Path"), step, QStringLiteral(""),
               FolderNeed::Readable),
        slider(PreferenceRows::SubtitleOffset, QT_TRANSLATE_NOOP("NormalSettingPage", "Subtitle Offset"),
               step, subtitleSeconds),
    };
}

SettingRow region(SaveStep step)
{
    SettingRow row = radio(PC_RegionCode, QT_TRANSLATE_NOOP("NormalSettingPage", "Region"), step,
                           PreferenceRows::Region.fallback,
                           {{QT_TRANSLATE_NOOP("NormalSettingPage", "Region A"), 1},
                            {QT_TRANSLATE_NOOP("NormalSettingPage", "Region B"), 2},
                            {QT_TRANSLATE_NOOP("NormalSettingPage", "Region C"), 3}});
    row.taken = takenNumber(PreferenceRows::Region);
    return row;
}

std::vector<SettingRow> bluRayRows()
{
    constexpr auto step = SaveStep::BluRay;
    return {
        region(step),
        onOff(PC_EnableBD,
              QT_TRANSLATE_NOOP("NormalSettingPage", "Enable Blu-ray 3D playback when in Simple Mode"), step,
              true),
        onOff(PC_SkipFBI, QT_TRANSLATE_NOOP("NormalSettingPage", "Skip FBI warnings"), step, false),
        onOff(PC_JumpToMenu, QT_TRANSLATE_NOOP("NormalSettingPage", "Jump to Blu-ray menu directly"), step,
              false),
    };
}

std::vector<SettingRow> fileAssociationRows()
{
    // Stored together with the list of the text box, which is no single value.
    return {notStored(onOff(EnableFileAssociation,
                            QT_TRANSLATE_NOOP("NormalSettingPage", "Set File Associations"),
                            SaveStep::FileAssociation, false))};
}

std::vector<SettingRow> snapshotRows(const SettingsFacts &facts)
{
    constexpr auto step = SaveStep::Snapshot;
    return {
        folder(PC_SnapShotPath, QT_TRANSLATE_NOOP("NormalSettingPage", "Location"), step,
               facts.picturesFolder, FolderNeed::Writable),
        choice(PC_SnapShotType, QT_TRANSLATE_NOOP("NormalSettingPage", "Type"), step, QStringLiteral(".PNG"),
               {{"", QStringLiteral(".PNG"), QStringLiteral(".PNG")},
                {"", QStringLiteral(".JPG"), QStringLiteral(".JPG")},
                {"", QStringLiteral(".BMP"), QStringLiteral(".BMP")}}),
        onOff(PC_SaveToDipboard,
              QT_TRANSLATE_NOOP("NormalSettingPage",
                                "Save to clipboard simultaneously(you can paste it directly)"),
              step, true),
    };
}

std::vector<SettingRow> networkRows(const SettingsFacts &facts)
{
    constexpr auto step = SaveStep::Network;
    const char *systemText = facts.isWindows
                                 ? QT_TRANSLATE_NOOP("NormalSettingPage", "Use IE proxy")
                                 : QT_TRANSLATE_NOOP("NormalSettingPage", "Use the system's proxy");
    return {
        notStored(radio(ProxyChoice, QT_TRANSLATE_NOOP("NormalSettingPage", "Proxy"), step, int(NoProxy),
                        {{QT_TRANSLATE_NOOP("NormalSettingPage", "Do not use proxy"), int(NoProxy)},
                         {systemText, int(SystemProxy)},
                         {QT_TRANSLATE_NOOP("NormalSettingPage", "Use manual proxy"), int(ManualProxy)}})),
        choice(
            PC_ProxyType, QT_TRANSLATE_NOOP("NormalSettingPage", "Type"), step, int(ProxyHttp),
            {{"", int(ProxyHttp), QStringLiteral("HTTP")}, {"", int(ProxySocks), QStringLiteral("SOCKS")}}),
        plain(PC_ProxyHost, SettingControl::Text, QT_TRANSLATE_NOOP("NormalSettingPage", "Host"), step),
        plain(PC_ProxyPort, SettingControl::Text, QT_TRANSLATE_NOOP("NormalSettingPage", "Port"), step),
        plain(PC_ProxyUserName, SettingControl::Text, QT_TRANSLATE_NOOP("NormalSettingPage", "Username"),
              step),
        plain(PC_ProxyPasswd, SettingControl::Secret, QT_TRANSLATE_NOOP("NormalSettingPage", "Password"),
              step),
    };
}

} // namespace

const char *pageTitle(SettingsPageId page)
{
    return Titles[int(page)];
}

std::vector<SettingRow> rows(SettingsPageId page, const SettingsFacts &facts)
{
    switch (page) {
    case SettingsPageId::General:
        return generalRows(facts);
    case SettingsPageId::Playback:
        return playbackRows();
    case SettingsPageId::Library:
        return libraryRows();
    case SettingsPageId::Video:
        return videoRows();
    case SettingsPageId::Display3D:
        return display3DRows(facts);
    case SettingsPageId::Audio:
        return audioRows();
    case SettingsPageId::Subtitle:
        return subtitleRows();
    case SettingsPageId::BluRay:
        return bluRayRows();
    case SettingsPageId::FileAssociation:
        return fileAssociationRows();
    case SettingsPageId::Snapshot:
        return snapshotRows(facts);
    case SettingsPageId::HotKeys:
        return {};
    case SettingsPageId::Network:
        return networkRows(facts);
    }
    return {};
}

SettingsPageId pageOf(SaveStep step)
{
    switch (step) {
    case SaveStep::General:
        return SettingsPageId::General;
    case SaveStep::PlayModes:
    case SaveStep::Languages:
        return SettingsPageId::Playback;
    case SaveStep::LibraryState:
        return SettingsPageId::Library;
    case SaveStep::Video:
        return SettingsPageId::Video;
    case SaveStep::Audio:
        return SettingsPageId::Audio;
    case SaveStep::Display3D:
        return SettingsPageId::Display3D;
    case SaveStep::Subtitle:
        return SettingsPageId::Subtitle;
    case SaveStep::BluRay:
        return SettingsPageId::BluRay;
    case SaveStep::FileAssociation:
        return SettingsPageId::FileAssociation;
    case SaveStep::Snapshot:
        return SettingsPageId::Snapshot;
    case SaveStep::HotKeys:
        return SettingsPageId::HotKeys;
    case SaveStep::Network:
        return SettingsPageId::Network;
    }
    return SettingsPageId::General;
}

} // namespace SettingTables
