// A library in a database of its own: a file, or where the environment names a server's socket
// (kServerVariable), a fresh database of that server. Time stands still until a test moves it.
#pragma once

#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "store/Database.h"
#include "store/LibraryRoots.h"
#include "store/MusicLibrary.h"
#include "store/ScanStore.h"
#include "store/VideoLibrary.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

constexpr char kServerVariable[] = "QUORIN_STORE_SERVER";

class StoreFixture : public testing::Test {
protected:
    StoreFixture();
    ~StoreFixture() override;

    // Closes the library and opens it again, as a new start of the program does.
    void reopen();
    bool store(const ScannedFolder &folder) { return scans->store({folder}); }

    static ScannedFolder folder(int root, const QString &path);
    static ScannedVideo film(const QString &path, const QString &title, int year = 0);
    static ScannedVideo episode(const QString &path, const QString &show, int season, int number);
    static ScannedSong song(const QString &path, const QString &title, const QString &artist = {},
                            const QString &album = {});
    static ListRequest everything(SortMethod sort = SortMethod::Title, bool ascending = true);

    QStringList titles(Role role, const ListRequest &request = everything()) const;
    QStringList songTitles(const ListRequest &request = everything()) const;
    int idOfFilm(const QString &title, Role role = Role::Movies) const;
    int idOfSong(const QString &title) const;

    QTemporaryDir data;
    DataFolder places;
    ServerConfiguration configuration;
    std::atomic<qint64> now{1700000000000};
    std::unique_ptr<Database> database;
    std::unique_ptr<LibraryRoots> roots;
    std::unique_ptr<ScanStore> scans;
    std::unique_ptr<VideoLibrary> videos;
    std::unique_ptr<MusicLibrary> music;
    int videoRoot{0};
    int musicRoot{0};

private:
    void open();
};
