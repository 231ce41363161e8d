// A player of its own on the scripted engine, for each test.
#pragma once

#include "support/FakeEngineLoader.h"

#include "core/SettingsManager.h"
#include "player/QPlayer.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

// What a signal told the test's thread, queued or not.
template<class... Arguments>
class Heard final {
public:
    Heard(QPlayer &player, void (QPlayer::*signal)(Arguments...))
    {
        QObject::connect(&player, signal, &m_context,
                         [this](Arguments... arguments) { all.emplace_back(arguments...); });
    }

    std::vector<std::tuple<Arguments...>> all;

private:
    QObject m_context;
};

class PlayerTest : public testing::Test {
protected:
    static constexpr WId window = 0x1234;

    PlayerTest()
        : engine(fakeEngine())
    {
        engine.reset();
        makePlayer();
    }

    void makePlayer()
    {
        player.reset();
        player = std::make_unique<QPlayer>(fakeEngineLoader(), &settings);
        widget.resize(640, 360);
        player->setVideoParent(&widget, window);
    }

    // A play that is open.
    void start()
    {
        player->setSource(QStringLiteral("/films/a.mkv"));
        player->setSourceType(libvp::VD_Item_File);
        player->openFile();
        engine.clearCalls();
    }

    // A notification that has run, with all that it queued for this thread.
    void tell(std::function<void(libvp::IVDPlayCallback &)> notification)
    {
        ASSERT_TRUE(engine.raise(std::move(notification)));
        settle();
    }

    void settle()
    {
        ASSERT_TRUE(engine.waitNotified());
        QCoreApplication::sendPostedEvents();
    }

    [[nodiscard]] std::vector<std::string> takeCalls()
    {
        auto calls = engine.calls();
        engine.clearCalls();
        return calls;
    }

    QTemporaryDir folder;
    SettingsManager settings{folder.filePath(QStringLiteral("config.ini"))};
    FakeEngine &engine;
    QWidget widget;
    std::unique_ptr<QPlayer> player;
};
