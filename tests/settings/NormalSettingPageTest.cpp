#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/LanguageManager.h"
#include "core/SettingsKeys.h"
#include "settings/AudioPage.h"
#include "settings/BluRayPage.h"
#include "settings/Display3DPage.h"
#include "settings/FileAssociationPage.h"
#include "settings/LibraryPage.h"
#include "settings/NormalSettingPage.h"
#include "settings/RadioColumn.h"
#include "settings/SettingCombo.h"
#include "settings/SettingRowWidget.h"
#include "settings/SwitchBox.h"
#include "settings/VideoPage.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace {

class NormalSettingPageTest : public testing::Test {
protected:
    NormalSettingPage &dialog()
    {
        if (!m_dialog) {
            m_dialog = std::make_unique<NormalSettingPage>(
                *m_store, m_host, nullptr,
                NormalSettingPage::Boxes{[this](QWidget *, const QString &text) { m_told << text; },
                                         [this](QWidget *, const QString &text, const QString &) {
                                             m_asked << text;
                                             return m_says;
                                         }});
            m_dialog->prepare();
            m_dialog->show();
            QApplication::setActiveWindow(m_dialog.get());
        }
        return *m_dialog;
    }
    template<class Page>
    Page *page(SettingsPageId id)
    {
        return qobject_cast<Page *>(dialog().page(id));
    }
    SettingRowWidget *row(SettingsPageId id, const char *key) { return dialog().page(id)->row(key); }
    // What the file of the store holds.
    QByteArray file()
    {
        m_store->sync();
        QFile stored(m_store->fileName());
        return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray();
    }

    TestSettings m_store;
    FakeSettingsHost m_host;
    FakeLibrary m_library;
    QStringList m_told;
    QStringList m_asked;
    bool m_says{true};
    std::unique_ptr<NormalSettingPage> m_dialog;
};

} // namespace

// ---- the ends

TEST_F(NormalSettingPageTest, CancelAfterDefaultLeavesTheStoreUntouched)
{
    m_store->setValue(SettingsKeys::PC_AutoPlay, false);
    m_store->setValue(SettingsKeys::PC_FontSize, 40);
    const QByteArray before = file();
    dialog().slot_defaultClicked();
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_AutoPlay), true);
    dialog().slot_cancelClicked();
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(file(), before);
    EXPECT_TRUE(m_host.calls.isEmpty());
}

TEST_F(NormalSettingPageTest, EscapeCancels)
{
    dialog().model().setValue(SettingsKeys::PC_AutoPlay, false);
    QSignalSpy rejected(&dialog(), &QDialog::rejected);
    QTest::keyClick(&dialog(), Qt::Key_Escape);
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_FALSE(m_store->contains(SettingsKeys::PC_AutoPlay));
}

TEST_F(NormalSettingPageTest, EnterStoresAndEnds)
{
    dialog().model().setValue(SettingsKeys::PC_AutoPlay, false);
    QSignalSpy saved(&dialog(), &NormalSettingPage::sig_settingsSaved);
    QTest::keyClick(&dialog(), Qt::Key_Return);
    ASSERT_EVENTUALLY(!dialog().isVisible());
    EXPECT_EQ(dialog().result(), int(QDialog::Accepted));
    EXPECT_TRUE(m_store->contains(SettingsKeys::PC_AutoPlay));
    EXPECT_FALSE(m_store->value(SettingsKeys::PC_AutoPlay).toBool());
    EXPECT_EQ(saved.count(), 1);
    EXPECT_EQ(m_host.calls.first(), QStringLiteral("video"));
}

TEST_F(NormalSettingPageTest, OpenedAgainItShowsTheStoreAndNotWhatWasLeftBehind)
{
    dialog().model().setValue(SettingsKeys::PC_AutoPlay, false);
    dialog().slot_closeClicked();
    dialog().prepare();
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_AutoPlay), true);
}

TEST_F(NormalSettingPageTest, RunsModallyOnTheAskedPage)
{
    NormalSettingPage &page = dialog();
    page.hide();
    page.setStartPage(SettingsPageId::Subtitle);
    SettingsPageId seen = SettingsPageId::General;
    QTimer::singleShot(0, &page, [&] {
        seen = page.currentPage();
        page.slot_cancelClicked();
    });
    EXPECT_EQ(page.exec(), int(QDialog::Rejected));
    EXPECT_EQ(seen, SettingsPageId::Subtitle);
    EXPECT_TRUE(page.isModal());
}

