// A library tree, the server's program and the player's manager of it, as they stand in use. Heartbeats come
// quickly, so that a test waits for no more than the server's own work.
#pragma once

#include "LibraryTree.h"
#include "ServerProcess.h"

#include "core/SettingsManager.h"
#include "library/LibraryRole.h"
#include "library/MediaServerManager.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

class ServerFixture : public testing::Test {
protected:
    ServerFixture();
    ~ServerFixture() override;

    // The server and, once it answers, the manager; both may be there already.
    void startServer();
    void startManager();
    // SIGKILL for the server; the manager goes with it, since a player would hold what no longer is.
    void killServer();

    // Has the server look for changes and waits until it has.
    void scan();
    void waitForScanEnd();
    // Waits heartbeat by heartbeat, at most limitMs.
    [[nodiscard]] bool waitByHeartbeats(const std::function<bool()> &condition, int limitMs = 60000);
    // Loads one role, or all of them, and waits for the end.
    void load(LibraryRole role);
    void loadAll();

    // The id of the one record of that kind or song with that title; empty, and a failure, when there is not
    // just one.
    [[nodiscard]] QString idOf(VideoCache::Kind kind, const QString &title) const;
    [[nodiscard]] QString songId(const QString &title) const;
    [[nodiscard]] QStringList titles(VideoCache::Kind kind) const; // sorted
    [[nodiscard]] QStringList songTitles(const QStringList &ids) const;
    [[nodiscard]] MusicChanges &music() { return m_manager->musicChanges(); }

    QTemporaryDir m_data;
    LibraryTree m_tree;
    SettingsManager m_settings{m_data.filePath("player.ini")};
    ServerProcess m_server{m_data.filePath("server")};
    std::unique_ptr<MediaServerManager> m_manager;
};
