// The menu of the right mouse button: built anew at each opening from what holds at that moment.
//
// Makes NormalActions below the menu it fills, which owns them; runs them by their key. GUI thread.
#pragma once

#include "MenuHost.h"
#include "MenuRows.h"
#include "MenuState.h"

#include <QObject>

class QAction;
class QMenu;

class PlayMenu final : public QObject {
    Q_OBJECT

public:
    // The text of the key that stands for an operation, empty for none.
    using KeyText = std::function<QString(int operation)>;

    PlayMenu(MenuHost host, KeyText keyText, QObject *parent = nullptr);

    // discs: the drives with a disc, as the state wants them.
    [[nodiscard]] MenuState state(const QVector<MenuState::Entry> &discs) const;
    void fill(QMenu *menu, const MenuState &state);

    // False when no row answers to the operation, or what it needs is not there.
    bool run(KeyOperateType operation);

public slots:
    // An unknown key does nothing but leave a line in the log.
    void slot_dealMenuAction(QAction *action);

private:
    void fill(QMenu *menu, MenuPlace place, const MenuState &state);
    void addCommand(QMenu *menu, const MenuRow &row, const MenuState &state);
    void addList(QMenu *menu, const MenuRow &row, const MenuState &state);
    void addSubmenu(QMenu *menu, const MenuRow &row, const MenuState &state);
    [[nodiscard]] QVector<MenuState::Entry> shaders(const QString &inUse) const;

    MenuHost m_host;
    KeyText m_keyText;
};
