// What the window of PC mode opens, asks and tells: menus, dialogs and notes.
#include "NormalMainWindow.h"

#include "NormalPlayControl.h"
#include "PcLibraryPaths.h"
#include "PcMediaSession.h"
#include "PcSettingsHost.h"
#include "dialogs/NormalMessageBox.h"
#include "dialogs/NormalMessageBoxFactory.h"
#include "dialogs/PcDialogs.h"
#include "menus/OpticalDiscs.h"
#include "menus/PlayMenu.h"
#include "overlays/NormalMetaView.h"
#include "overlays/PlayOverlays.h"

#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "keys/AppEventFilter.h"
#include "library/MediaServerManager.h"
#include "online/PlayInfoStatisticsHelper.h"
#include "platform/ScreenSaver.h"
#include "playcontrol/BehaviourNames.h"
#include "playcontrol/ErrorNote.h"
#include "playcontrol/MenuCase.h"
#include "playcontrol/PlayFailure.h"
#include "settings/NormalSettingPage.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

namespace {

constexpr char kSubtitleFilter[] = QT_TRANSLATE_NOOP("NormalMainWindow", "Subtitle Files (%1)");
} // namespace

void NormalMainWindow::noteBehaviour(const QString &name, const QString &value)
{
    PlayInfoStatisticsHelper::instance()->note(QLatin1String(BehaviourNames::UserBehaviour), name, value);
}

void NormalMainWindow::makePlayMenu()
{
    MenuHost host{m_settings,
                  [this] { return m_player; },
                  [this] { return m_control->hasSource(); },
                  [this] { slot_openMedia(); },
                  [this](const QString &drive) { slot_playSource(drive); },
                  [this] { slot_loadSubtitle(); },
                  [this] { openDialog(PopDlgTyle::SubtitleSetting); },
                  [this] { slot_settingClicked(); },
                  [this] { openDialog(PopDlgTyle::VideoControl); },
                  [this] { openDialog(PopDlgTyle::ColorAdjust); },
                  [this] { m_control->slot_stopLater(); },
                  [this] { slot_fullScreen(); },
                  [this] { toggleAlwaysOnTop(); },
                  [this] { toggleInformation(); },
                  [this](int seconds) { emit sig_seek(seconds); },
                  noteBehaviour,
                  ApplicationInfoManager::instance()->shaderFolder()};
    m_playMenu = new PlayMenu(
        std::move(host),
        [](int operation) {
            return AppEventFilter::instance()
                ->keySequence(false, operation)
                .toString(QKeySequence::NativeText);
        },
        this);
    m_discs = new OpticalDiscs(this);
    m_discs->refresh();
    m_settingsHost = std::make_unique<PcSettingsHost>(m_settings, [this] { return m_player; });
    m_settingsHost->setLibrary([this] {
        return std::make_unique<PcLibraryPaths>(*MediaServerManager::instance(),
                                                [this] { return isAdultFolder(); });
    });
}

bool NormalMainWindow::isAdultFolder()
{
    NormalMessageBox box(m_settingPage ? m_settingPage->window() : this);
    box.setText(tr("To add to the library, please specify the library type for the directory."));
    const int common = box.addButton(tr("Movies & TV Shows"));
    const int adult = box.addButton(tr("Adult"));
    box.setDefaultButton(common);
    return box.exec() == adult;
}

void NormalMainWindow::slot_showInitFailDialog()
{
    if (m_isClosed)
        return;
    NormalMessageBoxFactory::showNote(
        this, tr("Failure initializing playback device, please update your video card and "
                 "sound card drivers. Contact us if that does not fix the problem."));
}

void NormalMainWindow::tellFailure(int errCode)
{
    if (m_isClosed)
        return;
    const PlayFailure::Row &row = PlayFailure::rowOf(errCode);
    QString text = PlayFailure::text(row, QUrl());
    if (row.namesSource)
        text += QStringLiteral("\n\n") + m_control->currentPath();
    NormalMessageBoxFactory::showNote(this, text, PlayFailure::title(row));
    m_control->failureRead(errCode);
}

