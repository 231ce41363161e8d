#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/CommonInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/StoredProxy.h"
#include "settings/SettingsModel.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace SettingTables;

namespace {

class SettingsModelTest : public testing::Test {
protected:
    // Runs a check to its end; true when everything can be stored.
    static bool isGood(SettingsModel &model)
    {
        QSignalSpy checked(&model, &SettingsModel::checked);
        model.check();
        if (checked.isEmpty() && !checked.wait())
            return false;
        return checked.takeFirst().at(0).toBool();
    }

    TestSettings m_store;
    FakeSettingsHost m_host;
};

} // namespace

TEST_F(SettingsModelTest, SavesPageByPageInTheFixedOrder)
{
    m_host.known.isWindows = true;
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(OutputMode, int(OutputHdmi));
    model.setValue(ProxyChoice, int(ManualProxy));
    const QStringList written = model.save();
    const QStringList first{SettingsKeys::PC_Language,       SettingsKeys::PC_DVDPlayMode,
                            SettingsKeys::PC_MenuLanguage,   SettingsKeys::PC_EnableAdultContent,
                            SettingsKeys::PC_EnableHardware, SettingsKeys::PC_DefaultAudioDeviceName,
                            SettingsKeys::PC_3DEngine,       SettingsKeys::PC_Font,
                            SettingsKeys::PC_RegionCode,     SettingsKeys::EnableFileAssociation,
                            SettingsKeys::PC_SnapShotPath,   SettingsKeys::PC_keyMap,
                            SettingsKeys::PC_ProxyEnable};
    int before = -1;
    for (const QString &key : first) {
        const int place = written.indexOf(key);
        EXPECT_GT(place, before) << qPrintable(key);
        before = place;
    }
    EXPECT_GT(written.indexOf(SettingsKeys::PC_MenuLanguage), written.indexOf(SettingsKeys::PC_PlayStateTip));
}

TEST_F(SettingsModelTest, TheEngineIsToldAfterEverythingIsStored)
{
    class Watcher final : public FakeSettingsHost {
    public:
        SettingsManager *store{nullptr};
        bool wasStored{false};
        void applyVideo() override { wasStored = store->contains(SettingsKeys::PC_ProxyEnable); }
    } host;
    host.store = &*m_store;
    SettingsModel model(*m_store, host);
    model.load();
    (void)model.save();
    EXPECT_TRUE(host.wasStored);
    EXPECT_EQ(host.calls, (QStringList{"audio", "subtitle", "region", "proxy", "server proxy"}));
}

TEST_F(SettingsModelTest, DefaultsStoreNothing)
{
    m_store->setValue(SettingsKeys::PC_AutoPlay, false);
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setDefaults();
    EXPECT_EQ(model.value(SettingsKeys::PC_AutoPlay), true);
    EXPECT_FALSE(m_store->value(SettingsKeys::PC_AutoPlay).toBool());
    EXPECT_FALSE(m_store->contains(SettingsKeys::PC_PausePlay));
    EXPECT_TRUE(m_host.calls.isEmpty());
}

TEST_F(SettingsModelTest, Windows7NeverStores3D)
{
    m_host.known.isWindows = true;
    m_host.known.isWindows7 = true;
    m_store->setValue(SettingsKeys::PC_PlayIn3D, true);
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(SettingsKeys::PC_PlayIn3D, true);
    model.setValue(SettingsKeys::PC_ConvertTo3D, true);
    model.setValue(SettingsKeys::PC_3DEngine, true);
    (void)model.save();
    for (const char *key :
         {SettingsKeys::PC_PlayIn3D, SettingsKeys::PC_ConvertTo3D, SettingsKeys::PC_3DEngine})
        EXPECT_FALSE(m_store->value(key).toBool()) << key;
    model.setDefaults();
    (void)model.save();
    EXPECT_FALSE(m_store->value(SettingsKeys::PC_PlayIn3D).toBool());
}

// ---- sound

