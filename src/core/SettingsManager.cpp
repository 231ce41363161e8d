#include "SettingsManager.h"

#include "ApplicationInfoManager.h"
#include "LanguageTable.h"
#include "SettingsKeys.h"
#include "WholeSettingsFile.h"

#include <QDebug>
#include <QLocale>

#include <cstdlib>
#include <optional>
#include <utility>

namespace {

constexpr int kDefaultLaunchMode = 1;
constexpr int kDefaultSpeaker = 1;
constexpr int kDefaultPassthrough = 1;

std::optional<int> integer(const QVariant &value)
{
    bool ok = false;
    const int number = value.toInt(&ok);
    return ok ? std::optional<int>(number) : std::nullopt;
}

QString languageCode(const SystemLanguageId &id)
{
    switch (id.primary) {
    case SystemLanguageId::Chinese:
        return id.sub == SystemLanguageId::ChineseSimplified ? QStringLiteral("CHS") : QStringLiteral("CHT");
    case SystemLanguageId::German:
        return QStringLiteral("GER");
    case SystemLanguageId::Spanish:
        return QStringLiteral("ESP");
    case SystemLanguageId::French:
        return QStringLiteral("FRA");
    case SystemLanguageId::Japanese:
        return QStringLiteral("JPN");
    default:
        return QString::fromLatin1(LanguageTable::English);
    }
}

} // namespace

SettingsManager *SettingsManager::instance()
{
    static SettingsManager *const store = [] {
        auto *made = new SettingsManager(ApplicationInfoManager::instance()->configurationFile());
        // The object is never destroyed, so QSettings' own last write has to be asked for.
        std::atexit([] { instance()->sync(); });
        return made;
    }();
    return store;
}

SettingsManager::SettingsManager(const QString &filePath)
    : m_settings(filePath, QSettings::IniFormat)
    , m_file(new WholeSettingsFile(m_settings, m_mutex))
    , m_systemLanguage([] { return SystemLanguageId::fromLocale(QLocale::system()); })
{
}

void SettingsManager::setValue(const QString &key, const QVariant &value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.setValue(key, value);
}

QVariant SettingsManager::value(const QString &key) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.value(key);
}

bool SettingsManager::contains(const QString &key) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.contains(key);
}

void SettingsManager::remove(const QString &key)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.remove(key);
}

bool SettingsManager::sync()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return write();
}

void SettingsManager::abandon()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_file->abandon();
}

bool SettingsManager::write()
{
    const bool isWritten = m_file->sync();
    if (!isWritten && !std::exchange(m_hasToldFailure, true))
        qInfo().noquote() << "[Settings] the file cannot be written:" << m_settings.fileName();
    return isWritten;
}

QString SettingsManager::fileName() const
{
    return m_settings.fileName();
}

bool SettingsManager::converted(const QVariant &value, int typeId)
{
    QVariant copy = value;
    return copy.isValid() && copy.convert(typeId);
}

void SettingsManager::setSystemLanguageReader(SystemLanguageReader reader)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_systemLanguage = std::move(reader);
}

QList<QVariantMap> SettingsManager::readArray(const QString &key) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    QList<QVariantMap> entries;
    const int count = m_settings.beginReadArray(key);
    for (int i = 0; i < count; ++i) {
        m_settings.setArrayIndex(i);
        const QStringList names = m_settings.childKeys();
        // A size that the file does not back up with entries must not cost a loop over two thousand million.
        if (names.isEmpty())
            break;
        QVariantMap entry;
        for (const QString &name : names)
            entry.insert(name, m_settings.value(name));
        entries << entry;
    }
    m_settings.endArray();
    return entries;
}

void SettingsManager::writeArray(const QString &key, const QList<QVariantMap> &entries)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    // What a longer array left behind would otherwise stay in the file.
    m_settings.remove(key);
    m_settings.beginWriteArray(key, entries.size());
    for (int i = 0; i < entries.size(); ++i) {
        m_settings.setArrayIndex(i);
        const QVariantMap &entry = entries.at(i);
        for (auto it = entry.cbegin(); it != entry.cend(); ++it)
            m_settings.setValue(it.key(), it.value());
    }
    m_settings.endArray();
    write();
}

int SettingsManager::launchMode() const
{
    return integer(value(SettingsKeys::launchModeVersion6)).value_or(kDefaultLaunchMode);
}

void SettingsManager::setLaunchMode(int mode)
{
    setValue(SettingsKeys::launchModeVersion6, mode);
}

QString SettingsManager::language() const
{
    const QString stored = value(SettingsKeys::PC_Language).toString();
    return stored.isEmpty() ? systemLanguage() : stored;
}

QString SettingsManager::systemLanguage() const
{
    SystemLanguageReader reader;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        reader = m_systemLanguage;
    }
    return reader ? languageCode(reader()) : QString::fromLatin1(LanguageTable::English);
}

void SettingsManager::setLanguage(const QString &code)
{
    if (!code.isEmpty())
        setValue(SettingsKeys::PC_Language, code);
}

