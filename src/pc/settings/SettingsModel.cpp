#include "SettingsModel.h"

#include "core/CommonInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "core/StoredProxy.h"
#include "player/PreferenceRows.h"
#include "player/PreferenceValues.h"
#include "player/SubtitleCharsets.h"

#include <QDebug>

#include <algorithm>

using namespace SettingTables;

namespace {

constexpr int LastPort = 65535;

} // namespace

SettingsModel::SettingsModel(SettingsManager &store, ISettingsHost &host, FolderProbe *folders,
                             QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_host(host)
    , m_facts(host.facts())
    , m_pcKeys(new KeyMapModel(KeyMapTables::Mode::Pc, this))
    , m_tvKeys(new KeyMapModel(KeyMapTables::Mode::Tv, this))
    , m_associations(new FileAssociationList(host, this))
    , m_folders(folders ? folders : new FolderProbe)
{
    m_folders->setParent(this);
    for (int page = 0; page < SettingsPageCount; ++page) {
        std::vector<SettingRow> table = rows(SettingsPageId(page), m_facts);
        for (SettingRow &row : table)
            m_pages[std::size_t(page)].append(new SettingBinding(std::move(row), this));
    }
    connect(m_folders, &FolderProbe::answered, this, &SettingsModel::onFolderAnswered);
    connect(m_associations, &FileAssociationList::refused, this, &SettingsModel::associationsRefused);
    makeRules();
}

void SettingsModel::makeRules()
{
    // A file of ours may hold the number of the output mode, a flag, or the name of a set.
    binding(SettingsKeys::PC_PassThrough)
        ->setCode(
            [](const QVariant &stored) {
                const auto &row = PreferenceRows::PassThrough;
                return QVariant(PreferenceValues::number(row, stored).value_or(row.fallback) != 0);
            },
            [this](const QVariant &isOn) {
                return isOn.toBool() ? value(OutputMode) : QVariant(int(OutputNone));
            });
    binding(SettingsKeys::PC_Charset)
        ->setCode([](const QVariant &stored) { return SubtitleCharsets::code(stored.toString()); },
                  [](const QVariant &shown) { return shown; });
    if (m_facts.isWindows7) {
        const auto off = [](const QVariant &) { return QVariant(false); };
        for (const char *key :
             {SettingsKeys::PC_3DEngine, SettingsKeys::PC_PlayIn3D, SettingsKeys::PC_ConvertTo3D}) {
            binding(key)->setCode(off, off);
            binding(key)->setAlwaysWritten(true);
        }
    }
    SettingBinding *associate = binding(SettingsKeys::EnableFileAssociation);
    connect(associate, &SettingBinding::valueChanged, m_associations,
            [this](const QVariant &isOn) { m_associations->setEnabled(isOn.toBool()); });
    connect(m_associations, &FileAssociationList::changed, associate,
            [this, associate] { associate->setValue(m_associations->isEnabled()); });
    connect(binding(OutputMode), &SettingBinding::valueChanged, this, [this] {
        takeDeviceOfMode();
        emit devicesChanged();
    });
}

const QList<SettingBinding *> &SettingsModel::bindings(SettingsPageId page) const
{
    return m_pages[std::size_t(page)];
}

SettingBinding *SettingsModel::binding(const char *key) const
{
    for (const auto &page : m_pages) {
        for (SettingBinding *candidate : page) {
            if (qstrcmp(candidate->row().key, key) == 0)
                return candidate;
        }
    }
    return nullptr;
}

QVariant SettingsModel::value(const char *key) const
{
    const SettingBinding *found = binding(key);
    return found ? found->value() : QVariant();
}

void SettingsModel::setValue(const char *key, const QVariant &value)
{
    if (SettingBinding *found = binding(key))
        found->setValue(value);
}

KeyMapModel *SettingsModel::keys(KeyMapTables::Mode mode) const
{
    return mode == KeyMapTables::Mode::Pc ? m_pcKeys : m_tvKeys;
}

// ---- load and defaults

void SettingsModel::load()
{
    cancelCheck();
    m_devices = m_host.audioDevices();
    for (const auto &page : m_pages) {
        for (SettingBinding *each : page)
            each->load(m_store);
    }
    m_associations->load(m_store);
    const CommonInfoManager keyMaps(m_store);
    m_pcKeys->load(keyMaps.getPcKeyMap());
    m_tvKeys->load(keyMaps.getTvKeyMap());
    loadDerived();
}

void SettingsModel::loadDerived()
{
    SettingBinding *name = binding(SettingsKeys::PC_DefaultAudioDeviceName);
    const SettingsAudioDevice *known = device(name->value().toString());
    const int stored = m_store.value(SettingsKeys::PC_PassThrough).toInt();
    if (known)
        setValue(OutputMode, known->connection);
    else if (!name->value().toString().isEmpty() && stored > OutputAnalog)
        setValue(OutputMode, stored);
    else if (!m_devices.isEmpty())
        setValue(OutputMode, m_devices.first().connection);
    // The change of the mode may have taken another.
    if (m_store.contains(name->key()))
        name->load(m_store);
    takeDeviceOfMode();
    m_loadedMode = value(OutputMode).toInt();

    int choice = NoProxy;
    if (m_store.proxyEnable())
        choice = m_store.proxyType() == ProxyOfSystem ? SystemProxy : ManualProxy;
    setValue(ProxyChoice, choice);
    emit devicesChanged();
}

void SettingsModel::setDefaults()
{
    for (const auto &page : m_pages) {
        for (SettingBinding *each : page)
            each->setDefault();
    }
    if (!m_devices.isEmpty()) {
        setValue(OutputMode, m_devices.first().connection);
        setValue(SettingsKeys::PC_DefaultAudioDeviceName, m_devices.first().name);
    }
    m_associations->setDefault();
    m_pcKeys->setDefaults();
    m_tvKeys->setDefaults();
}

// ---- check

void SettingsModel::check()
{
    cancelCheck();
    checkNetwork();
    for (const auto &page : m_pages) {
        for (SettingBinding *each : page) {
            if (each->row().control != SettingControl::Folder)
                continue;
            const QString folder = each->value().toString();
            each->setProblem({});
            // An empty one stands for the default; a default is made when it is needed.
            if (!folder.isEmpty() && folder != each->row().standard.toString())
                m_questions.insert(m_folders->ask(folder, each->row().folder), each);
        }
    }
    if (m_questions.isEmpty())
        emit checked(!pageWithProblem());
}

void SettingsModel::cancelCheck()
{
    m_questions.clear();
}

void SettingsModel::onFolderAnswered(int question, FolderProbe::Answer answer)
{
    SettingBinding *asked = m_questions.take(question);
    if (!asked)
        return;
    asked->setProblem(FolderProbe::reason(answer));
    if (m_questions.isEmpty())
        emit checked(!pageWithProblem());
}

void SettingsModel::checkNetwork()
{
    SettingBinding *host = binding(SettingsKeys::PC_ProxyHost);
    SettingBinding *port = binding(SettingsKeys::PC_ProxyPort);
    host->setProblem({});
    port->setProblem({});
    if (value(ProxyChoice).toInt() != ManualProxy)
        return;
    const QString name = host->value().toString().trimmed();
    if (name.isEmpty())
        host->setProblem(tr("Please enter the address of the proxy."));
    else if (name.contains(' ') || name.contains('/'))
        host->setProblem(tr("Please enter the address alone, as proxy.example.org or 192.168.0.1."));
    const QString text = port->value().toString().trimmed();
    const bool isDigits = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= '0' && c <= '9'; });
    const int number = isDigits && text.size() <= 5 ? text.toInt() : 0;
    if (number < 1 || number > LastPort)
        port->setProblem(tr("The port is a number from 1 to 65535."));
}

