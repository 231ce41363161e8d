// The play menu over a player on the scripted engine; what the window would do is noted.
#pragma once

#include "PlayerFixture.h"

#include "menus/NormalAction.h"
#include "menus/PlayMenu.h"

#include <QDir>
#include <QFile>
#include <QMenu>

class MenuTest : public PlayerTest {
protected:
    MenuTest()
        : menu(host(), [](int operation) { return operation == KeyOperate_OpenFile ? "Ctrl+O" : QString(); })
    {
        QDir().mkpath(shaderFolder());
    }

    [[nodiscard]] QString shaderFolder() const { return folder.filePath(QStringLiteral("fx")); }

    MenuHost host()
    {
        const auto noted = [this](const char *what) {
            return [this, what] { asked << QLatin1String(what); };
        };
        return {settings,
                [this] { return player.get(); },
                [this] { return hasSource; },
                noted("openMedia"),
                [this](const QString &drive) { asked << "playDisc " + drive; },
                noted("loadSubtitle"),
                noted("subtitleSettings"),
                noted("settingsPage"),
                noted("videoControl"),
                noted("colorAdjust"),
                noted("stop"),
                noted("fullScreen"),
                noted("alwaysOnTop"),
                noted("information"),
                [this](int seconds) { asked << QStringLiteral("seek %1").arg(seconds); },
                [this](const QString &name, const QString &) { asked << "note " + name; },
                shaderFolder()};
    }

    void play()
    {
        start();
        hasSource = true;
    }

    void addShader(const QString &name) const
    {
        QFile file(shaderFolder() + '/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    void setAudioTracks(int count)
    {
        std::vector<libvp::VDAudioInfo> tracks(static_cast<std::size_t>(count));
        for (int index = 0; index < count; ++index) {
            auto &track = tracks[static_cast<std::size_t>(index)];
            track.index = index;
            qstrncpy(track.name, qPrintable(QStringLiteral("Sound %1").arg(index)), sizeof track.name);
        }
        engine.setAudioTracks(std::move(tracks));
    }

    // Builds the menu anew.
    QMenu &open(const QVector<MenuState::Entry> &discs = {})
    {
        shown = std::make_unique<QMenu>();
        menu.fill(shown.get(), menu.state(discs));
        return *shown;
    }

    // Null where the menu of the moment has none.
    [[nodiscard]] NormalAction *action(const QString &key) const
    {
        const auto actions = shown->findChildren<NormalAction *>();
        for (NormalAction *action : actions) {
            if (action->key() == key)
                return action;
        }
        return nullptr;
    }

    // The submenu with this text.
    [[nodiscard]] QMenu *submenu(const QString &text) const
    {
        const auto menus = shown->findChildren<QMenu *>();
        for (QMenu *child : menus) {
            if (child->title() == text)
                return child;
        }
        return nullptr;
    }

    void trigger(const QString &key)
    {
        NormalAction made(key, {}, nullptr);
        menu.slot_dealMenuAction(&made);
    }

    // The engine's call that begins so, empty without one.
    [[nodiscard]] std::string call(const std::string &beginning) const
    {
        for (const std::string &made : engine.calls()) {
            if (made.rfind(beginning, 0) == 0)
                return made;
        }
        return {};
    }

    bool hasSource{false};
    QStringList asked;
    PlayMenu menu;
    std::unique_ptr<QMenu> shown;
};
