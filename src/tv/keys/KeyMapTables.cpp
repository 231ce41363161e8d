#include "KeyMapTables.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace KeyMapTables {

namespace {

constexpr int kNoKey = 0;
// Seconds that one step forward or backward skips.
constexpr int kStepSeconds = 10;

struct KeyRow {
    KeyOperateType type;
    int pc;
    int tv;
    const char *name;
};

// Both full tables and the names, one row an operation. What a mode does not offer is taken out by the lists
// below.
constexpr KeyRow kRows[] = {
    {KeyOperate_OpenFile, Qt::CTRL + Qt::Key_O, kNoKey, QT_TRANSLATE_NOOP("QApplication", "Open file")},
    {KeyOperate_Settings, Qt::Key_F5, Qt::Key_F5, QT_TRANSLATE_NOOP("QApplication", "Settings")},
    {KeyOperate_About, Qt::Key_F1, Qt::Key_F1, QT_TRANSLATE_NOOP("QApplication", "About")},
    {KeyOperate_SendFeedback, Qt::Key_F12, kNoKey, QT_TRANSLATE_NOOP("QApplication", "Send Feedback")},
    {KeyOperate_Eject, kNoKey, Qt::CTRL + Qt::Key_E,
     QT_TRANSLATE_NOOP("QApplication", "Eject the selected disc")},
    {KeyOperate_Close, Qt::CTRL + Qt::Key_Q, Qt::CTRL + Qt::Key_Q,
     QT_TRANSLATE_NOOP("QApplication", "Close")},
    {KeyOperate_Return, kNoKey, Qt::Key_Backspace, QT_TRANSLATE_NOOP("QApplication", "Return")},
    {KeyOperate_FullScreen, Qt::Key_F11, kNoKey, QT_TRANSLATE_NOOP("QApplication", "Fullscreen")},
    {KeyOperate_AlwaysOnTop, Qt::Key_T, kNoKey, QT_TRANSLATE_NOOP("QApplication", "Always on top")},
    {KeyOperate_Mute, Qt::Key_M, Qt::Key_M, QT_TRANSLATE_NOOP("QApplication", "Mute on/off")},
    {KeyOperate_PreviousChapter, Qt::Key_PageUp, Qt::Key_PageUp,
     QT_TRANSLATE_NOOP("QApplication", "Previous Chapter")},
    {KeyOperate_NextChapter, Qt::Key_PageDown, Qt::Key_PageDown,
     QT_TRANSLATE_NOOP("QApplication", "Next Chapter")},
    {KeyOperate_PlayPause, Qt::Key_Space, Qt::Key_Space,
     QT_TRANSLATE_NOOP("QApplication", "Play/pause movie playback")},
    {KeyOperate_Stop, Qt::CTRL + Qt::Key_S, Qt::CTRL + Qt::Key_S,
     QT_TRANSLATE_NOOP("QApplication", "Stop Playback")},
    {KeyOperate_VolumeUp, Qt::Key_Equal, Qt::Key_Equal,
     QT_TRANSLATE_NOOP("QApplication", "Increase audio volume")},
    {KeyOperate_VolumeDown, Qt::Key_Minus, Qt::Key_Minus,
     QT_TRANSLATE_NOOP("QApplication", "Decrease audio volume")},
    {KeyOperate_FastForward, Qt::Key_F, Qt::Key_F, QT_TRANSLATE_NOOP("QApplication", "Fast Forward")},
    {KeyOperate_Rewind, Qt::Key_R, Qt::Key_R, QT_TRANSLATE_NOOP("QApplication", "Rewind")},
    {KeyOperate_SwitchAudio, Qt::Key_B, Qt::Key_B, QT_TRANSLATE_NOOP("QApplication", "Switch Audio")},
    {KeyOperate_SwitchSubtitle, Qt::Key_V, Qt::Key_V, QT_TRANSLATE_NOOP("QApplication", "Switch Subtitle")},
    {KeyOperate_RotateCW, Qt::CTRL + Qt::Key_R, Qt::CTRL + Qt::Key_R, nullptr},
    {KeyOperate_RotateCCW, Qt::CTRL + Qt::Key_L, Qt::CTRL + Qt::Key_L, nullptr},
    {KeyOperate_FlipVertically, Qt::CTRL + Qt::Key_V, Qt::CTRL + Qt::Key_V,
     QT_TRANSLATE_NOOP("QApplication", "Filp vertically")},
    {KeyOperate_FlipHorizontally, Qt::CTRL + Qt::Key_H, Qt::CTRL + Qt::Key_H,
     QT_TRANSLATE_NOOP("QApplication", "Filp horizontally")},
    {KeyOperate_FileInformation, Qt::Key_F4, Qt::Key_F4,
     QT_TRANSLATE_NOOP("QApplication", "File Information")},
    {KeyOperate_ShowInformation, Qt::Key_F2, Qt::Key_F2,
     QT_TRANSLATE_NOOP("QApplication", "Show Information")},
    {KeyOperate_SmartView, Qt::Key_F6, Qt::Key_F6, QT_TRANSLATE_NOOP("QApplication", "Open Smart View")},
    {KeyOperate_PlaybackMenu, Qt::CTRL + Qt::Key_M, Qt::CTRL + Qt::Key_M,
     QT_TRANSLATE_NOOP("QApplication", "Displays the playback menu")},
    {KeyOperate_PopupMenu, Qt::CTRL + Qt::Key_P, Qt::CTRL + Qt::Key_P,
     QT_TRANSLATE_NOOP("QApplication", "Pop-up menu")},
    {KeyOperate_TopMenu, Qt::CTRL + Qt::Key_T, Qt::CTRL + Qt::Key_T,
     QT_TRANSLATE_NOOP("QApplication", "Top menu")},
    {KeyOperate_Up, Qt::Key_Up, Qt::Key_Up, QT_TRANSLATE_NOOP("QApplication", "Navigate up in menus")},
    {KeyOperate_Down, Qt::Key_Down, Qt::Key_Down,
     QT_TRANSLATE_NOOP("QApplication", "Navigate down in menus")},
    {KeyOperate_Left, Qt::Key_Left, Qt::Key_Left,
     QT_TRANSLATE_NOOP("QApplication", "Navigate left in menus")},
    {KeyOperate_Right, Qt::Key_Right, Qt::Key_Right,
     QT_TRANSLATE_NOOP("QApplication", "Navigate right in menus")},
    {KeyOperate_Accept, Qt::Key_Return, Qt::Key_Return,
     QT_TRANSLATE_NOOP("QApplication", "Accepts the selected menu")},
    {KeyOperate_Snapshot, Qt::Key_S, Qt::Key_S, QT_TRANSLATE_NOOP("QApplication", "Take Snapshot")},
    {KeyOperate_Reserved, Qt::Key_F3, kNoKey, ""},
    {KeyOperate_ForwardStep, Qt::CTRL + Qt::Key_Right, Qt::CTRL + Qt::Key_Right, nullptr},
    {KeyOperate_BackwardStep, Qt::CTRL + Qt::Key_Left, Qt::CTRL + Qt::Key_Left, nullptr},
    {KeyOperate_NextFrame, Qt::Key_N, Qt::Key_N, QT_TRANSLATE_NOOP("QApplication", "Next Frame")},
    {KeyOperate_PreviousFrame, Qt::Key_D, Qt::Key_D, QT_TRANSLATE_NOOP("QApplication", "Previous Frame")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("QApplication", text);
}

bool isOperation(int type)
{
    return std::any_of(std::begin(kRows), std::end(kRows),
                       [type](const KeyRow &row) { return row.type == type; });
}

// The four names that are put together from parts.
QString composedName(int type)
{
    const auto rotate = [](const char *direction) {
        return QStringLiteral("%1 90\u00B0 %2")
            .arg(translated(QT_TRANSLATE_NOOP("QApplication", "Rotate")), translated(direction));
    };
    const auto step = [](const char *direction) {
        return QStringLiteral("%1 %2. %3")
            .arg(translated(direction), QString::number(kStepSeconds),
                 translated(QT_TRANSLATE_NOOP("QApplication", "Sec")));
    };
    switch (type) {
    case KeyOperate_RotateCW:
        return rotate(QT_TRANSLATE_NOOP("QApplication", "CW"));
    case KeyOperate_RotateCCW:
        return rotate(QT_TRANSLATE_NOOP("QApplication", "CCW"));
    case KeyOperate_ForwardStep:
        return step(QT_TRANSLATE_NOOP("QApplication", "Forward"));
    case KeyOperate_BackwardStep:
        return step(QT_TRANSLATE_NOOP("QApplication", "Backward"));
    default:
        return {};
    }
}

} // namespace

KeyMap fullKeyMap(Mode mode)
{
    KeyMap map;
    for (const KeyRow &row : kRows) {
        const int key = mode == Mode::Pc ? row.pc : row.tv;
        if (key != kNoKey)
            map.insert(row.type, key);
    }
    return map;
}

QList<int> removedKeys(Mode mode)
{
    if (mode == Mode::Pc)
        return {4, 6, 24, 27, 36};
    return {0, 1, 2, 3, 7, 8, 24, 36};
}

KeyMap defaultKeyMap(Mode mode)
{
    KeyMap map = fullKeyMap(mode);
    const QList<int> removed = removedKeys(mode);
    for (int type : removed)
        map.remove(type);
    return map;
}

KeyMap defaultPcKeyMap()
{
    return defaultKeyMap(Mode::Pc);
}

KeyMap defaultTvKeyMap()
{
    return defaultKeyMap(Mode::Tv);
}

QList<int> mustHavePcKeys()
{
    return {37, 38, 35, 26, 40, 39};
}

QList<int> mustHaveTvKeys()
{
    return {37, 38, 35, 26, 18, 19, 40, 39};
}

QList<int> mustHaveKeys(Mode mode)
{
    return mode == Mode::Pc ? mustHavePcKeys() : mustHaveTvKeys();
}

QList<int> settingsOrder()
{
    QList<int> order;
    for (int type = 0; type <= 17; ++type)
        order << type;
    order << 37 << 38 << 40 << 39;
    for (int type = 18; type <= 36; ++type)
        order << type;
    return order;
}

KeyMap completed(KeyMap stored, Mode mode)
{
    const KeyMap defaults = defaultKeyMap(mode);
    if (stored.isEmpty())
        stored = defaults;
    // It would take its key from an operation that there is.
    for (auto it = stored.begin(); it != stored.end();)
        it = isOperation(it.key()) ? std::next(it) : stored.erase(it);
    const QList<int> needed = mustHaveKeys(mode);
    for (int type : needed) {
        if (!stored.contains(type) && defaults.contains(type))
            stored.insert(type, defaults.value(type));
    }
    return stored;
}

int normalizedKey(int key)
{
    const int plain = key & ~int(Qt::KeypadModifier);
    const int code = plain & ~int(Qt::KeyboardModifierMask);
    if (code == Qt::Key_Return)
        return (plain & int(Qt::KeyboardModifierMask)) + Qt::Key_Enter;
    return plain;
}

int operationOf(const KeyMap &map, int key)
{
    const int wanted = normalizedKey(key);
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (normalizedKey(it.value()) == wanted)
            return it.key();
    }
    return -1;
}

bool isModifierOrNone(int key)
{
    switch (key) {
    case 0:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
        return true;
    default:
        return false;
    }
}

bool isBindable(int key)
{
    switch (key) {
    case Qt::Key_AltGr:
    case Qt::Key_Mode_switch:
    case Qt::Key_Multi_key:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_unknown:
        return false;
    default:
        return !isModifierOrNone(key);
    }
}

QString keyOperateName(int type)
{
    for (const KeyRow &row : kRows) {
        if (row.type != type)
            continue;
        if (row.name == nullptr)
            return composedName(type);
        return *row.name == '\0' ? QString() : translated(row.name);
    }
    return {};
}

QKeySequence keySequence(const KeyMap &map, int type)
{
    const auto it = map.constFind(type);
    return it == map.constEnd() ? QKeySequence() : QKeySequence(normalizedKey(*it));
}

QString keyText(const KeyMap &map, int type)
{
    if (!map.contains(type))
        return {};
    const QString text = keySequence(map, type).toString(QKeySequence::NativeText);
    return text.isEmpty() ? translated(QT_TRANSLATE_NOOP("QApplication", "None")) : text;
}

} // namespace KeyMapTables