TEST_F(NormalSettingPageTest, AWrongValueIsShownOnItsPageAndNothingIsStored)
{
    dialog().model().setValue(SettingTables::ProxyChoice, int(SettingTables::ManualProxy));
    dialog().model().setValue(SettingsKeys::PC_ProxyHost, QStringLiteral("proxy.lan"));
    dialog().model().setValue(SettingsKeys::PC_ProxyPort, QStringLiteral("70000"));
    const QByteArray before = file();
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(dialog().currentPage() == SettingsPageId::Network);
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(file(), before);
    SettingRowWidget *port = row(SettingsPageId::Network, SettingsKeys::PC_ProxyPort);
    EXPECT_EQ(dialog().focusWidget(), port->control());
    EXPECT_EQ(port->control()->accessibleDescription(),
              QStringLiteral("The port is a number from 1 to 65535."));
    port->as<QLineEdit>()->clear();
    QTest::keyClicks(port->control(), QStringLiteral("8080"));
    EXPECT_TRUE(port->binding().problem().isEmpty());
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(!dialog().isVisible());
    EXPECT_EQ(m_store->proxyPort(), QStringLiteral("8080"));
}

TEST_F(NormalSettingPageTest, ACancelDuringTheCheckStoresNothing)
{
    QTemporaryDir folder;
    dialog().model().setValue(SettingsKeys::PC_SnapShotPath, folder.path());
    QSignalSpy saved(&dialog(), &NormalSettingPage::sig_settingsSaved);
    const QByteArray before = file();
    dialog().slot_okClicked();
    EXPECT_FALSE(dialog().okButton()->isEnabled());
    dialog().slot_cancelClicked();
    qRegisterMetaType<FolderProbe::Answer>("FolderProbe::Answer");
    FolderProbe other;
    QSignalSpy answered(&other, &FolderProbe::answered);
    (void)other.ask(folder.path(), FolderNeed::Readable);
    ASSERT_TRUE(answered.wait());
    EXPECT_EQ(saved.count(), 0);
    EXPECT_EQ(file(), before);
    dialog().prepare();
    EXPECT_TRUE(dialog().okButton()->isEnabled());
}

TEST_F(NormalSettingPageTest, AnUnknownExtensionIsRefused)
{
    dialog().slot_changeTabPage(int(SettingsPageId::FileAssociation));
    auto *files = page<FileAssociationPage>(SettingsPageId::FileAssociation);
    row(SettingsPageId::FileAssociation, SettingsKeys::EnableFileAssociation)->as<SwitchBox>()->click();
    EXPECT_TRUE(files->box()->isEnabled());
    files->box()->setPlainText(QStringLiteral("*.docx;"));
    EXPECT_EQ(files->problem(), QStringLiteral("Oops! This file extension is not supported yet."));
    dialog().slot_changeTabPage(0);
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(dialog().currentPage() == SettingsPageId::FileAssociation);
    EXPECT_TRUE(dialog().isVisible());
}

TEST_F(NormalSettingPageTest, ARefusedAssociationIsTold)
{
    m_host.takesAssociations = false;
    dialog().model().setValue(SettingsKeys::EnableFileAssociation, true);
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(!dialog().isVisible());
    ASSERT_EVENTUALLY(!m_told.isEmpty());
    EXPECT_EQ(m_told, QStringList{QStringLiteral("The file associations were not changed.")});
    EXPECT_FALSE(m_store->enableFileAssociation());
}

