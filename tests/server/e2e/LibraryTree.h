// A library on disk, as users have it: films, shows, home videos, discs, adult content and music, with small
// real files. Owns the folder and removes it.
//
// Paths are relative to the folder of the library that the operation names; full() makes them absolute.
#pragma once

#include "SoundFile.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

class LibraryTree final {
public:
    LibraryTree() = default;
    ~LibraryTree();
    LibraryTree(const LibraryTree &) = delete;
    LibraryTree &operator=(const LibraryTree &) = delete;

    [[nodiscard]] QString full(const QString &path) const { return m_folder.filePath(path); }
    [[nodiscard]] QString films() const { return full(QStringLiteral("films")); }
    [[nodiscard]] QString shows() const { return full(QStringLiteral("shows")); }
    [[nodiscard]] QString home() const { return full(QStringLiteral("home")); }
    [[nodiscard]] QString adult() const { return full(QStringLiteral("adult")); }
    [[nodiscard]] QString music() const { return full(QStringLiteral("music")); }

    // Each makes what the tests compare with, by name.
    void makeFilms() const;
    void makeShows() const;
    void makeHome() const;
    void makeAdult() const;
    void makeMusic() const;

    // Single files, by their path below the tree.
    void clip(const QString &path) const;
    void text(const QString &path, const QByteArray &content) const;
    void picture(const QString &path, unsigned int colour) const;
    void sound(const QString &path, const SoundFile &tags) const;
    // False where the system refuses.
    [[nodiscard]] bool rename(const QString &from, const QString &to) const;

private:
    QTemporaryDir m_folder;
};