TEST_F(SettingsModelTest, AnAnalogDeviceKeepsThePassThroughAsStored)
{
    m_store->setValue(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Headphones"));
    m_store->setValue(SettingsKeys::PC_PassThrough, 3);
    m_store->setValue(SettingsKeys::PC_PassThroughButtonEnable, true);
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_EQ(model.value(OutputMode), int(OutputAnalog));
    EXPECT_FALSE(model.allowsPassThrough());
    EXPECT_EQ(model.value(SettingsKeys::PC_PassThrough), true);
    model.setValue(SettingsKeys::PC_PassThrough, false);
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_PassThrough).toInt(), 3);
    EXPECT_TRUE(m_store->value(SettingsKeys::PC_PassThroughButtonEnable).toBool());
}

TEST_F(SettingsModelTest, APassThroughIsStoredAsItsOutputMode)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(OutputMode, int(OutputOptical));
    EXPECT_EQ(model.value(SettingsKeys::PC_DefaultAudioDeviceName), QStringLiteral("Optical out"));
    model.setValue(SettingsKeys::PC_PassThrough, true);
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_PassThrough).toInt(), int(OutputOptical));
    model.setValue(SettingsKeys::PC_PassThrough, false);
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_PassThrough).toInt(), 0);
}

TEST_F(SettingsModelTest, TheModeFollowsTheStoredDevice)
{
    m_store->setValue(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Receiver"));
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_EQ(model.value(OutputMode), int(OutputHdmi));
    EXPECT_EQ(model.devicesOfMode(), QStringList{QStringLiteral("Receiver")});
}

TEST_F(SettingsModelTest, ADeviceThatIsNotConnectedIsKept)
{
    m_store->setValue(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Old receiver"));
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_TRUE(model.devicesOfMode().contains(QStringLiteral("Old receiver")));
    EXPECT_FALSE(model.isConnected(QStringLiteral("Old receiver")));
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_DefaultAudioDeviceName).toString(),
              QStringLiteral("Old receiver"));
}

TEST_F(SettingsModelTest, DevicesThatComeLaterAreOffered)
{
    const QList<SettingsAudioDevice> later = m_host.devices;
    m_host.devices.clear();
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_TRUE(model.devicesOfMode().isEmpty());
    QSignalSpy changed(&model, &SettingsModel::devicesChanged);
    m_host.devices = later;
    model.updateDevices();
    EXPECT_GE(changed.count(), 1);
    EXPECT_EQ(model.value(SettingsKeys::PC_DefaultAudioDeviceName), QStringLiteral("Built-in speakers"));
}

TEST_F(SettingsModelTest, AModeWithoutDevicesLeavesTheDevice)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(OutputMode, int(OutputDisplayPort));
    EXPECT_TRUE(model.devicesOfMode().isEmpty());
    EXPECT_EQ(model.value(SettingsKeys::PC_DefaultAudioDeviceName), QStringLiteral("Built-in speakers"));
}

TEST_F(SettingsModelTest, ACharacterSetStoredByNameIsUnderstood)
{
    m_store->setValue(SettingsKeys::PC_Charset, QStringLiteral("Japanese"));
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_EQ(model.value(SettingsKeys::PC_Charset), QStringLiteral("932"));
}

// ---- proxy

TEST_F(SettingsModelTest, AManualProxyIsStoredWhole)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(ProxyChoice, int(ManualProxy));
    model.setValue(SettingsKeys::PC_ProxyType, int(ProxySocks));
    model.setValue(SettingsKeys::PC_ProxyHost, QStringLiteral(" 10.0.0.1 "));
    model.setValue(SettingsKeys::PC_ProxyPort, QStringLiteral("1080"));
    model.setValue(SettingsKeys::PC_ProxyUserName, QStringLiteral("me"));
    model.setValue(SettingsKeys::PC_ProxyPasswd, QStringLiteral(" secret "));
    EXPECT_TRUE(isGood(model));
    (void)model.save();
    EXPECT_TRUE(m_store->proxyEnable());
    EXPECT_EQ(m_store->proxyType(), 2);
    EXPECT_EQ(m_store->proxyHost(), QStringLiteral("10.0.0.1"));
    EXPECT_EQ(m_store->proxyPort(), QStringLiteral("1080"));
    EXPECT_EQ(m_store->proxyPasswd(), QStringLiteral(" secret "));
}

