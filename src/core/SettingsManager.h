// The settings of both faces of the program: one INI file, no cache and no schema. Reading an absent key
// gives an invalid value; a caller that needs a default asks contains() first or uses valueOr(). Owns the
// QSettings object. Safe on every thread; the process-wide store outlives all of them, and what is not yet on
// disk is written when the process ends.
#pragma once

#include "StoredValue.h"
#include "SystemLanguageId.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QRect>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <mutex>
#include <type_traits>

class WholeSettingsFile;

struct PlayHistoryEntry {
    QString displayText;
    QString path;
    int type{0};

    bool operator==(const PlayHistoryEntry &other) const
    {
        return displayText == other.displayText && path == other.path && type == other.type;
    }
};

class SettingsManager final {
public:
    // From an operation to the key bound to it.
    using KeyMap = QMap<int, int>;
    using SystemLanguageReader = std::function<SystemLanguageId()>;

    [[nodiscard]] static SettingsManager *instance();
    explicit SettingsManager(const QString &filePath);
    SettingsManager(const SettingsManager &) = delete;
    SettingsManager &operator=(const SettingsManager &) = delete;

    void setValue(const QString &key, const QVariant &value);
    [[nodiscard]] QVariant value(const QString &key) const;
    [[nodiscard]] bool contains(const QString &key) const;
    void remove(const QString &key);
    // False when what is stored can't be written to the disk; it stays in use and is tried again.
    bool sync();
    // Writes nothing any more, for a process that takes the file away: neither what is pending nor what is
    // set from now on.
    void abandon();
    [[nodiscard]] QString fileName() const;

    // The stored value, or the fallback when the key is absent or holds something else than a T.
    template<class T>
    [[nodiscard]] T valueOr(const QString &key, const T &fallback) const
    {
        const QVariant stored = value(key);
        // Qt takes any text for a true flag.
        if constexpr (std::is_same_v<T, bool>)
            return StoredValue::flag(stored).value_or(fallback);
        else
            return converted(stored, qMetaTypeId<T>()) ? stored.value<T>() : fallback;
    }

    // Array-valued settings in general: one map from entry key to value for each entry. Writing syncs.
    [[nodiscard]] QList<QVariantMap> readArray(const QString &key) const;
    void writeArray(const QString &key, const QList<QVariantMap> &entries);

    // What the system speaks, asked when no language is stored. The default reads the system's locale.
    void setSystemLanguageReader(SystemLanguageReader reader);

    [[nodiscard]] int launchMode() const;
    void setLaunchMode(int mode);
    [[nodiscard]] QString language() const;
    void setLanguage(const QString &code);
    // What the system speaks, by its code; English for a language that the program has no texts for.
    [[nodiscard]] QString systemLanguage() const;
    [[nodiscard]] int audioSpeaker() const;
    void setAudioSpeaker(int speaker);
    [[nodiscard]] int audioPassthrough() const;
    void setAudioPassthrough(int passthrough);
    [[nodiscard]] QRect currentScreenRect() const;
    void setCurrentScreenRect(const QRect &rect);
    [[nodiscard]] bool proxyEnable() const;
    void setProxyEnable(bool enable);
    [[nodiscard]] int proxyType() const;
    void setProxyType(int type);
    [[nodiscard]] QString proxyHost() const;
    void setProxyHost(const QString &host);
    [[nodiscard]] bool hasProxyPort() const;
    [[nodiscard]] QString proxyPort() const;
    void setProxyPort(const QString &port);
    [[nodiscard]] QString proxyUserName() const;
    void setProxyUserName(const QString &name);
    [[nodiscard]] QString proxyPasswd() const;
    void setProxyPasswd(const QString &password);
    [[nodiscard]] bool mediaServerSortOrder() const;
    void setMediaServerSortOrder(bool order);
    [[nodiscard]] int mediaServerSortMethod() const;
    void setMediaServerSortMethod(int method);
    [[nodiscard]] bool firstPlay() const;
    void setFirstPlay(bool first);
    [[nodiscard]] bool addPlan() const;
    void setAddPlan(bool join);

    // Arrays. An entry whose numbers are no integers is skipped; writing syncs.
    [[nodiscard]] KeyMap keyMap(bool tv) const;
    void setKeyMap(bool tv, const KeyMap &map);
    [[nodiscard]] QList<PlayHistoryEntry> playHistory() const;
    void setPlayHistory(const QList<PlayHistoryEntry> &entries);
    [[nodiscard]] bool enableFileAssociation() const;
    void setEnableFileAssociation(bool enable);
    [[nodiscard]] QStringList fileAssociations() const;
    void setFileAssociations(const QStringList &types);

    // Maps from the path that was played, taken as it is. Each change is synced at once: a crash loses
    // nothing.
    [[nodiscard]] int lastPosition(const QString &path) const;
    void setLastPosition(const QString &path, int seconds);
    [[nodiscard]] int lastPositionAudioIndex(const QString &path) const;
    void setLastPositionAudioIndex(const QString &path, int index);
    [[nodiscard]] QByteArray lastPositionSub(const QString &path) const;
    void setLastPositionSub(const QString &path, const QByteArray &choice);
    [[nodiscard]] QByteArray lastPositionPixmap(const QString &path) const;
    void setLastPositionPixmap(const QString &path, const QByteArray &image);
    [[nodiscard]] QString poster(const QString &path) const;
    void setPoster(const QString &path, const QString &posterPath);
    bool removePoster(const QString &path);

private:
    [[nodiscard]] static bool converted(const QVariant &value, int typeId);
    [[nodiscard]] QVariant mapEntry(const char *key, const QString &path) const;
    void setMapEntry(const char *key, const QString &path, const QVariant &value);
    void logKeyMap(bool tv, bool saving, const KeyMap &map) const;
    // Under the lock. A file that can't be written is told once; what was to be written is kept and tried
    // again with the next change.
    bool write();

    // QSettings keeps the array it is in as state of the object, so a whole array is read or written under
    // the lock.
    mutable std::mutex m_mutex;
    mutable QSettings m_settings;
    WholeSettingsFile *m_file; // a child of the settings
    SystemLanguageReader m_systemLanguage;
    bool m_hasToldFailure{false};
};