int SettingsManager::audioSpeaker() const
{
    return integer(value(SettingsKeys::AudioSpeaker)).value_or(kDefaultSpeaker);
}

void SettingsManager::setAudioSpeaker(int speaker)
{
    setValue(SettingsKeys::AudioSpeaker, speaker);
}

int SettingsManager::audioPassthrough() const
{
    return integer(value(SettingsKeys::AudioPassthrough)).value_or(kDefaultPassthrough);
}

void SettingsManager::setAudioPassthrough(int passthrough)
{
    setValue(SettingsKeys::AudioPassthrough, passthrough);
}

QRect SettingsManager::currentScreenRect() const
{
    return value(SettingsKeys::TV_crtScreenRect).toRect();
}

void SettingsManager::setCurrentScreenRect(const QRect &rect)
{
    if (!rect.isValid()) {
        qInfo() << "[ASSERT] set Current Screen Rect not vaild";
        return;
    }
    setValue(SettingsKeys::TV_crtScreenRect, rect);
}

bool SettingsManager::proxyEnable() const
{
    return valueOr(SettingsKeys::PC_ProxyEnable, false);
}

void SettingsManager::setProxyEnable(bool enable)
{
    setValue(SettingsKeys::PC_ProxyEnable, enable);
}

int SettingsManager::proxyType() const
{
    return value(SettingsKeys::PC_ProxyType).toInt();
}

void SettingsManager::setProxyType(int type)
{
    setValue(SettingsKeys::PC_ProxyType, type);
}

QString SettingsManager::proxyHost() const
{
    return value(SettingsKeys::PC_ProxyHost).toString();
}

void SettingsManager::setProxyHost(const QString &host)
{
    setValue(SettingsKeys::PC_ProxyHost, host);
}

bool SettingsManager::hasProxyPort() const
{
    return contains(SettingsKeys::PC_ProxyPort);
}

QString SettingsManager::proxyPort() const
{
    return value(SettingsKeys::PC_ProxyPort).toString();
}

void SettingsManager::setProxyPort(const QString &port)
{
    setValue(SettingsKeys::PC_ProxyPort, port);
}

QString SettingsManager::proxyUserName() const
{
    return value(SettingsKeys::PC_ProxyUserName).toString();
}

void SettingsManager::setProxyUserName(const QString &name)
{
    setValue(SettingsKeys::PC_ProxyUserName, name);
}

QString SettingsManager::proxyPasswd() const
{
    return value(SettingsKeys::PC_ProxyPasswd).toString();
}

void SettingsManager::setProxyPasswd(const QString &password)
{
    setValue(SettingsKeys::PC_ProxyPasswd, password);
}

bool SettingsManager::mediaServerSortOrder() const
{
    return valueOr(SettingsKeys::PC_MediaServerSortOrder, false);
}

void SettingsManager::setMediaServerSortOrder(bool order)
{
    setValue(SettingsKeys::PC_MediaServerSortOrder, order);
}

int SettingsManager::mediaServerSortMethod() const
{
    return value(SettingsKeys::PC_MediaServerSortMethod).toInt();
}

void SettingsManager::setMediaServerSortMethod(int method)
{
    setValue(SettingsKeys::PC_MediaServerSortMethod, method);
}

bool SettingsManager::firstPlay() const
{
    return valueOr(SettingsKeys::PC_FirstPlay, true);
}

void SettingsManager::setFirstPlay(bool first)
{
    setValue(SettingsKeys::PC_FirstPlay, first);
}

bool SettingsManager::addPlan() const
{
    return contains(SettingsKeys::PC_ADDPLAN) && valueOr(SettingsKeys::PC_AddPlan, false);
}

void SettingsManager::setAddPlan(bool join)
{
    setValue(SettingsKeys::PC_AddPlan, join);
}

SettingsManager::KeyMap SettingsManager::keyMap(bool tv) const
{
    KeyMap map;
    const auto entries = readArray(tv ? SettingsKeys::TV_keyMap : SettingsKeys::PC_keyMap);
    for (const QVariantMap &entry : entries) {
        const auto operation = integer(entry.value(SettingsKeys::HotKey_Key));
        const auto key = integer(entry.value(SettingsKeys::HotKey_Value));
        if (operation && key)
            map.insert(*operation, *key);
    }
    logKeyMap(tv, false, map);
    return map;
}

void SettingsManager::setKeyMap(bool tv, const KeyMap &map)
{
    QList<QVariantMap> entries;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        entries << QVariantMap{{SettingsKeys::HotKey_Key, it.key()},
                               {SettingsKeys::HotKey_Value, it.value()}};
    writeArray(tv ? SettingsKeys::TV_keyMap : SettingsKeys::PC_keyMap, entries);
    logKeyMap(tv, true, map);
}

