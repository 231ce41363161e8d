#include "ActionProofs.h"

#include "play/TestClips.h"

#include "core/SettingsKeys.h"
#include "dialogs/NormalAboutDLg.h"
#include "dialogs/NormalColorAdjustDlg.h"
#include "dialogs/NormalMessageBox.h"
#include "dialogs/NormalVideoControlDlg.h"
#include "overlays/NormalMetaView.h"
#include "overlays/PlayOverlays.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "player/QPlayer.h"
#include "preview/SmartPreview.h"
#include "settings/NormalSettingPage.h"

#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>

namespace {

using Read = ActionRig::Read;
using Prepare = std::function<void(ActionRig &)>;

constexpr char kYes[] = "yes";
constexpr char kNo[] = "no";

QString text(bool isTrue)
{
    return QLatin1String(isTrue ? kYes : kNo);
}

Read property(const char *name)
{
    return [name](ActionRig &rig) { return rig.property(name); };
}

QString clip(const char *name)
{
    return QString::fromStdString(TestClips::path(name));
}

// ---- how things stand before

Prepare viewMode(int mode)
{
    return [mode](ActionRig &rig) { rig.player().setViewMode(mode); };
}

Prepare deinterlace(int mode)
{
    return [mode](ActionRig &rig) { rig.player().setDeinterlaceMode(mode); };
}

Prepare flipped(int kind)
{
    return [kind](ActionRig &rig) {
        rig.player().flip(0);
        rig.player().flip(kind);
    };
}

Prepare audio(int track)
{
    return [track](ActionRig &rig) {
        rig.player().setAudioTrack(track);
        (void)rig.reaches("aid", QString::number(track + 1));
        (void)rig.reaches([](ActionRig &r) { return QString::number(r.player().audioTrack()); },
                          QString::number(track));
    };
}

Prepare subtitle(int track)
{
    return [track](ActionRig &rig) {
        rig.player().setSubtitleTrack(track);
        (void)rig.reaches("sub-visibility", text(track >= 0));
        if (track < 0)
            return;
        (void)rig.reaches("sid", QString::number(track + 1));
        (void)rig.reaches([](ActionRig &r) { return QString::number(r.player().subtitleTrack()); },
                          QString::number(track));
    };
}

QString wholeSeconds(ActionRig &rig)
{
    return QString::number(qRound(rig.property("time-pos").toDouble()));
}

Prepare pausedAt(int seconds)
{
    return [seconds](ActionRig &rig) {
        if (!rig.player().isPaused())
            rig.player().togglePause();
        (void)rig.reaches("pause", kYes);
        // By way of another place, so that the arrival is seen.
        for (const int place : {seconds / 2, seconds}) {
            rig.player().seek(place);
            (void)rig.reaches(wholeSeconds, QString::number(place));
            // Until then libmpv tells where it is going to.
            (void)rig.reaches("seeking", kNo);
        }
        // The place is told before the picture is there, and a step would take the order's place.
        (void)rig.reaches("seeking", kNo);
    };
}

constexpr double kFramesPerSecond = 25;

double &markedTime()
{
    static double seconds = 0;
    return seconds;
}

void pausedOnAFrame(ActionRig &rig)
{
    pausedAt(60)(rig);
    markedTime() = rig.property("time-pos").toDouble();
}

QString framesFromThere(ActionRig &rig)
{
    const double moved = rig.property("time-pos").toDouble() - markedTime();
    return QString::number(qRound(moved * kFramesPerSecond));
}

void playing(ActionRig &rig)
{
    if (rig.player().isPaused())
        rig.player().togglePause();
    (void)rig.reaches("pause", kNo);
    rig.player().setSpeedIndex(9);
    (void)rig.reaches("speed", QStringLiteral("1.000"));
}

Prepare inChapter(int chapter)
{
    return [chapter](ActionRig &rig) {
        playing(rig);
        rig.player().goToChapter(chapter);
        (void)rig.reaches("chapter", QString::number(chapter - 1));
        (void)rig.reaches([](ActionRig &r) { return QString::number(r.player().chapter()); },
                          QString::number(chapter));
    };
}

Prepare fast(int index)
{
    return [index](ActionRig &rig) {
        playing(rig);
        rig.player().seek(60);
        (void)rig.reaches(wholeSeconds, QStringLiteral("60"));
        rig.player().setSpeedIndex(index);
    };
}

Prepare withSetting(const char *key, bool value)
{
    return [key, value](ActionRig &) { ActionRig::settings().setValue(QLatin1String(key), value); };
}

void withoutShots(ActionRig &rig)
{
    QDir(rig.path(QStringLiteral("shots"))).removeRecursively();
    QDir().mkpath(rig.path(QStringLiteral("shots")));
    rig.settings().setValue(QLatin1String(SettingsKeys::PC_SnapShotPath), rig.path(QStringLiteral("shots")));
    // What was turned before is shown upright again some time after it was asked for.
    (void)rig.reaches("video-out-params/rotate", QStringLiteral("0"));
}

// ---- where the effects are

QString pictures(ActionRig &rig)
{
    QStringList sizes;
    const auto files = QDir(rig.path(QStringLiteral("shots"))).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files) {
        const QImage picture(file.filePath());
        sizes << QStringLiteral("%1x%2").arg(picture.width()).arg(picture.height());
    }
    return sizes.join(QLatin1Char(' '));
}

