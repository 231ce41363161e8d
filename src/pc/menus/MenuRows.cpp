#include "MenuRows.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "playcontrol/BehaviourNames.h"
#include "player/EnginePreferences.h"
#include "player/QPlayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstring>

namespace {

using Kind = MenuRow::Kind;
using Need = MenuRow::Need;
using Place = MenuPlace;

// A command of the disc's menu; which of the two is its value.
constexpr int kCallDiscMenu = 6;
constexpr float kTopMenu = 1.0F;
constexpr float kPopupMenu = 0.0F;
constexpr int kStepSeconds = 10;
constexpr int kNormalSpeed = 9;
constexpr char kPlayStatusKey[] = "playStatusSwitch";

constexpr char kContext[] = "PlayMenu";

int number(const QString &argument)
{
    return argument.toInt(nullptr, 10); // 0 for what is none
}

template<int Mode>
void setViewMode(MenuHost &host, const QString &)
{
    host.player()->setViewMode(Mode);
}

template<int Mode>
bool isViewMode(const MenuState &state)
{
    return state.viewMode == Mode;
}

template<int Mode>
void setDeinterlace(MenuHost &host, const QString &)
{
    host.player()->setDeinterlaceMode(Mode);
    host.settings.setValue(QLatin1String(SettingsKeys::PC_Deinterlace), Mode);
}

template<int Mode>
bool isDeinterlace(const MenuState &state)
{
    return state.deinterlace == Mode;
}

template<int FlipKind>
void flip(MenuHost &host, const QString &)
{
    host.player()->flip(FlipKind);
}

template<int Seconds>
void seekBy(MenuHost &host, const QString &)
{
    QPlayer &player = *host.player();
    const double target = qMax(0.0, player.currentTime() + Seconds);
    // A stream may have no length that is known.
    const double total = player.totalTime();
    host.seek(qRound(total > 0 ? qMin(target, total) : target));
}

void cycleAudio(MenuHost &host, const QString &)
{
    QPlayer &player = *host.player();
    const int count = player.audioCount();
    if (count > 0)
        player.setAudioTrack((player.audioTrack() + 1) % count);
}

void cycleSubtitle(MenuHost &host, const QString &)
{
    QPlayer &player = *host.player();
    const int count = player.subtitleCount();
    if (count <= 0)
        return;
    // The step after the last track switches subtitles off.
    const int next = player.isSubtitleVisible() ? player.subtitleTrack() + 1 : 0;
    player.setSubtitleTrack(next < count ? next : -1);
}

// The one in use is switched off by choosing it again.
void useShader(MenuHost &host, const QString &name)
{
    QPlayer &player = *host.player();
    const QString path = MenuRows::shaderPath(host, name);
    const bool isInUse = !path.isEmpty() && QFileInfo(player.customShader()) == QFileInfo(path);
    EnginePreferences(host.settings, player).applyShader(isInUse ? QString() : path);
    host.noteUse(QLatin1String(BehaviourNames::ShaderUsed), QLatin1String(BehaviourNames::Used));
}

constexpr MenuRow line(Place place)
{
    return {place, Kind::Line, "", "", Need::Nothing};
}

constexpr MenuRow submenu(Place place, const char *text, Need need, Place child)
{
    return {place, Kind::Submenu, "", text, need, MenuRow::NoKeyOperation, nullptr, nullptr, child};
}

constexpr MenuRow list(Place place, const char *prefix, const char *text, Need need,
                       QVector<MenuState::Entry> MenuState::*entries,
                       void (*run)(MenuHost &, const QString &))
{
    return {place, Kind::List, prefix,     text,   need, MenuRow::NoKeyOperation,
            run,   nullptr,    Place::Top, entries};
}

constexpr MenuRow command(Place place, const char *key, const char *text, Need need, int keyOperation,
                          void (*run)(MenuHost &, const QString &),
                          bool (*isChecked)(const MenuState &) = nullptr)
{
    return {place, Kind::Command, key, text, need, keyOperation, run, isChecked};
}

constexpr int kNoKey = MenuRow::NoKeyOperation;

} // namespace