TEST_F(NormalSettingPageTest, TheAdultLibraryIsToldAfterItsChange)
{
    QSignalSpy changed(&dialog(), &NormalSettingPage::sig_adultLibraryStateChanged);
    dialog().model().setValue(SettingsKeys::PC_EnableAdultContent, true);
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(!dialog().isVisible());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(NormalSettingPageTest, ANewLanguageReachesTheOpenWindowsAtOnce)
{
    class Window final : public ILanguageBase {
    public:
        int count{0};
        void retranslate() override { ++count; }
    } window;
    m_store->setLanguage(QStringLiteral("ENU"));
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(!dialog().isVisible());
    EXPECT_EQ(window.count, 0);
    dialog().prepare();
    dialog().show();
    dialog().model().setValue(SettingsKeys::PC_Language, QStringLiteral("GER"));
    dialog().okButton()->click();
    ASSERT_EVENTUALLY(!dialog().isVisible());
    EXPECT_EQ(window.count, 1);
    EXPECT_EQ(m_store->language(), QStringLiteral("GER"));
}

// ---- the keyboard

TEST_F(NormalSettingPageTest, CtrlTabGoesThroughThePages)
{
    auto *list = dialog().findChild<QListWidget *>(QStringLiteral("settingsPages"));
    ASSERT_TRUE(list);
    for (int step = 1; step <= SettingsPageCount; ++step) {
        QTest::keyClick(dialog().focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(int(dialog().currentPage()), step % SettingsPageCount);
        EXPECT_EQ(list->currentRow(), step % SettingsPageCount);
    }
    QTest::keyClick(dialog().focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(int(dialog().currentPage()), SettingsPageCount - 1);
}

TEST_F(NormalSettingPageTest, TheListHasTheKeyboardWhenItOpens)
{
    auto *list = dialog().findChild<QListWidget *>(QStringLiteral("settingsPages"));
    EXPECT_EQ(dialog().focusWidget(), list);
    ASSERT_EVENTUALLY(list->hasFocus());
}

TEST_F(NormalSettingPageTest, TabGoesFromTheListThroughThePageToTheButtons)
{
    for (const auto id : {SettingsPageId::General, SettingsPageId::Network, SettingsPageId::Video}) {
        dialog().slot_changeTabPage(int(id));
        dialog().findChild<QListWidget *>(QStringLiteral("settingsPages"))->setFocus();
        QList<QWidget *> way;
        for (int step = 0; step < 60 && (way.isEmpty() || way.last() != dialog().okButton()); ++step) {
            QTest::keyClick(dialog().focusWidget(), Qt::Key_Tab);
            way << dialog().focusWidget();
        }
        ASSERT_EQ(way.last(), dialog().okButton());
        ASSERT_GE(way.size(), 4);
        EXPECT_EQ(way.at(way.size() - 2), dialog().cancelButton());
        EXPECT_EQ(way.at(way.size() - 3), dialog().defaultButton());
        for (int step = 0; step < way.size() - 3; ++step)
            EXPECT_TRUE(dialog().page(id)->isAncestorOf(way.at(step)));
    }
}

TEST_F(NormalSettingPageTest, EveryControlHasANameForReaders)
{
    for (int id = 0; id < SettingsPageCount; ++id) {
        for (SettingRowWidget *each : dialog().page(SettingsPageId(id))->rowWidgets())
            EXPECT_FALSE(each->control()->accessibleName().isEmpty()) << each->binding().row().key;
    }
}

TEST_F(NormalSettingPageTest, TheWheelOverAControlWithoutTheKeyboardChangesNothing)
{
    dialog().slot_changeTabPage(int(SettingsPageId::Subtitle));
    for (const char *key : {SettingsKeys::PC_Charset, SettingsKeys::PC_FontSize}) {
        QWidget *control = row(SettingsPageId::Subtitle, key)->control();
        const QVariant before = dialog().model().value(key);
        QWheelEvent wheel(QPointF(5, 5), control->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -240),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &wheel);
        EXPECT_EQ(dialog().model().value(key), before) << key;
    }
}

// ---- rules of the pages

TEST_F(NormalSettingPageTest, ControlsAndValuesFollowEachOther)
{
    auto *autoPlay = row(SettingsPageId::General, SettingsKeys::PC_AutoPlay)->as<SwitchBox>();
    autoPlay->click();
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_AutoPlay), false);
    dialog().slot_defaultClicked();
    EXPECT_TRUE(autoPlay->isChecked());
    auto *combo = row(SettingsPageId::Playback, SettingsKeys::PC_SubtitleLanguage)->as<SettingCombo>();
    dialog().model().setValue(SettingsKeys::PC_SubtitleLanguage, QStringLiteral("close"));
    EXPECT_EQ(combo->currentText(), QStringLiteral("Off"));
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_SubtitleLanguage), QStringLiteral("same"));
}