// Which way the source moves; two looks at libmpv's clock.
QString direction(ActionRig &rig)
{
    static double last = 0;
    const double now = rig.property("time-pos").toDouble();
    const double before = std::exchange(last, now);
    return now < before - 0.1 ? QStringLiteral("back") : QStringLiteral("on");
}

template<class Window>
QString isOpen(ActionRig &rig)
{
    const auto windows = rig.window().findChildren<Window *>();
    return text(std::any_of(windows.begin(), windows.end(), [](const Window *w) { return w->isVisible(); }));
}

QString isFullScreen(ActionRig &rig)
{
    return text(rig.window().isFullScreen());
}

QString isOnTop(ActionRig &rig)
{
    return text(rig.window().windowFlags().testFlag(Qt::WindowStaysOnTopHint)
                && rig.settings().value(QLatin1String(SettingsKeys::PC_AlwaysOnTop)).toBool());
}

QString isInformationShown(ActionRig &rig)
{
    return text(rig.window().overlays()->metaView()->isVisible()
                && rig.settings().value(QLatin1String(SettingsKeys::PC_ShowMeta)).toBool());
}

QString isStartViewShown(ActionRig &rig)
{
    return text(!rig.window().isPlayViewShown() && !rig.player().isPlaying());
}

QString externalSubtitle(ActionRig &rig)
{
    return rig.property("current-tracks/sub/external-filename");
}

// ---- modal windows

// Names a file in a dialog of files.
ActionRig::Answer file(const char *name)
{
    return [name](QWidget &window) {
        auto *dialog = qobject_cast<QFileDialog *>(&window);
        auto *line = dialog != nullptr ? dialog->findChild<QLineEdit *>("fileNameEdit") : nullptr;
        if (line == nullptr)
            return false;
        line->setText(clip(name));
        return QMetaObject::invokeMethod(dialog, "accept");
    };
}

// Notes the page that the settings have opened on, and cancels them.
QString &settingsPage()
{
    static QString page;
    return page;
}

bool leaveSettings(QWidget &window)
{
    auto *dialog = qobject_cast<NormalSettingPage *>(&window);
    if (dialog == nullptr)
        return false;
    settingsPage() = QLatin1String(SettingTables::pageTitle(dialog->currentPage()));
    dialog->cancelButton()->click();
    return true;
}

void noSettings(ActionRig &)
{
    settingsPage().clear();
}

QString seenPage(ActionRig &)
{
    return settingsPage();
}

// The note that the program has shown last.
QString &shownNote()
{
    static QString text;
    return text;
}

bool readNote(QWidget &window)
{
    auto *note = qobject_cast<NormalMessageBox *>(&window);
    if (note == nullptr)
        return false;
    shownNote() = note->accessibleDescription();
    note->close();
    return true;
}

} // namespace