const std::vector<MenuRow> &MenuRows::all()
{
    static const std::vector<MenuRow> rows{
        command(Place::Top, "Open Media", QT_TRANSLATE_NOOP("PlayMenu", "Open Media..."), Need::Nothing,
                KeyOperate_OpenFile, [](MenuHost &host, const QString &) { host.openMedia(); }),
        list(Place::Top, "open disc_", QT_TRANSLATE_NOOP("PlayMenu", "Open Disc"), Need::Nothing,
             &MenuState::discs, [](MenuHost &host, const QString &drive) { host.playDisc(drive); }),
        line(Place::Top),
        submenu(Place::Top, QT_TRANSLATE_NOOP("PlayMenu", "Chapter"), Need::Source, Place::Chapter),
        command(Place::Top, "top Menu", QT_TRANSLATE_NOOP("PlayMenu", "Top Menu"), Need::DiscMenu,
                KeyOperate_TopMenu,
                [](MenuHost &host, const QString &) { host.player()->menuCommand(kCallDiscMenu, kTopMenu); }),
        command(
            Place::Top, "pop Menu", QT_TRANSLATE_NOOP("PlayMenu", "Pop Menu"), Need::DiscMenu,
            KeyOperate_PopupMenu,
            [](MenuHost &host, const QString &) { host.player()->menuCommand(kCallDiscMenu, kPopupMenu); }),
        line(Place::Top),
        submenu(Place::Top, QT_TRANSLATE_NOOP("PlayMenu", "Video"), Need::Source, Place::Video),
        submenu(Place::Top, QT_TRANSLATE_NOOP("PlayMenu", "Audio"), Need::Source, Place::Audio),
        submenu(Place::Top, QT_TRANSLATE_NOOP("PlayMenu", "Subtitle"), Need::Source, Place::Subtitle),
        submenu(Place::Top, QT_TRANSLATE_NOOP("PlayMenu", "Playback"), Need::Source, Place::Playback),
        submenu(Place::Top, QT_TRANSLATE_NOOP("PlayMenu", "Shaders"), Need::Source, Place::Shaders),
        line(Place::Top),
        command(Place::Top, "full Screen", QT_TRANSLATE_NOOP("PlayMenu", "Full Screen"), Need::Nothing,
                KeyOperate_FullScreen, [](MenuHost &host, const QString &) { host.fullScreen(); }),
        command(
            Place::Top, "always on Top", QT_TRANSLATE_NOOP("PlayMenu", "Always on Top"), Need::SourceInMenu,
            KeyOperate_AlwaysOnTop, [](MenuHost &host, const QString &) { host.alwaysOnTop(); },
            [](const MenuState &state) { return state.isAlwaysOnTop; }),
        command(
            Place::Top, "information", QT_TRANSLATE_NOOP("PlayMenu", "Information"), Need::SourceInMenu,
            KeyOperate_ShowInformation, [](MenuHost &host, const QString &) { host.information(); },
            [](const MenuState &state) { return state.isInformationShown; }),
        command(Place::Top, "setting", QT_TRANSLATE_NOOP("PlayMenu", "Settings..."), Need::Nothing,
                KeyOperate_Settings, [](MenuHost &host, const QString &) { host.settingsPage(); }),

        list(Place::Chapter, "Chapter_", "", Need::Source, &MenuState::chapters,
             [](MenuHost &host, const QString &chapter) { host.player()->goToChapter(number(chapter)); }),

        submenu(Place::Video, QT_TRANSLATE_NOOP("PlayMenu", "Aspect Ratio"), Need::Source,
                Place::AspectRatio),
        submenu(Place::Video, QT_TRANSLATE_NOOP("PlayMenu", "Deinterlace"), Need::Source, Place::Deinterlace),
        submenu(Place::Video, QT_TRANSLATE_NOOP("PlayMenu", "Rotate"), Need::Source, Place::Rotate),
        line(Place::Video),
        command(Place::Video, "video Control", QT_TRANSLATE_NOOP("PlayMenu", "Video Control..."),
                Need::Source, kNoKey, [](MenuHost &host, const QString &) { host.videoControl(); }),
        command(Place::Video, "color Adjust", QT_TRANSLATE_NOOP("PlayMenu", "Color Adjust..."), Need::Source,
                kNoKey, [](MenuHost &host, const QString &) { host.colorAdjust(); }),
        line(Place::Video),
        command(Place::Video, "take Snapshot", QT_TRANSLATE_NOOP("PlayMenu", "Take Snapshot"), Need::Source,
                KeyOperate_Snapshot,
                [](MenuHost &host, const QString &) { host.player()->takeScreenshot(0, 0, 0); }),

        command(Place::AspectRatio, "Default", QT_TRANSLATE_NOOP("PlayMenu", "Default"), Need::Source, kNoKey,
                setViewMode<0>, isViewMode<0>),
        command(Place::AspectRatio, "1 : 1", "1 : 1", Need::Source, kNoKey, setViewMode<8>, isViewMode<8>),
        command(Place::AspectRatio, "4 : 3", "4 : 3", Need::Source, kNoKey, setViewMode<2>, isViewMode<2>),
        command(Place::AspectRatio, "16 : 9", "16 : 9", Need::Source, kNoKey, setViewMode<4>, isViewMode<4>),
        command(Place::AspectRatio, "16 : 10", "16 : 10", Need::Source, kNoKey, setViewMode<9>,
                isViewMode<9>),
        command(Place::AspectRatio, "2.21 : 1", "2.21 : 1", Need::Source, kNoKey, setViewMode<10>,
                isViewMode<10>),
        command(Place::AspectRatio, "2.35 : 1", "2.35 : 1", Need::Source, kNoKey, setViewMode<11>,
                isViewMode<11>),
        command(Place::AspectRatio, "2.39 : 1", "2.39 : 1", Need::Source, kNoKey, setViewMode<12>,
                isViewMode<12>),
        command(Place::AspectRatio, "5 : 4", "5 : 4", Need::Source, kNoKey, setViewMode<13>, isViewMode<13>),
        command(Place::AspectRatio, "Fit Window", QT_TRANSLATE_NOOP("PlayMenu", "Fit Window"), Need::Source,
                kNoKey, setViewMode<3>, isViewMode<3>),

        command(Place::Deinterlace, "deinterlaceOff", QT_TRANSLATE_NOOP("PlayMenu", "Off"), Need::Source,
                kNoKey, setDeinterlace<0>, isDeinterlace<0>),
        command(Place::Deinterlace, "Automatic", QT_TRANSLATE_NOOP("PlayMenu", "Automatic"), Need::Source,
                kNoKey, setDeinterlace<1>, isDeinterlace<1>),
        command(Place::Deinterlace, "deinterlaceOn", QT_TRANSLATE_NOOP("PlayMenu", "On"), Need::Source,
                kNoKey, setDeinterlace<2>, isDeinterlace<2>),

        command(Place::Rotate, "rotateOff", QT_TRANSLATE_NOOP("PlayMenu", "Off"), Need::Source, kNoKey,
                flip<0>),
        command(Place::Rotate, "90cw", QT_TRANSLATE_NOOP("PlayMenu", "Rotate 90 degree CW"), Need::Source,
                KeyOperate_RotateCW, flip<1>),
        command(Place::Rotate, "90ccw", QT_TRANSLATE_NOOP("PlayMenu", "Rotate 90 degree CCW"), Need::Source,
                KeyOperate_RotateCCW, flip<2>),
        command(Place::Rotate, "180", QT_TRANSLATE_NOOP("PlayMenu", "Rotate 180 degree"), Need::Source,
                kNoKey, flip<3>),
        line(Place::Rotate),
        command(Place::Rotate, "flipV", QT_TRANSLATE_NOOP("PlayMenu", "Flip Vertically"), Need::Source,
                KeyOperate_FlipVertically, flip<5>),
        command(Place::Rotate, "flipH", QT_TRANSLATE_NOOP("PlayMenu", "Flip Horizontally"), Need::Source,
                KeyOperate_FlipHorizontally, flip<4>),

        command(Place::Audio, "cycle Audio", QT_TRANSLATE_NOOP("PlayMenu", "Cycle Through Audio Track"),
                Need::Source, KeyOperate_SwitchAudio, cycleAudio),
        line(Place::Audio),
        list(Place::Audio, "AudioStream_", "", Need::Source, &MenuState::audio,
             [](MenuHost &host, const QString &index) { host.player()->setAudioTrack(number(index)); }),

        command(Place::Subtitle, "cycle Subtitle",
                QT_TRANSLATE_NOOP("PlayMenu", "Cycle Through Subtitle Track"), Need::Source,
                KeyOperate_SwitchSubtitle, cycleSubtitle),
        line(Place::Subtitle),
        command(
            Place::Subtitle, "subtitleOff", QT_TRANSLATE_NOOP("PlayMenu", "Off"), Need::Source, kNoKey,
            [](MenuHost &host, const QString &) { host.player()->setSubtitleTrack(-1); },
            [](const MenuState &state) { return !state.isSubtitleShown; }),
        list(Place::Subtitle, "SubtitleStream_", "", Need::Source, &MenuState::subtitles,
             [](MenuHost &host, const QString &index) { host.player()->setSubtitleTrack(number(index)); }),
        line(Place::Subtitle),
        command(Place::Subtitle, "load Subtitle", QT_TRANSLATE_NOOP("PlayMenu", "Load Subtitle..."),
                Need::Source, kNoKey, [](MenuHost &host, const QString &) { host.loadSubtitle(); }),
        command(Place::Subtitle, "subtitle Setting", QT_TRANSLATE_NOOP("PlayMenu", "Subtitle Setting..."),
                Need::Source, kNoKey, [](MenuHost &host, const QString &) { host.subtitleSettings(); }),

        command(Place::Playback, kPlayStatusKey, QT_TRANSLATE_NOOP("PlayMenu", "Play"), Need::Source,
                KeyOperate_PlayPause, [](MenuHost &host, const QString &) { host.player()->togglePause(); }),
        command(Place::Playback, "stop", QT_TRANSLATE_NOOP("PlayMenu", "Stop"), Need::Source, KeyOperate_Stop,
                [](MenuHost &host, const QString &) { host.stop(); }),
        line(Place::Playback),
        command(Place::Playback, "previous Chapter", QT_TRANSLATE_NOOP("PlayMenu", "Previous Chapter"),
                Need::Source, KeyOperate_PreviousChapter,
                [](MenuHost &host, const QString &) { host.player()->lastChapter(); }),
        command(Place::Playback, "next Chapter", QT_TRANSLATE_NOOP("PlayMenu", "Next Chapter"), Need::Source,
                KeyOperate_NextChapter,
                [](MenuHost &host, const QString &) { host.player()->nextChapter(); }),
        line(Place::Playback),
        command(Place::Playback, "rewind", QT_TRANSLATE_NOOP("PlayMenu", "Rewind"), Need::Source,
                KeyOperate_Rewind, [](MenuHost &host, const QString &) { host.player()->speedUp(false); }),
        command(Place::Playback, "fast Forward", QT_TRANSLATE_NOOP("PlayMenu", "Fast Forward"), Need::Source,
                KeyOperate_FastForward,
                [](MenuHost &host, const QString &) { host.player()->speedUp(true); }),
        command(Place::Playback, "normal Speed", QT_TRANSLATE_NOOP("PlayMenu", "Normal Speed"), Need::Source,
                kNoKey, [](MenuHost &host, const QString &) { host.player()->setSpeedIndex(kNormalSpeed); }),
        line(Place::Playback),
        command(Place::Playback, "10 Backward", QT_TRANSLATE_NOOP("PlayMenu", "10 Sec. Backward"),
                Need::Source, KeyOperate_BackwardStep, seekBy<-kStepSeconds>),
        command(Place::Playback, "10 Forward", QT_TRANSLATE_NOOP("PlayMenu", "10 Sec. Forward"), Need::Source,
                KeyOperate_ForwardStep, seekBy<kStepSeconds>),

        list(Place::Shaders, "shader", "", Need::Source, &MenuState::shaders, useShader),
    };
    return rows;
}

