#include "NormalSettingPage.h"

#include "AudioPage.h"
#include "BluRayPage.h"
#include "Display3DPage.h"
#include "FileAssociationPage.h"
#include "GeneralPage.h"
#include "HotKeysPage.h"
#include "LibraryPage.h"
#include "NetworkPage.h"
#include "PageListDelegate.h"
#include "PlaybackPage.h"
#include "SettingsLook.h"
#include "SnapshotPage.h"
#include "SubtitlePage.h"
#include "VideoPage.h"

#include "core/LanguageManager.h"
#include "core/SettingsManager.h"
#include "dialogs/DialogLook.h"
#include "dialogs/NormalMessageBoxFactory.h"
#include "keys/AppEventFilter.h"
#include "ui/LookTokens.h"

#include <QDir>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr QSize Wanted{880, 704};
constexpr QSize Least{640, 420};
constexpr int ScreenMargin = 24;
constexpr int FootTop = 16;
constexpr int FootBottom = 20;

} // namespace

NormalSettingPage::Boxes NormalSettingPage::Boxes::ofProgram()
{
    return {[](QWidget *window, const QString &text) { NormalMessageBoxFactory::showNote(window, text); },
            [](QWidget *window, const QString &text, const QString &answer) {
                return NormalMessageBoxFactory::showCancelQuestion(window, text, answer, {});
            }};
}

NormalSettingPage::NormalSettingPage(SettingsManager &store, ISettingsHost &host, QWidget *parent,
                                     Boxes boxes, FolderProbe *folders)
    : NormalDialogFrame(QString(), parent)
    , m_store(store)
    , m_boxes(std::move(boxes))
    , m_model(new SettingsModel(store, host, folders, this))
{
    setModal(true);
    // Only a widget that is polished forgets the sheet it had before.
    ensurePolished();
    setStyleSheet(SettingsLook::styleSheet());
    makeParts();
    retranslate();
    connect(m_model, &SettingsModel::checked, this, &NormalSettingPage::onChecked);
    connect(m_model, &SettingsModel::adultLibraryChanged, this,
            &NormalSettingPage::sig_adultLibraryStateChanged);
    // A box in the middle of the save operations would hold up those that follow.
    connect(
        m_model, &SettingsModel::associationsRefused, this,
        [this] {
            if (m_boxes.tell)
                m_boxes.tell(isVisible() ? this : parentWidget(),
                             tr("The file associations were not changed."));
        },
        Qt::QueuedConnection);
    host.setAudioDevicesHandler([page = QPointer<NormalSettingPage>(this)] {
        if (page)
            page->slot_audioDevicesChanged();
    });
}

NormalSettingPage::~NormalSettingPage()
{
    // The pages are views of the model.
    for (QScrollArea *frame : m_frames)
        delete frame;
}

void NormalSettingPage::makeParts()
{
    m_list = new QListWidget(panel());
    m_list->setObjectName(QLatin1String(SettingsLook::Pages));
    m_list->setFixedWidth(Look::px(SettingsLook::PageListWidth));
    m_list->setItemDelegate(new PageListDelegate(m_list));
    m_list->setMouseTracking(true);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_stack = new QStackedWidget(panel());
    for (int page = 0; page < SettingsPageCount; ++page) {
        m_list->addItem(QString());
        auto *frame = new QScrollArea(m_stack);
        frame->setObjectName(QLatin1String(SettingsLook::Scroll));
        frame->setWidgetResizable(true);
        frame->setFrameShape(QFrame::NoFrame);
        frame->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        frame->setFocusPolicy(Qt::NoFocus);
        frame->viewport()->setAutoFillBackground(false);
        m_stack->addWidget(frame);
        m_frames[std::size_t(page)] = frame;
    }
    auto *middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_list);
    middle->addWidget(m_stack, 1);

    m_default = makeButton(QString(), panel());
    m_cancel = makeButton(QString(), panel());
    m_ok = makeButton(QString(), panel());
    m_ok->setDefault(true);
    auto *foot = new QHBoxLayout;
    foot->setContentsMargins(Look::px(DialogLook::SideMargin), Look::px(FootTop),
                             Look::px(DialogLook::SideMargin), Look::px(FootBottom));
    foot->setSpacing(Look::px(12));
    foot->addWidget(m_default);
    foot->addStretch(1);
    foot->addWidget(m_cancel);
    foot->addWidget(m_ok);

    body()->setContentsMargins(0, 0, 0, 0);
    body()->addLayout(middle, 1);
    body()->addLayout(foot);

    connect(m_list, &QListWidget::currentRowChanged, this, &NormalSettingPage::slot_changeTabPage);
    connect(m_default, &QPushButton::clicked, this, &NormalSettingPage::slot_defaultClicked);
    connect(m_cancel, &QPushButton::clicked, this, &NormalSettingPage::slot_cancelClicked);
    connect(m_ok, &QPushButton::clicked, this, &NormalSettingPage::slot_okClicked);
}