std::vector<ActionProof> ActionProofs::ofMenu()
{
    const Read aspect = property("video-aspect-override");
    const Read rotation = property("video-rotate");
    const Read filters = property("vf");
    const Read combing = property("deinterlace");
    const char *const fields = "interlaced.mpg";
    return {
        {"Open Media", property("path"), clip("plain.mp4"), {}, ActionProof::Film, file("plain.mp4")},
        {"open disc_Q", property("chapters"), "4", {}, "plain.mp4"},
        {"Chapter_3", property("chapter"), "2", inChapter(1)},
        {"full Screen", isFullScreen, kYes},
        {"full Screen", isFullScreen, kNo},
        {"always on Top", isOnTop, kYes, withSetting(SettingsKeys::PC_AlwaysOnTop, false)},
        {"always on Top", isOnTop, kNo},
        {"information", isInformationShown, kYes, withSetting(SettingsKeys::PC_ShowMeta, false)},
        {"information", isInformationShown, kNo},
        {"setting", seenPage, "General", noSettings, ActionProof::Film, leaveSettings},

        {"1 : 1", aspect, "1.000", viewMode(0)},
        {"4 : 3", aspect, "1.333", viewMode(0)},
        {"16 : 9", aspect, "1.778", viewMode(0)},
        {"16 : 10", aspect, "1.600", viewMode(0)},
        {"2.21 : 1", aspect, "2.210", viewMode(0)},
        {"2.35 : 1", aspect, "2.350", viewMode(0)},
        {"2.39 : 1", aspect, "2.390", viewMode(0)},
        {"5 : 4", aspect, "1.250", viewMode(0)},
        {"Fit Window", property("keepaspect"), kNo, viewMode(2)},
        {"Default", aspect, "-1.000", viewMode(2)},

        {"Automatic", combing, kYes, deinterlace(0), fields},
        {"deinterlaceOff", combing, kNo, deinterlace(2)},
        {"Automatic", combing, kNo, deinterlace(2)},
        {"deinterlaceOn", combing, kYes, deinterlace(0)},
        {"deinterlaceOff", combing, kNo, deinterlace(1), fields},

        {"90cw", rotation, "90", flipped(0)},
        {"90ccw", rotation, "270", flipped(0)},
        {"180", rotation, "180", flipped(0)},
        {"rotateOff", rotation, "0", flipped(1)},
        {"flipV", filters, "vflip", flipped(0)},
        {"flipH", filters, "hflip", flipped(0)},
        {"rotateOff", filters, "", flipped(4)},

        {"video Control", isOpen<NormalVideoControlDlg>, kYes},
        {"color Adjust", isOpen<NormalColorAdjustDlg>, kYes},
        {"take Snapshot", pictures, "320x180", withoutShots},

        {"cycle Audio", property("aid"), "2", audio(0)},
        {"cycle Audio", property("aid"), "1", audio(2)},
        {"AudioStream_2", property("aid"), "3", audio(0)},
        {"cycle Subtitle", property("sid"), "3", subtitle(1)},
        {"cycle Subtitle", property("sub-visibility"), kNo, subtitle(2)},
        {"cycle Subtitle", property("sub-visibility"), kYes, subtitle(-1)},
        {"subtitleOff", property("sub-visibility"), kNo, subtitle(1)},
        {"SubtitleStream_1", property("sid"), "2", subtitle(0)},
        {"SubtitleStream_1", property("sub-visibility"), kYes, subtitle(-1)},
        {"load Subtitle", externalSubtitle, clip("dark.srt"), {}, "plain.mp4", file("dark.srt")},
        {"subtitle Setting", seenPage, "Subtitle", noSettings, ActionProof::Film, leaveSettings},

        {"playStatusSwitch", property("pause"), kYes, playing},
        {"playStatusSwitch", property("pause"), kNo, pausedAt(20)},
        {"previous Chapter", property("chapter"), "0", inChapter(2)},
        {"next Chapter", property("chapter"), "1", inChapter(1)},
        {"fast Forward", property("speed"), "2.000", playing},
        {"normal Speed", property("speed"), "1.000", fast(13)},
        {"rewind", direction, "back", fast(9)},
        {"10 Backward", wholeSeconds, "50", pausedAt(60)},
        {"10 Forward", wholeSeconds, "70", pausedAt(60)},
        {"stop", isStartViewShown, kYes},

        {"shaderSharpen.fx", property("glsl-shaders"),
         QCoreApplication::applicationDirPath() + "/system/shaders/fx/Sharpen.fx"},
        {"shaderSharpen.fx", property("glsl-shaders"), ""},
    };
}

std::vector<ActionProof> ActionProofs::ofKeysAlone()
{
    const auto key = [](KeyOperateType operation, Read read, const QString &wanted, Prepare prepare = {}) {
        return ActionProof{"",      std::move(read), wanted, std::move(prepare), ActionProof::Film,
                           nullptr, operation};
    };
    const Read heard = [](ActionRig &rig) {
        return QString::number(qRound(rig.property("volume").toDouble()));
    };
    // What the start of the source has still to tell would be taken for an answer to the key.
    const Read mute = [](ActionRig &rig) {
        const QString state = rig.property("mute");
        return state == text(rig.isToldMuted()) ? state : QString();
    };
    const Read strip = [](ActionRig &rig) { return text(rig.window().overlays()->preview()->isStripOpen()); };
    const Read window = [](ActionRig &rig) { return text(rig.window().isVisible()); };
    const Read note = [](ActionRig &) {
        return text(shownNote().contains("this version of the program has no address for it"));
    };
    ActionProof feedback = key(KeyOperate_SendFeedback, note, kYes, [](ActionRig &) { shownNote().clear(); });
    feedback.answer = readNote;
    return {
        key(KeyOperate_Mute, mute, kYes),
        key(KeyOperate_Mute, mute, kNo),
        key(KeyOperate_VolumeDown, heard, "99"),
        key(KeyOperate_VolumeUp, heard, "100"),
        key(KeyOperate_Down, heard, "99"),
        key(KeyOperate_Up, heard, "100"),
        key(KeyOperate_Left, wholeSeconds, "50", pausedAt(60)),
        key(KeyOperate_Right, wholeSeconds, "70", pausedAt(60)),
        key(KeyOperate_NextFrame, framesFromThere, "1", pausedOnAFrame),
        key(KeyOperate_PreviousFrame, framesFromThere, "-1", pausedOnAFrame),
        key(KeyOperate_SmartView, strip, kYes),
        key(KeyOperate_SmartView, strip, kNo),
        key(KeyOperate_About, isOpen<NormalAboutDLg>, kYes),
        feedback,
        key(KeyOperate_Close, window, kNo), // the last one
    };
}

std::vector<const char *> ActionProofs::entriesOfDiscMenus()
{
    return {"top Menu", "pop Menu"};
}

std::vector<KeyOperateType> ActionProofs::operationsOfDiscMenus()
{
    return {KeyOperate_TopMenu, KeyOperate_PopupMenu, KeyOperate_Accept};
}
