// The scan's side of the database: fingerprints, batches of folders, what went missing.
#pragma once

#include "IScanStore.h"

class Connection;
class Database;

class ScanStore final : public IScanStore {
public:
    explicit ScanStore(const Database &database);

    [[nodiscard]] QHash<QString, QByteArray> fingerprints(int pathId) const override;
    [[nodiscard]] QVector<ScannedSong> storedSongs(int pathId, const QString &folder) const override;
    [[nodiscard]] QVector<ScannedVideo> storedVideos(int pathId, const QString &folder) const override;
    bool store(const QVector<ScannedFolder> &folders) override;
    // Refused for a folder that is offline: what cannot be reached is not gone.
    bool forgetFolders(int pathId, const QStringList &folders) override;
    void finishScan(int pathId) override;
    bool clearForRebuild(int pathId) override;

private:
    const Database &m_database;
};