TEST_F(NormalSettingPageTest, TheCurveFollowsHdr)
{
    const auto isOn = [this](const char *key) { return row(SettingsPageId::Video, key)->isEnabled(); };
    EXPECT_TRUE(isOn(SettingsKeys::PC_HDRMode));
    EXPECT_FALSE(isOn(SettingsKeys::PC_SDRMode));
    dialog().model().setValue(SettingsKeys::PC_HDRMode, 1);
    EXPECT_TRUE(isOn(SettingsKeys::PC_SDRMode));
    dialog().model().setValue(SettingsKeys::PC_EnableHDR, false);
    EXPECT_FALSE(isOn(SettingsKeys::PC_HDRMode));
    EXPECT_TRUE(isOn(SettingsKeys::PC_SDRValue));
}

TEST_F(NormalSettingPageTest, TheHardwareIsAnalyzedByTheProgramInTheProgramsFolder)
{
    page<VideoPage>(SettingsPageId::Video)->slot_hardwareDetectClicked();
    ASSERT_EQ(m_host.calls.size(), 1);
    EXPECT_TRUE(m_host.calls.first().startsWith(QStringLiteral("\"/opt/player/SupportCheck")));
    EXPECT_TRUE(m_host.calls.first().endsWith(QLatin1Char('"')));
}

TEST_F(NormalSettingPageTest, Windows7RefusesEachUseOf3D)
{
    m_host.known.isWindows = true;
    m_host.known.isWindows7 = true;
    auto *view = page<Display3DPage>(SettingsPageId::Display3D);
    dialog().model().setValue(SettingsKeys::PC_PlayIn3D, true);
    view->slot_playIn3DClicked();
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_PlayIn3D), false);
    view->slot_convertTo3DClicked();
    view->slot_3DDeviceSelected(2);
    EXPECT_EQ(m_told.size(), 3);
    for (const QString &text : m_told)
        EXPECT_EQ(text,
                  QStringLiteral("Oops! 3D playback support is only available on Windows 8/10 for now."));
}

TEST_F(NormalSettingPageTest, A3DDeviceThatIsNotSupportedGoesBackToTheOneBefore)
{
    m_host.modesWithout3D = {3};
    dialog().model().setValue(SettingsKeys::PC_3DMode, 1);
    SettingRowWidget *device = row(SettingsPageId::Display3D, SettingsKeys::PC_3DMode);
    device->as<SettingCombo>()->setCurrentIndex(3);
    emit device->as<SettingCombo>()->activated(3);
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_3DMode), 1);
    EXPECT_EQ(device->as<SettingCombo>()->currentIndex(), 1);
    ASSERT_EQ(m_told.size(), 1);
    EXPECT_TRUE(m_told.first().startsWith(QStringLiteral("Oops! The selected device does not support")));
}

TEST_F(NormalSettingPageTest, Hdmi3DWithTwoScreensIsWarnedOf)
{
    m_host.known.screenCount = 2;
    SettingRowWidget *device = row(SettingsPageId::Display3D, SettingsKeys::PC_3DMode);
    emit device->as<SettingCombo>()->activated(4);
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_3DMode), 4);
    ASSERT_EQ(m_told.size(), 1);
    EXPECT_TRUE(m_told.first().startsWith(
        QStringLiteral("Oops! There are multiple displays detected. To use HDMI 1.4 3D output,")));
}

TEST_F(NormalSettingPageTest, ReceiversFollowThePassThrough)
{
    const auto isOn = [this](const char *key) { return row(SettingsPageId::Audio, key)->isEnabled(); };
    auto *audio = page<AudioPage>(SettingsPageId::Audio);
    EXPECT_FALSE(isOn(SettingsKeys::PC_PassThrough));
    audio->slot_setAudioMode(SettingTables::OutputHdmi);
    EXPECT_TRUE(isOn(SettingsKeys::PC_PassThrough));
    EXPECT_FALSE(isOn(SettingsKeys::PC_AC3));
    audio->slot_changePassThroughState(true);
    EXPECT_TRUE(isOn(SettingsKeys::PC_AC3));
    EXPECT_TRUE(isOn(SettingsKeys::PC_TrueHD));
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_PassThroughButtonEnable), true);
    audio->slot_setAudioMode(SettingTables::OutputNone);
    EXPECT_FALSE(isOn(SettingsKeys::PC_PassThrough));
    EXPECT_FALSE(isOn(SettingsKeys::PC_AC3));
}

