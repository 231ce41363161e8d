// The window of PC mode over the real engine, in the hands of a test: its context menu, its keys and its
// dialogs, and what libmpv has in the end. GUI thread; one at a time.
#pragma once

#include "core/SettingsManager.h"
#include "keys/KeyOperateType.h"

#include <QString>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>

class MpvValue;
class NormalAction;
class NormalMainWindow;
class QMenu;
class QPlayer;
class QWidget;

class ActionRig final {
public:
    // Tells what is there now, as a text.
    using Read = std::function<QString(ActionRig &)>;
    // Deals with the modal window that is open; false while it is not the one or not ready.
    using Answer = std::function<bool(QWidget &)>;

    // Empty settings, and no source.
    ActionRig();
    ~ActionRig();
    ActionRig(const ActionRig &) = delete;
    ActionRig &operator=(const ActionRig &) = delete;

    [[nodiscard]] NormalMainWindow &window() const { return *m_window; }
    [[nodiscard]] QPlayer &player() const;
    [[nodiscard]] static SettingsManager &settings() { return *SettingsManager::instance(); }
    // A path in a folder of the rig's own.
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    // Ends window and engine as the program's end does, and starts both again on the same settings.
    void restart();

    // Plays a clip by its name, or a file by its path, unless it is what plays. False when it does not open.
    bool play(const QString &source);
    void stop();

    // A property of the running play as libmpv has it; "none" without a play.
    [[nodiscard]] QString property(const char *name) const;
    // What the player has told of the mute by now.
    [[nodiscard]] bool isToldMuted() const { return m_isToldMuted; }
    // How often the engine's log has the line by now.
    [[nodiscard]] int engineLines(const QString &text) const;
    // Waits until something reads as it should.
    bool reaches(const Read &read, const QString &wanted);
    bool reaches(const char *property, const QString &wanted);
    bool leaves(const Read &read, const QString &unwanted);

    // Opens the context menu with the mouse and picks an entry by the keyboard. False where there is none,
    // or it is greyed.
    bool choose(const QString &key);
    // Whether the menu of this moment has the entry, has it for use, and has it marked.
    [[nodiscard]] bool isOffered(const QString &key);
    [[nodiscard]] bool isMarked(const QString &key);
    // The key that the map of the moment has for an operation. False where there is none.
    bool press(KeyOperateType operation);
    void pressKey(int key);

    // What to do with the next modal window.
    void answer(Answer answer) { m_answer = std::move(answer); }
    [[nodiscard]] bool isAnswered() const { return !m_answer; }
    void closeDialogs();

private:
    void open();
    void close();
    [[nodiscard]] QMenu *openMenu();
    [[nodiscard]] static NormalAction *entry(QMenu &menu, const QString &key);
    static void closeMenu(QMenu *menu);

    QTemporaryDir m_folder;
    std::unique_ptr<NormalMainWindow> m_window;
    QTimer m_answerTimer;
    Answer m_answer;
    QMetaObject::Connection m_toldMute;
    bool m_isToldMuted{false};
};
