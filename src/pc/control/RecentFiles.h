// What was played last, newest first, as both faces keep it in the settings.
//
// A view of the settings, which it does not own; every change is stored at once. No source stands in it
// twice, names being compared as the file system compares them. Whatever else stands in the stored list is
// read around. GUI thread.
#pragma once

#include "core/PlatformNames.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>

class SettingsManager;
struct PlayHistoryEntry;

class RecentFiles final {
public:
    // What a source was played as; the number is stored.
    enum Type : int { File = 0, Folder = 1, Disc = 2 };

    struct Entry {
        QString name; // never empty
        QString path; // a single character is a drive letter
        int type{File};
        // Where it was left, and the picture of that moment as PNG; 0 and empty where nothing is stored.
        int seconds{0};
        QByteArray picture;
    };

    static constexpr int Most = 24;

    explicit RecentFiles(SettingsManager &settings, Qt::CaseSensitivity pathCase = PlatformNames::pathCase());

    [[nodiscard]] QVector<Entry> entries() const;

    // Puts a source in front; one that is known already moves there. A path that can't be one is left out.
    void add(const QString &name, const QString &path, Type type);
    void remove(const QString &path);
    void clear();

private:
    // The stored list without rubbish, doubles and what is beyond the bound.
    [[nodiscard]] QList<PlayHistoryEntry> stored() const;
    [[nodiscard]] bool isSame(const QString &one, const QString &other) const;

    SettingsManager &m_settings;
    Qt::CaseSensitivity m_pathCase;
};