void SettingsManager::logKeyMap(bool tv, bool saving, const KeyMap &map) const
{
    static constexpr const char *kTags[2][2] = {
        {"[PC_Hotkey] get pc key map: ", "[PC_Hotkey] save Pc key map: "},
        {"[TV_Hotkey] get tv key map: ", "[TV_Hotkey] save tv key map: "},
    };
    if (ApplicationInfoManager::debugHotKey())
        qInfo().nospace() << kTags[tv][saving] << map.size() << ' ' << map;
}

QList<PlayHistoryEntry> SettingsManager::playHistory() const
{
    QList<PlayHistoryEntry> history;
    const auto entries = readArray(SettingsKeys::PlayHistory);
    for (const QVariantMap &entry : entries) {
        if (const auto type = integer(entry.value(SettingsKeys::PlayType)))
            history << PlayHistoryEntry{entry.value(SettingsKeys::PlayDisplayText).toString(),
                                        entry.value(SettingsKeys::PlayPath).toString(), *type};
    }
    return history;
}

void SettingsManager::setPlayHistory(const QList<PlayHistoryEntry> &history)
{
    QList<QVariantMap> entries;
    for (const PlayHistoryEntry &entry : history)
        entries << QVariantMap{{SettingsKeys::PlayDisplayText, entry.displayText},
                               {SettingsKeys::PlayPath, entry.path},
                               {SettingsKeys::PlayType, entry.type}};
    writeArray(SettingsKeys::PlayHistory, entries);
}

bool SettingsManager::enableFileAssociation() const
{
    return valueOr(SettingsKeys::EnableFileAssociation, false);
}

void SettingsManager::setEnableFileAssociation(bool enable)
{
    setValue(SettingsKeys::EnableFileAssociation, enable);
}

QStringList SettingsManager::fileAssociations() const
{
    QStringList types;
    const auto entries = readArray(SettingsKeys::FileAssociation);
    for (const QVariantMap &entry : entries)
        types << entry.value(SettingsKeys::FileType).toString();
    if (ApplicationInfoManager::debugFileAssociation())
        qInfo().nospace() << "[FileAss] get file association count: " << types.size();
    return types;
}

void SettingsManager::setFileAssociations(const QStringList &types)
{
    QList<QVariantMap> entries;
    for (const QString &type : types)
        entries << QVariantMap{{SettingsKeys::FileType, type}};
    writeArray(SettingsKeys::FileAssociation, entries);
    if (ApplicationInfoManager::debugFileAssociation())
        qInfo().nospace() << "[FileAss] save file association count: " << types.size();
}

QVariant SettingsManager::mapEntry(const char *key, const QString &path) const
{
    return value(key).toMap().value(path);
}

void SettingsManager::setMapEntry(const char *key, const QString &path, const QVariant &entry)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    QVariantMap map = m_settings.value(key).toMap();
    map.insert(path, entry);
    m_settings.setValue(key, map);
    write();
}

int SettingsManager::lastPosition(const QString &path) const
{
    return mapEntry(SettingsKeys::PC_LastPositionMap, path).toInt();
}

void SettingsManager::setLastPosition(const QString &path, int seconds)
{
    setMapEntry(SettingsKeys::PC_LastPositionMap, path, seconds);
}

int SettingsManager::lastPositionAudioIndex(const QString &path) const
{
    return mapEntry(SettingsKeys::PC_LastPositionAudioIndexMap, path).toInt();
}

void SettingsManager::setLastPositionAudioIndex(const QString &path, int index)
{
    setMapEntry(SettingsKeys::PC_LastPositionAudioIndexMap, path, index);
}

QByteArray SettingsManager::lastPositionSub(const QString &path) const
{
    return mapEntry(SettingsKeys::PC_LastPositionSubMap, path).toByteArray();
}

void SettingsManager::setLastPositionSub(const QString &path, const QByteArray &choice)
{
    setMapEntry(SettingsKeys::PC_LastPositionSubMap, path, choice);
}

QByteArray SettingsManager::lastPositionPixmap(const QString &path) const
{
    return mapEntry(SettingsKeys::PC_LastPositionPixmapMap, path).toByteArray();
}

void SettingsManager::setLastPositionPixmap(const QString &path, const QByteArray &image)
{
    setMapEntry(SettingsKeys::PC_LastPositionPixmapMap, path, image);
}

QString SettingsManager::poster(const QString &path) const
{
    return mapEntry(SettingsKeys::PC_PosterMap, path).toString();
}

void SettingsManager::setPoster(const QString &path, const QString &posterPath)
{
    setMapEntry(SettingsKeys::PC_PosterMap, path, posterPath);
}

bool SettingsManager::removePoster(const QString &path)
{
    if (path.isEmpty())
        return true;
    std::lock_guard<std::mutex> lock(m_mutex);
    QVariantMap map = m_settings.value(SettingsKeys::PC_PosterMap).toMap();
    if (map.remove(path) == 0)
        return false;
    m_settings.setValue(SettingsKeys::PC_PosterMap, map);
    write();
    return true;
}