void NormalMainWindow::tellNote(int type)
{
    const ErrorNote::Row *row = ErrorNote::rowOf(type);
    if (row == nullptr || m_isClosed)
        return;
    NormalMessageBox box(this);
    box.setText(ErrorNote::text(*row));
    box.setCheckBoxHidden(row->suppressKey == nullptr);
    box.addButton(tr("OK"));
    box.exec();
    if (row->suppressKey != nullptr && box.isCheckBoxChecked())
        ErrorNote::suppress(*row, m_settings);
}

void NormalMainWindow::tellBdavNote()
{
    if (m_isClosed)
        return;
    NormalMessageBoxFactory::showNote(this, MenuCase::bdavNote());
    MenuCase::suppressBdavNote(m_settings);
}

void NormalMainWindow::slot_openMedia()
{
    const QString key = QLatin1String(SettingsKeys::PC_AddLastFolder);
    const QString filters =
        tr("Media Files (%1)").arg(CommonInfoManager::playableNameFilters().join(QLatin1Char(' ')))
        + QStringLiteral(";;") + tr("All Files (*)");
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open Media..."), m_settings.value(key).toString(), filters);
    if (path.isEmpty())
        return;
    m_settings.setValue(key, QFileInfo(path).absolutePath());
    slot_playSource(path);
}

void NormalMainWindow::slot_loadSubtitle()
{
    if (!m_control->hasSource())
        return;
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Load Subtitle..."), QFileInfo(m_control->currentPath()).absolutePath(),
        tr(kSubtitleFilter).arg(QLatin1String(DropRule::SubtitleNames)));
    if (!path.isEmpty())
        emit sig_addSubtitle(path);
}

void NormalMainWindow::slot_aboutAction()
{
    m_dialogs->show(PopDlgTyle::About);
}

// There is no maker's address in the program, and none is made up.
void NormalMainWindow::slot_feedbackAction()
{
    if (m_isClosed)
        return;
    qInfo() << "[Feedback] there is no address to send it to";
    NormalMessageBoxFactory::showNote(
        this, tr("Feedback can't be sent: this version of the program has no address for it."));
}

void NormalMainWindow::openDialog(PopDlgTyle type)
{
    switch (type) {
    case PopDlgTyle::OpenMedia:
        slot_openMedia();
        break;
    case PopDlgTyle::LoadSubtitle:
        slot_loadSubtitle();
        break;
    case PopDlgTyle::Setting:
        openSettings(SettingsPageId::General);
        break;
    case PopDlgTyle::SubtitleSetting:
        openSettings(SettingsPageId::Subtitle);
        break;
    default:
        m_dialogs->show(type);
        break;
    }
}

void NormalMainWindow::openSettings(SettingsPageId page)
{
    if (m_settingPage == nullptr) {
        m_settingPage = new NormalSettingPage(m_settings, *m_settingsHost, this);
        connect(m_settingPage, &NormalSettingPage::sig_settingsSaved, this, &NormalMainWindow::takeSettings);
    }
    if (m_settingPage->isVisible())
        return;
    m_settingsHost->askSystemProxy();
    m_settingPage->setStartPage(page);
    m_settingPage->exec();
}

void NormalMainWindow::takeSettings(const QStringList &keys)
{
    const QString screenSaver = QLatin1String(SettingsKeys::PC_DisableScreenSaver);
    if (keys.contains(screenSaver))
        m_settings.value(screenSaver).toBool() ? ScreenSaver::disable() : ScreenSaver::enable();
    m_overlays->metaView()->updateShown();
    m_session->showProgress();
}

void NormalMainWindow::slot_settingClicked()
{
    openDialog(PopDlgTyle::Setting);
}