SettingsPageWidget *NormalSettingPage::makePage(SettingsPageId page)
{
    SettingsModel &model = *m_model;
    switch (page) {
    case SettingsPageId::General:
        return new GeneralPage(model);
    case SettingsPageId::Playback:
        return new PlaybackPage(model);
    case SettingsPageId::Library:
        return new LibraryPage(model, m_boxes.ask);
    case SettingsPageId::Video:
        return new VideoPage(model);
    case SettingsPageId::Display3D:
        return new Display3DPage(model, m_boxes.tell);
    case SettingsPageId::Audio:
        return new AudioPage(model);
    case SettingsPageId::Subtitle:
        return new SubtitlePage(model);
    case SettingsPageId::BluRay:
        return new BluRayPage(model);
    case SettingsPageId::FileAssociation:
        return new FileAssociationPage(model);
    case SettingsPageId::Snapshot:
        return new SnapshotPage(model);
    case SettingsPageId::HotKeys:
        return new HotKeysPage(model);
    case SettingsPageId::Network:
        return new NetworkPage(model);
    }
    return nullptr;
}

SettingsPageWidget *NormalSettingPage::page(SettingsPageId page)
{
    const auto place = std::size_t(page);
    if (!m_pages[place]) {
        m_pages[place] = makePage(page);
        m_frames[place]->setWidget(m_pages[place]);
    }
    return m_pages[place];
}

SettingsPageId NormalSettingPage::currentPage() const
{
    return SettingsPageId(qMax(0, m_stack->currentIndex()));
}

void NormalSettingPage::retranslate()
{
    setTitle(tr("Settings"));
    m_list->setAccessibleName(tr("Pages"));
    for (int page = 0; page < SettingsPageCount; ++page)
        m_list->item(page)->setText(SettingRow::translated(SettingTables::pageTitle(SettingsPageId(page))));
    m_default->setText(tr("Default"));
    m_cancel->setText(tr("Cancel"));
    m_ok->setText(tr("OK"));
    for (SettingsPageWidget *each : m_pages) {
        if (each)
            each->retranslate();
    }
}

// ---- opening

void NormalSettingPage::prepare()
{
    m_model->load();
    setBusy(false);
    m_list->setCurrentRow(int(m_startPage));
    slot_changeTabPage(int(m_startPage));
    m_list->setFocus();
}

int NormalSettingPage::exec()
{
    prepare();
    const int result = NormalDialogFrame::exec();
    m_startPage = SettingsPageId::General;
    return result;
}

void NormalSettingPage::fit()
{
    const QWidget *place = parentWidget() ? parentWidget()->window() : this;
    const QScreen *screen = place->screen() ? place->screen() : QGuiApplication::primaryScreen();
    const int margin = Look::px(ScreenMargin);
    const QSize room = screen->availableGeometry().size() - QSize(margin, margin);
    const QSize least(Look::px(Least.width()), Look::px(Least.height()));
    setMinimumSize(least.boundedTo(room));
    resize(QSize(Look::px(Wanted.width()), Look::px(Wanted.height())).boundedTo(room));
}

