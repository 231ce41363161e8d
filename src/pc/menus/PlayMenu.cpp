#include "PlayMenu.h"

#include "MenuTexts.h"
#include "NormalAction.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "player/QPlayer.h"

#include <QDebug>
#include <QDir>
#include <QMenu>

namespace {

constexpr char kShaderNames[] = "*.fx";

} // namespace

PlayMenu::PlayMenu(MenuHost host, KeyText keyText, QObject *parent)
    : QObject(parent)
    , m_host(std::move(host))
    , m_keyText(std::move(keyText))
{
}

MenuState PlayMenu::state(const QVector<MenuState::Entry> &discs) const
{
    QPlayer *player = m_host.player();
    MenuState state = MenuState::of(player, m_host.hasSource());
    state.discs = discs;
    const auto isOn = [this](const char *key) { return m_host.settings.value(QLatin1String(key)).toBool(); };
    state.isAlwaysOnTop = isOn(SettingsKeys::PC_AlwaysOnTop);
    state.isInformationShown = isOn(SettingsKeys::PC_ShowMeta);
    if (state.hasSource)
        state.shaders = shaders(player->customShader());
    return state;
}

QVector<MenuState::Entry> PlayMenu::shaders(const QString &inUse) const
{
    const QFileInfo current(inUse);
    QVector<MenuState::Entry> entries;
    const QFileInfoList files =
        QDir(m_host.shaderFolder)
            .entryInfoList({QLatin1String(kShaderNames)}, QDir::Files | QDir::Readable,
                           QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &file : files)
        entries.append({file.fileName(), file.fileName(), {}, !inUse.isEmpty() && file == current});
    return entries;
}

void PlayMenu::fill(QMenu *menu, const MenuState &state)
{
    fill(menu, MenuPlace::Top, state);
}

void PlayMenu::fill(QMenu *menu, MenuPlace place, const MenuState &state)
{
    for (const MenuRow &row : MenuRows::all()) {
        if (row.place != place)
            continue;
        switch (row.kind) {
        case MenuRow::Kind::Command:
            addCommand(menu, row, state);
            break;
        case MenuRow::Kind::List:
            addList(menu, row, state);
            break;
        case MenuRow::Kind::Submenu:
            addSubmenu(menu, row, state);
            break;
        case MenuRow::Kind::Line:
            menu->addSeparator();
            break;
        }
    }
}

void PlayMenu::addCommand(QMenu *menu, const MenuRow &row, const MenuState &state)
{
    const QString key = row.keyOperation == MenuRow::NoKeyOperation ? QString() : m_keyText(row.keyOperation);
    auto *action =
        new NormalAction(QLatin1String(row.key), MenuTexts::shown(MenuRows::text(row, state), key), menu);
    action->setEnabled(MenuRows::isEnabled(row, state));
    if (row.isChecked != nullptr) {
        action->setCheckable(true);
        action->setChecked(row.isChecked(state));
    }
    menu->addAction(action);
}

void PlayMenu::addList(QMenu *menu, const MenuRow &row, const MenuState &state)
{
    const QVector<MenuState::Entry> &entries = state.*row.entries;
    const bool isEnabled = MenuRows::isEnabled(row, state);
    for (const MenuState::Entry &entry : entries) {
        const QString text = entry.text.isEmpty() ? MenuRows::text(row, state) : entry.text;
        auto *action = new NormalAction(QLatin1String(row.key) + entry.argument,
                                        MenuTexts::shown(text, entry.note), menu);
        action->setEnabled(isEnabled);
        // A disc is opened, all the others are chosen.
        action->setCheckable(row.place != MenuPlace::Top);
        action->setChecked(entry.isChecked);
        menu->addAction(action);
    }
}

void PlayMenu::addSubmenu(QMenu *menu, const MenuRow &row, const MenuState &state)
{
    // There is nothing to choose in a source without chapters.
    if (row.child == MenuPlace::Chapter && state.chapters.isEmpty())
        return;
    QMenu *child = menu->addMenu(MenuTexts::shown(MenuRows::text(row, state)));
    fill(child, row.child, state);
    child->setEnabled(MenuRows::isEnabled(row, state) && !child->isEmpty());
}

bool PlayMenu::run(KeyOperateType operation)
{
    const MenuRow *row = MenuRows::find(operation);
    return row != nullptr && MenuRows::run(*row, m_host);
}

void PlayMenu::slot_dealMenuAction(QAction *action)
{
    const auto *known = qobject_cast<NormalAction *>(action);
    const QString key = known != nullptr ? known->key() : QString();
    QString argument;
    const MenuRow *row = MenuRows::find(key, &argument);
    if (row == nullptr || !MenuRows::run(*row, m_host, argument))
        qInfo().noquote() << "[Menu] nothing to do for:" << key;
}