std::optional<SettingsPageId> SettingsModel::pageWithProblem() const
{
    for (int page = 0; page < SettingsPageCount; ++page) {
        const auto &list = m_pages[std::size_t(page)];
        const auto isBad = [](const SettingBinding *each) { return !each->problem().isEmpty(); };
        if (std::any_of(list.begin(), list.end(), isBad))
            return SettingsPageId(page);
        if (SettingsPageId(page) == SettingsPageId::FileAssociation
            && m_associations->problem() != FileAssociationList::Problem::None)
            return SettingsPageId(page);
    }
    return {};
}

// ---- save

QStringList SettingsModel::save()
{
    const bool hadAdult = m_store.value(SettingsKeys::PC_EnableAdultContent).toBool();
    // Without a pass-through its keys stay what they were for the next receiver.
    const bool isKept = !allowsPassThrough();
    binding(SettingsKeys::PC_PassThrough)->setKept(isKept);
    binding(SettingsKeys::PC_PassThroughButtonEnable)->setKept(isKept);
    // It is stored as the mode that it goes out by.
    const int mode = value(OutputMode).toInt();
    binding(SettingsKeys::PC_PassThrough)->setAlwaysWritten(mode != m_loadedMode);
    m_loadedMode = mode;
    QStringList written;
    for (int step = 0; step < SaveStepCount; ++step)
        saveStep(SaveStep(step), written);
    m_isOnDisk = m_store.sync();
    applyToEngine();
    if (m_store.value(SettingsKeys::PC_EnableAdultContent).toBool() != hadAdult)
        emit adultLibraryChanged();
    return written;
}