TEST_F(SettingsModelTest, NoProxyKeepsWhatIsStoredOfAManualOne)
{
    m_store->setProxyEnable(true);
    m_store->setProxyType(1);
    m_store->setProxyHost(QStringLiteral("old.lan"));
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_EQ(model.value(ProxyChoice), int(ManualProxy));
    model.setValue(ProxyChoice, int(NoProxy));
    (void)model.save();
    EXPECT_FALSE(m_store->proxyEnable());
    EXPECT_EQ(m_store->proxyHost(), QStringLiteral("old.lan"));
}

TEST_F(SettingsModelTest, TheSystemsProxyIsStoredAsItStandsBesideTheManualOne)
{
    m_store->setProxyHost(QStringLiteral("old.lan"));
    m_store->setProxyPort(QStringLiteral("8080"));
    m_store->setProxyUserName(QStringLiteral("me"));
    m_store->setProxyPasswd(QStringLiteral("word"));
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(ProxyChoice, int(SystemProxy));
    EXPECT_TRUE(isGood(model));
    (void)model.save();
    const StoredProxy used = StoredProxy::inUse(*m_store);
    EXPECT_TRUE(used.isEnabled);
    EXPECT_EQ(used.host, QStringLiteral("proxy.lan"));
    EXPECT_EQ(used.port, QStringLiteral("3128"));
    EXPECT_EQ(used.userName, QString());
    EXPECT_EQ(m_store->proxyHost(), QStringLiteral("old.lan"));
    EXPECT_EQ(m_store->proxyPort(), QStringLiteral("8080"));
    EXPECT_EQ(m_store->proxyUserName(), QStringLiteral("me"));
    EXPECT_EQ(m_store->proxyPasswd(), QStringLiteral("word"));
    SettingsModel again(*m_store, m_host);
    again.load();
    EXPECT_EQ(again.value(ProxyChoice), int(SystemProxy));
    again.setValue(ProxyChoice, int(ManualProxy));
    (void)again.save();
    EXPECT_EQ(StoredProxy::inUse(*m_store).host, QStringLiteral("old.lan"));
    EXPECT_EQ(StoredProxy::inUse(*m_store).password, QStringLiteral("word"));
}

TEST_F(SettingsModelTest, ASystemsProxyOfAnEarlierFileIsStillInUse)
{
    m_store->setProxyEnable(true);
    m_store->setProxyType(ProxyOfSystem);
    m_store->setProxyHost(QStringLiteral("proxy.lan"));
    m_store->setProxyPort(QStringLiteral("3128"));
    EXPECT_EQ(StoredProxy::inUse(*m_store).host, QStringLiteral("proxy.lan"));
    EXPECT_EQ(StoredProxy::inUse(*m_store).port, QStringLiteral("3128"));
}

TEST_F(SettingsModelTest, AWrongPortIsRefused)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(ProxyChoice, int(ManualProxy));
    model.setValue(SettingsKeys::PC_ProxyHost, QStringLiteral("proxy.lan"));
    for (const char *port : {"", "0", "65536", "-1", "80x", "1e3", "99999999999"}) {
        model.setValue(SettingsKeys::PC_ProxyPort, QString::fromLatin1(port));
        EXPECT_FALSE(isGood(model)) << port;
        EXPECT_FALSE(model.binding(SettingsKeys::PC_ProxyPort)->problem().isEmpty()) << port;
        EXPECT_EQ(model.pageWithProblem(), SettingsPageId::Network) << port;
    }
    for (const char *port : {"1", "8080", "65535", " 3128 "}) {
        model.setValue(SettingsKeys::PC_ProxyPort, QString::fromLatin1(port));
        EXPECT_TRUE(isGood(model)) << port;
    }
}

