// What both faces share besides the settings proper: the stored key maps, the tables of file types, and the
// user's leave to send usage data. Safe on every thread.
#pragma once

#include "Singleton.h"

#include <QMap>
#include <QString>
#include <QStringList>

class SettingsManager;

enum class FileKind { Other, Video, Audio, Subtitle, DiscImage };

class CommonInfoManager final : public Singleton<CommonInfoManager> {
public:
    using KeyMap = QMap<int, int>;

    // A store of its own for tests; the process-wide object uses the process-wide store.
    explicit CommonInfoManager(SettingsManager &store);

    [[nodiscard]] KeyMap getTvKeyMap() const;
    void saveTvKeyMap(const KeyMap &map);
    [[nodiscard]] KeyMap getPcKeyMap() const;
    void savePcKeyMap(const KeyMap &map);

    // The user's permission to send usage data.
    [[nodiscard]] bool usageDataAllowed() const;

    // Extensions in lower case without a point, in the order of the table.
    [[nodiscard]] static QStringList extensions(FileKind kind);
    // The same as name filters: "*.mkv".
    [[nodiscard]] static QStringList nameFilters(FileKind kind);
    // Everything that can be opened to play: video, audio and disc images.
    [[nodiscard]] static QStringList playableExtensions();
    [[nodiscard]] static QStringList playableNameFilters();

    // By the extension alone, in any case.
    [[nodiscard]] static FileKind kindOf(const QString &path);

private:
    friend class Singleton<CommonInfoManager>;
    CommonInfoManager();

    SettingsManager &m_store;
};