const MenuRow *MenuRows::find(const QString &key, QString *argument)
{
    const MenuRow *best = nullptr;
    for (const MenuRow &row : all()) {
        if (row.kind == Kind::Command && key == QLatin1String(row.key)) {
            argument->clear();
            return &row;
        }
        if (row.kind == Kind::List && best == nullptr && key.startsWith(QLatin1String(row.key)))
            best = &row;
    }
    if (best != nullptr)
        *argument = key.mid(int(std::strlen(best->key)));
    return best;
}

const MenuRow *MenuRows::find(KeyOperateType operation)
{
    for (const MenuRow &row : all()) {
        if (row.keyOperation != MenuRow::NoKeyOperation && row.keyOperation == operation)
            return &row;
    }
    return nullptr;
}

QString MenuRows::text(const MenuRow &row, const MenuState &state)
{
    const bool isPause = std::strcmp(row.key, kPlayStatusKey) == 0 && state.isMoving;
    return QCoreApplication::translate(kContext, isPause ? QT_TRANSLATE_NOOP("PlayMenu", "Pause") : row.text);
}

bool MenuRows::isEnabled(const MenuRow &row, const MenuState &state)
{
    switch (row.need) {
    case Need::Nothing:
        return true;
    case Need::Source:
    case Need::SourceInMenu:
        return state.hasSource;
    case Need::DiscMenu:
        return state.hasSource && state.hasDiscMenu;
    }
    return false;
}

bool MenuRows::run(const MenuRow &row, MenuHost &host, const QString &argument)
{
    if (row.run == nullptr)
        return false;
    const bool needsSource = row.need == Need::Source || row.need == Need::DiscMenu;
    if (needsSource && (!host.hasSource() || host.player() == nullptr))
        return false;
    row.run(host, argument);
    return true;
}

QString MenuRows::shaderPath(const MenuHost &host, const QString &name)
{
    if (name.isEmpty() || QFileInfo(name).fileName() != name)
        return {};
    return QDir(host.shaderFolder).filePath(name);
}
