// The places of the server's files, all below the one folder that it works on.
#pragma once

#include <QString>

class DataFolder final {
public:
    // Makes the folder and its subfolders where they are missing; isUsable() tells whether that worked.
    explicit DataFolder(const QString &path);

    // Where the player keeps the library of this user, for a start that names no folder.
    [[nodiscard]] static QString normalPath();

    [[nodiscard]] bool isUsable() const { return m_usable; }
    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QString databasePath() const;        // library.db
    [[nodiscard]] QString backupPath() const;          // library.backup.db
    [[nodiscard]] QString configurationPath() const;   // server.ini
    [[nodiscard]] QString logPath() const;             // server.log
    [[nodiscard]] QString imageFolder() const;         // images/, the picture cache
    [[nodiscard]] QString providerCacheFolder() const; // provider/, answers of the metadata provider

private:
    QString m_path;
    bool m_usable{false};
};