TEST_F(NormalSettingPageTest, TheBluRayMenuFollowsThePlayMode)
{
    EXPECT_FALSE(row(SettingsPageId::BluRay, SettingsKeys::PC_JumpToMenu)->isEnabled());
    dialog().model().setValue(SettingsKeys::PC_BDPlayMode, true);
    EXPECT_TRUE(row(SettingsPageId::BluRay, SettingsKeys::PC_JumpToMenu)->isEnabled());
    EXPECT_FALSE(row(SettingsPageId::BluRay, SettingsKeys::PC_EnableBD)->isEnabled());
    row(SettingsPageId::BluRay, SettingsKeys::PC_RegionCode)->as<RadioColumn>()->button(2)->click();
    EXPECT_EQ(dialog().model().value(SettingsKeys::PC_RegionCode), 3);
}

TEST_F(NormalSettingPageTest, TheSystemsSettingsAreOpenedFromWindows8On)
{
    m_host.known.isWindows = true;
    m_host.known.isWindows8OrLater = true;
    page<FileAssociationPage>(SettingsPageId::FileAssociation)->slot_jumpToSystemSetting();
    EXPECT_EQ(m_host.calls, QStringList{QStringLiteral("system settings")});
    bool tells = false;
    for (const QLabel *label : dialog().page(SettingsPageId::FileAssociation)->findChildren<QLabel *>())
        tells =
            tells
            || label->text()
                   == QStringLiteral("To change your default apps, go to Settings > System > Default apps.");
    EXPECT_TRUE(tells);
}

// ---- the library

TEST_F(NormalSettingPageTest, WithoutALibraryThePageSaysSo)
{
    dialog().slot_changeTabPage(int(SettingsPageId::Library));
    bool says = false;
    for (const QLabel *label : dialog().page(SettingsPageId::Library)->findChildren<QLabel *>())
        says =
            says
            || (label->isVisible() && label->text() == QStringLiteral("The media library is not available."));
    EXPECT_TRUE(says);
    EXPECT_FALSE(row(SettingsPageId::Library, SettingsKeys::PC_EnableAdultContent)->isEnabled());
    page<LibraryPage>(SettingsPageId::Library)->slot_updateLibrary();
    page<LibraryPage>(SettingsPageId::Library)->slot_rebuildLibrary();
}

TEST_F(NormalSettingPageTest, ARebuildIsAskedForFirst)
{
    m_host.paths = &m_library;
    m_says = false;
    auto *library = page<LibraryPage>(SettingsPageId::Library);
    library->slot_rebuildLibrary();
    EXPECT_EQ(m_asked, QStringList{QStringLiteral("Are you sure to clear and rebuild your library?")});
    EXPECT_TRUE(m_library.calls.isEmpty());
    m_says = true;
    library->slot_rebuildLibrary();
    library->slot_updateLibrary();
    EXPECT_EQ(m_library.calls, (QStringList{QStringLiteral("rebuild"), QStringLiteral("update")}));
}

TEST_F(NormalSettingPageTest, TheFoldersOfTheLibraryAreShownAndFollowIt)
{
    m_host.paths = &m_library;
    auto *library = page<LibraryPage>(SettingsPageId::Library);
    const QList<QListWidget *> lists = library->findChildren<QListWidget *>();
    ASSERT_EQ(lists.size(), 2);
    EXPECT_EQ(lists.first()->count(), 2);
    EXPECT_EQ(lists.last()->count(), 1);
    ASSERT_TRUE(m_library.changed);
    m_library.video << QStringLiteral("/more");
    m_library.changed();
    EXPECT_EQ(lists.first()->count(), 3);
    m_dialog.reset();
    EXPECT_FALSE(m_library.changed);
}
