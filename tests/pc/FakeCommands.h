// Player commands that note what was asked for.
#pragma once

#include "transport/PlayerCommands.h"

#include <QStringList>

class FakeCommands {
public:
    bool source{true};
    float volume{0.5F};
    bool muted{false};
    int chapters{5};
    QString speed{QStringLiteral("4")};
    // In order: "togglePause", "speedUp 1", "setSpeedIndex 9", ...
    QStringList calls;

    [[nodiscard]] PlayerCommands commands()
    {
        PlayerCommands commands;
        commands.hasSource = [this] { return source; };
        commands.volume = [this] { return volume; };
        commands.setVolume = [this](float value) {
            volume = value;
            calls << QStringLiteral("setVolume %1").arg(qRound(value * 100));
        };
        commands.isMuted = [this] { return muted; };
        commands.setMute = [this](bool mute) {
            muted = mute;
            calls << QStringLiteral("setMute %1").arg(mute);
        };
        commands.togglePause = [this] { calls << QStringLiteral("togglePause"); };
        commands.speedUp = [this](bool forward) { calls << QStringLiteral("speedUp %1").arg(forward); };
        commands.setSpeedIndex = [this](int index) {
            calls << QStringLiteral("setSpeedIndex %1").arg(index);
        };
        commands.speedText = [this] { return speed; };
        commands.stepFrame = [this](bool forward) { calls << QStringLiteral("stepFrame %1").arg(forward); };
        commands.chapterCount = [this] { return chapters; };
        commands.nextChapter = [this] { calls << QStringLiteral("nextChapter"); };
        commands.lastChapter = [this] { calls << QStringLiteral("lastChapter"); };
        return commands;
    }
};