// ---- pages

void NormalSettingPage::slot_setCurrentTabItem(const QModelIndex &index)
{
    if (index.isValid())
        m_list->setCurrentRow(index.row());
}

void NormalSettingPage::slot_changeTabPage(int nIndex)
{
    if (nIndex < 0 || nIndex >= SettingsPageCount)
        return;
    (void)page(SettingsPageId(nIndex));
    m_stack->setCurrentIndex(nIndex);
    if (m_list->currentRow() != nIndex)
        m_list->setCurrentRow(nIndex);
    orderFocus();
}

// Pages are younger than the buttons below them, and would come after them.
void NormalSettingPage::orderFocus()
{
    QWidget *last = m_list;
    const auto follow = [&last](QWidget *next) {
        QWidget::setTabOrder(last, next);
        last = next;
    };
    const QList<QWidget *> parts = m_pages[std::size_t(currentPage())]->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if ((part->focusPolicy() & Qt::TabFocus) && !part->focusProxy() && part->window() == this)
            follow(part);
    }
    follow(m_default);
    follow(m_cancel);
    follow(m_ok);
}

void NormalSettingPage::stepPage(int by)
{
    const int count = SettingsPageCount;
    m_list->setCurrentRow((m_list->currentRow() + by + count) % count);
    m_list->setFocus(Qt::ShortcutFocusReason);
}

void NormalSettingPage::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        switch (event->key()) {
        case Qt::Key_Tab:
        case Qt::Key_PageDown:
            stepPage(1);
            return;
        case Qt::Key_Backtab:
        case Qt::Key_PageUp:
            stepPage(-1);
            return;
        default:
            break;
        }
    }
    NormalDialogFrame::keyPressEvent(event);
}

// ---- ends

void NormalSettingPage::slot_close()
{
    // An answer that is still to come must not store anything any more.
    m_model->cancelCheck();
    NormalDialogFrame::slot_close();
}

void NormalSettingPage::slot_closeClicked()
{
    slot_close();
}

void NormalSettingPage::slot_cancelClicked()
{
    slot_close();
}

void NormalSettingPage::slot_defaultClicked()
{
    m_model->setDefaults();
}

void NormalSettingPage::slot_audioDevicesChanged()
{
    m_model->updateDevices();
}

void NormalSettingPage::setBusy(bool isBusy)
{
    m_ok->setEnabled(!isBusy);
    m_default->setEnabled(!isBusy);
    m_stack->setEnabled(!isBusy);
}

void NormalSettingPage::slot_okClicked()
{
    if (m_model->isChecking())
        return;
    // The folders are asked on other threads; most answer before anything is seen of it.
    setBusy(true);
    m_model->check();
}

void NormalSettingPage::onChecked(bool isGood)
{
    setBusy(false);
    if (isGood) {
        store();
        return;
    }
    const std::optional<SettingsPageId> wrong = m_model->pageWithProblem();
    if (!wrong)
        return;
    slot_changeTabPage(int(*wrong));
    (void)page(*wrong)->focusProblem();
    if (QWidget *field = focusWidget())
        m_frames[std::size_t(*wrong)]->ensureWidgetVisible(field);
}

void NormalSettingPage::store()
{
    const QString languageBefore = m_store.language();
    const QStringList keys = m_model->save();
    auto *filter = AppEventFilter::instance();
    filter->SLOT_PcUpdateKeyMap();
    filter->SLOT_TvUpdateKeyMap();
    accept();
    if (m_store.language() != languageBefore)
        LanguageManager::instance()->load(m_store.language());
    emit sig_settingsSaved(keys);
    // The dialog could do no more: they are in use already, and are written as soon as there is room.
    if (!m_model->isOnDisk() && m_boxes.tell)
        m_boxes.tell(parentWidget(), tr("The settings are in use, but could not be written to the disk:\n%1\n"
                                        "They will be lost when the program ends, unless there is room "
                                        "until then.")
                                         .arg(QDir::toNativeSeparators(m_store.fileName())));
}
