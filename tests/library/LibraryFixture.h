// A manager of the library with a scripted server, a starter that starts nothing and pauses that do not wait.
#pragma once

#include "ScriptedServer.h"
#include "SignalLog.h"

#include "library/IServerStarter.h"
#include "library/LibraryPause.h"
#include "library/MediaServerManager.h"

#include "core/SettingsManager.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <condition_variable>
#include <memory>
#include <mutex>

// What a fake starter is to do and what it was asked for. Outlives the starter.
struct StarterScript {
    std::mutex mutex;
    std::condition_variable opened;
    bool isOpen{false}; // until then the start of the manager waits
    bool startsProcess{true};
    bool startsPlain{false};
    bool isHeld{false};
    bool isRunning{true}; // once it is started
    QStringList calls;    // "start <program> <folder> <ms>", "plain <program>", "release"
    std::function<void(const QString &call)> onCall;

    void open();
    [[nodiscard]] QStringList recorded();
};

class FakeStarter final : public IServerStarter {
public:
    explicit FakeStarter(StarterScript &script)
        : m_script(script)
    {
    }
    bool isHeld() const override;
    bool start(const QString &program, const QString &dataFolder, int waitMs) override;
    bool isRunning() const override;
    bool startPlain(const QString &program) override;
    void release() override;

private:
    void note(const QString &call);
    StarterScript &m_script;
};

// Pauses are over at once, but for those of the heartbeat, which end one by one when the test says so.
struct PauseScript {
    static constexpr int BeatMs = 3000;
    std::mutex mutex;
    std::condition_variable changed;
    QList<int> waits;                      // ms
    std::function<void(int count)> onWait; // with how many there were, this one included
    int ticks{0};
    bool isEnding{false};

    void tick();
    [[nodiscard]] QList<int> recorded();
};

class FakePause final : public LibraryPause {
public:
    explicit FakePause(PauseScript &script)
        : m_script(script)
    {
    }
    bool wait(int ms) override;
    void end() override;
    bool isEnding() const override;

private:
    PauseScript &m_script;
};

class LibraryFixture : public testing::Test {
protected:
    static constexpr int VideoId = 7;
    static constexpr int MusicId = 8;

    LibraryFixture();
    ~LibraryFixture() override;

    // Answers what every start asks for: the libraries, their folders, the heartbeat.
    void answerStart();
    void makeManager();
    // Makes the manager and waits for the end of its start; the requests so far are forgotten.
    void startManager();
    // Loads the role and waits for its end and for the signals.
    void load(int role);
    [[nodiscard]] QStringList statistics();

    QTemporaryDir m_folder;
    SettingsManager m_settings{m_folder.filePath("config.ini")};
    ScriptedServer m_server;
    StarterScript m_starter;
    PauseScript m_pause;
    std::mutex m_statisticsMutex;
    QStringList m_statistics;
    SignalLog m_log;
    std::unique_ptr<MediaServerManager> m_manager;
};

// A JSON object from its text, with single quotes for the double ones.
[[nodiscard]] QJsonObject json(const char *text);