void SettingsModel::saveStep(SaveStep step, QStringList &written)
{
    if (step == SaveStep::Network) {
        saveProxy(written);
        return;
    }
    for (SettingBinding *each : bindings(pageOf(step))) {
        if (each->row().step == step && each->save(m_store))
            written.append(each->key());
    }
    if (step == SaveStep::FileAssociation) {
        m_associations->save(m_store);
        written << SettingsKeys::EnableFileAssociation << SettingsKeys::FileAssociation;
    }
    if (step == SaveStep::HotKeys)
        saveHotKeys(written);
}

void SettingsModel::saveHotKeys(QStringList &written)
{
    CommonInfoManager keyMaps(m_store);
    keyMaps.savePcKeyMap(m_pcKeys->map());
    keyMaps.saveTvKeyMap(m_tvKeys->map());
    written << SettingsKeys::PC_keyMap << SettingsKeys::TV_keyMap;
}

void SettingsModel::saveProxy(QStringList &written)
{
    written << SettingsKeys::PC_ProxyEnable;
    switch (value(ProxyChoice).toInt()) {
    case NoProxy:
        // What is stored of a manual proxy stays for the next time.
        m_store.setProxyEnable(false);
        break;
    case SystemProxy: {
        const SettingsProxy proxy = m_host.systemProxy();
        StoredProxy::chooseSystem(m_store, proxy.host, proxy.port);
        written << SettingsKeys::PC_ProxyType << SettingsKeys::PC_ProxySystemHost
                << SettingsKeys::PC_ProxySystemPort;
        return;
    }
    case ManualProxy:
        m_store.setProxyEnable(true);
        m_store.setProxyType(value(SettingsKeys::PC_ProxyType).toInt());
        m_store.setProxyHost(value(SettingsKeys::PC_ProxyHost).toString().trimmed());
        m_store.setProxyPort(value(SettingsKeys::PC_ProxyPort).toString().trimmed());
        m_store.setProxyUserName(value(SettingsKeys::PC_ProxyUserName).toString());
        m_store.setProxyPasswd(value(SettingsKeys::PC_ProxyPasswd).toString());
        break;
    default:
        qInfo() << "[ASSERT] proxy setting type no valid!";
        return;
    }
    written << SettingsKeys::PC_ProxyType << SettingsKeys::PC_ProxyHost << SettingsKeys::PC_ProxyPort
            << SettingsKeys::PC_ProxyUserName << SettingsKeys::PC_ProxyPasswd;
}

void SettingsModel::applyToEngine()
{
    m_host.applyVideo();
    m_host.applyAudio();
    m_host.applySubtitle();
    m_host.applyRegion();
    m_host.applyProxy();
    m_host.applyServerProxy();
}

// ---- rules

const SettingsAudioDevice *SettingsModel::device(const QString &name) const
{
    for (const SettingsAudioDevice &each : m_devices) {
        if (each.name == name)
            return &each;
    }
    return nullptr;
}

bool SettingsModel::isConnected(const QString &name) const
{
    return device(name) != nullptr;
}

QStringList SettingsModel::devicesOfMode() const
{
    const int mode = value(OutputMode).toInt();
    QStringList names;
    for (const SettingsAudioDevice &each : m_devices) {
        if (each.connection == mode)
            names.append(each.name);
    }
    const QString chosen = value(SettingsKeys::PC_DefaultAudioDeviceName).toString();
    if (!chosen.isEmpty() && !isConnected(chosen))
        names.append(chosen);
    return names;
}

void SettingsModel::updateDevices()
{
    m_devices = m_host.audioDevices();
    const SettingsAudioDevice *known = device(value(SettingsKeys::PC_DefaultAudioDeviceName).toString());
    if (known)
        setValue(OutputMode, known->connection);
    else if (value(SettingsKeys::PC_DefaultAudioDeviceName).toString().isEmpty() && !m_devices.isEmpty())
        setValue(OutputMode, m_devices.first().connection);
    takeDeviceOfMode();
    emit devicesChanged();
}

// The first device of the mode, where the one that is set is of another.
void SettingsModel::takeDeviceOfMode()
{
    const QStringList names = devicesOfMode();
    if (!names.isEmpty() && !names.contains(value(SettingsKeys::PC_DefaultAudioDeviceName).toString()))
        setValue(SettingsKeys::PC_DefaultAudioDeviceName, names.first());
}

bool SettingsModel::allowsPassThrough() const
{
    return value(OutputMode).toInt() > OutputAnalog;
}

bool SettingsModel::usesMenus() const
{
    return value(SettingsKeys::PC_BDPlayMode).toBool();
}