TEST_F(SettingsModelTest, AWrongPortCountsOnlyForAManualProxy)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(SettingsKeys::PC_ProxyPort, QStringLiteral("none"));
    EXPECT_TRUE(isGood(model));
}

TEST_F(SettingsModelTest, AnAddressWithASchemeIsRefused)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(ProxyChoice, int(ManualProxy));
    model.setValue(SettingsKeys::PC_ProxyPort, QStringLiteral("80"));
    model.setValue(SettingsKeys::PC_ProxyHost, QStringLiteral("http://proxy.lan"));
    EXPECT_FALSE(isGood(model));
    model.setValue(SettingsKeys::PC_ProxyHost, QString());
    EXPECT_FALSE(isGood(model));
}

// ---- folders

TEST_F(SettingsModelTest, AFolderThatDoesNotExistIsRefused)
{
    QTemporaryDir folder;
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(SettingsKeys::PC_SnapShotPath, folder.filePath(QStringLiteral("gone")));
    EXPECT_FALSE(isGood(model));
    EXPECT_EQ(model.pageWithProblem(), SettingsPageId::Snapshot);
    EXPECT_EQ(model.binding(SettingsKeys::PC_SnapShotPath)->problem(),
              FolderProbe::reason(FolderProbe::Missing));
    model.setValue(SettingsKeys::PC_SnapShotPath, folder.path());
    EXPECT_TRUE(isGood(model));
}

TEST_F(SettingsModelTest, ADefaultFolderNeedNotBeThereYet)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    ASSERT_FALSE(QDir(m_host.known.picturesFolder).exists());
    EXPECT_TRUE(isGood(model));
    model.setValue(SettingsKeys::PC_LogPath, QString());
    EXPECT_TRUE(isGood(model));
}

TEST_F(SettingsModelTest, ACancelledCheckAnswersNothing)
{
    QTemporaryDir folder;
    SettingsModel model(*m_store, m_host);
    model.load();
    model.setValue(SettingsKeys::PC_SnapShotPath, folder.path());
    QSignalSpy checked(&model, &SettingsModel::checked);
    model.check();
    EXPECT_TRUE(model.isChecking());
    model.cancelCheck();
    EXPECT_FALSE(model.isChecking());
    // What was asked is answered before what is asked now.
    qRegisterMetaType<FolderProbe::Answer>("FolderProbe::Answer");
    FolderProbe other;
    QSignalSpy answered(&other, &FolderProbe::answered);
    (void)other.ask(folder.path(), FolderNeed::Readable);
    ASSERT_TRUE(answered.wait());
    EXPECT_EQ(checked.count(), 0);
}

// ---- library and keys

TEST_F(SettingsModelTest, TheAdultLibraryIsToldOnlyWhenItChanged)
{
    SettingsModel model(*m_store, m_host);
    QSignalSpy changed(&model, &SettingsModel::adultLibraryChanged);
    model.load();
    (void)model.save();
    EXPECT_EQ(changed.count(), 0);
    model.setValue(SettingsKeys::PC_EnableAdultContent, true);
    (void)model.save();
    EXPECT_EQ(changed.count(), 1);
    (void)model.save();
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(SettingsModelTest, BothKeyMapsAreStored)
{
    SettingsModel model(*m_store, m_host);
    model.load();
    KeyMapModel *keys = model.keys(KeyMapTables::Mode::Pc);
    ASSERT_TRUE(keys->setData(keys->index(0, KeyMapModel::KeyColumn), int(Qt::Key_F9), KeyMapModel::KeyRole));
    (void)model.save();
    const CommonInfoManager stored(*m_store);
    EXPECT_EQ(stored.getPcKeyMap().value(KeyOperate_OpenFile), int(Qt::Key_F9));
    EXPECT_EQ(stored.getTvKeyMap().value(KeyOperate_Return), int(Qt::Key_Backspace));
}
