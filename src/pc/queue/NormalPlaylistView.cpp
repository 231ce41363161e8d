#include "NormalPlaylistView.h"

#include "NormalPlaylistIconDelegate.h"
#include "NormalPlaylistListDelegate.h"
#include "QueueEmptyPage.h"
#include "QueueHead.h"
#include "QueueListView.h"

#include "platform/FolderOpener.h"
#include "playcontrol/BehaviourNames.h"
#include "transport/TransportButton.h"
#include "ui/FocusRing.h"
#include "ui/LookTokens.h"

#include <QHBoxLayout>
#include <QListView>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const QString AnimateKey = QStringLiteral("animate");

// Design pixels.
constexpr int kWidth = 360;
constexpr int kHeight = 4000; // as high as there is room
constexpr int kRightMargin = 12;
constexpr int kUnderTitle = 56;
constexpr int kAboveBar = 140;
constexpr int kBottomInset = 8;
constexpr int kTileMargin = 8;
constexpr int kFrame = 2;
constexpr double kGroundOpacity = 0.96;

} // namespace

NormalPlaylistView::NormalPlaylistView(SettingsManager &settings, Services services, QWidget *parent)
    : OverlayWidget(parent)
    , m_settings(settings)
    , m_services(std::move(services))
    , m_queue(new PlayQueue(settings, m_services.queue, this))
{
    setObjectName(QStringLiteral("playlistPanel"));
    setAcceptDrops(true);
    setFont(Look::font(13));
    setDefaultServices();
    makeParts();
    makeConnections();
    retranslate();
    showPage();
    hide();
}

NormalPlaylistView::~NormalPlaylistView()
{
    // Before the widget goes: the animation calls back into it.
    deleteAll();
}

OverlayRule NormalPlaylistView::rule(int level)
{
    return {OverlayRule::Anchor::TopRight, {0, kUnderTitle, 0, kAboveBar}, level};
}

int NormalPlaylistView::designWidth()
{
    return kWidth + kRightMargin;
}

void NormalPlaylistView::makeParts()
{
    m_card = new QWidget(this);
    m_head = new QueueHead(m_card);
    m_pages = new QStackedWidget(m_card);
    m_listDelegate = new NormalPlaylistListDelegate(this);
    m_iconDelegate = new NormalPlaylistIconDelegate(this);
    m_list = new QueueListView(m_queue->model(), m_listDelegate);
    m_empty = new QueueEmptyPage;
    m_grid = new QListView;
    m_grid->setObjectName(QStringLiteral("playlistTiles"));
    m_grid->setItemDelegate(m_iconDelegate);
    m_grid->setViewMode(QListView::IconMode);
    m_grid->setMovement(QListView::Static);
    m_grid->setResizeMode(QListView::Adjust);
    m_grid->setUniformItemSizes(true);
    m_grid->setLayoutMode(QListView::Batched);
    m_grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setFrameShape(QFrame::NoFrame);
    m_grid->setMouseTracking(true);
    m_grid->setTabKeyNavigation(false);
    m_grid->setContextMenuPolicy(Qt::CustomContextMenu);
    m_grid->viewport()->setAutoFillBackground(false);
    auto *gridPage = new QWidget;
    auto *gridRow = new QHBoxLayout(gridPage);
    gridRow->setContentsMargins(Look::px(kTileMargin), 0, 0, 0);
    gridRow->addWidget(m_grid);
    for (QWidget *page : {static_cast<QWidget *>(m_list), gridPage, static_cast<QWidget *>(m_empty)})
        m_pages->addWidget(page);

    auto *column = new QVBoxLayout(m_card);
    column->setContentsMargins(0, 0, 0, Look::px(kBottomInset));
    column->setSpacing(0);
    column->addWidget(m_head);
    column->addWidget(m_pages, 1);

    for (QWidget *part :
         {static_cast<QWidget *>(m_list), m_list->viewport(), static_cast<QWidget *>(m_grid),
          m_grid->viewport(), static_cast<QWidget *>(m_empty), static_cast<QWidget *>(m_head),
          static_cast<QWidget *>(m_head->lookButton()), static_cast<QWidget *>(m_head->addButton()),
          static_cast<QWidget *>(m_head->optionButton()), static_cast<QWidget *>(m_head->closeButton())})
        part->installEventFilter(this);
}

void NormalPlaylistView::makeConnections()
{
    connect(m_queue, &PlayQueue::playSource, this, &NormalPlaylistView::sig_playSource);
    connect(m_queue, &PlayQueue::playBackEnd, this, &NormalPlaylistView::sig_PlayBackEnd);
    connect(m_queue, &PlayQueue::markChanged, this, &NormalPlaylistView::showMark);
    connect(m_queue, &PlayQueue::countChanged, this, &NormalPlaylistView::showPage);

    connect(m_head, &QueueHead::closeClicked, this, &NormalPlaylistView::close);
    connect(m_head, &QueueHead::lookChanged, this, &NormalPlaylistView::setGrid);
    connect(m_head, &QueueHead::addClicked, this,
            [this] { popUpUnder(m_menus.buildAdd(), m_head->addButton()); });
    connect(m_head, &QueueHead::optionClicked, this,
            [this] { popUpUnder(m_menus.buildOption(menuState()), m_head->optionButton()); });
    connect(&m_menus, &QueueMenus::chosen, this, &NormalPlaylistView::deal);

    connect(m_listDelegate, &NormalPlaylistListDelegate::sig_changeExpandState, this,
            &NormalPlaylistView::slot_changeExpandState);
    connect(m_list, &QueueListView::rowsDropped, m_queue, &PlayQueue::moveRows);
    connect(m_list, &QueueListView::urlsDropped, this, &NormalPlaylistView::takeUrls);
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(m_list), static_cast<QAbstractItemView *>(m_grid)}) {
        connect(view, &QAbstractItemView::doubleClicked, m_queue, &PlayQueue::playRow);
        connect(view, &QWidget::customContextMenuRequested, this, [this, view](const QPoint &point) {
            m_menus.buildContext(menuState())->popup(view->viewport()->mapToGlobal(point));
        });
    }
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { m_selectNode = current; });
    // What plays shows its titles as soon as they are known.
    connect(m_queue->model(), &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &parent) {
        if (parent.isValid() && parent == m_queue->playNode())
            m_list->expand(parent);
    });
    connect(this, &OverlayWidget::sig_wantedChanged, this, [this](bool wanted) {
        if (!wanted && m_isOpen)
            closeNow();
    });
}

void NormalPlaylistView::retranslate()
{
    setAccessibleName(tr("Playlist"));
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(m_list), static_cast<QAbstractItemView *>(m_grid)})
        view->setAccessibleName(tr("Playlist"));
    m_head->retranslate();
    m_empty->retranslate();
    m_list->viewport()->update();
    m_grid->viewport()->update();
}

// ---- open and closed

void NormalPlaylistView::open()
{
    if (m_isOpen)
        return;
    m_isOpen = true;
    emit sig_userBehaviour(QLatin1String(BehaviourNames::PlaylistUsed), QLatin1String(BehaviourNames::Used));
    m_queue->checkPresence();
    if (const QModelIndex marked = m_queue->markedNode(); marked.isValid())
        m_list->scrollTo(marked, QAbstractItemView::PositionAtCenter);
    appear();
    if (!isWindow())
        raise();
    runAnimate(AnimateKey, true);
    emit sig_widgetStateChanged(true);
}

void NormalPlaylistView::close()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    setKeyboardUsed(false);
    runAnimate(AnimateKey, false);
    emit sig_widgetStateChanged(false);
}

void NormalPlaylistView::closeNow()
{
    const bool wasOpen = m_isOpen;
    m_isOpen = false;
    setKeyboardUsed(false);
    stopAll();
    setShown(0.0);
    disappear();
    if (wasOpen)
        emit sig_widgetStateChanged(false);
}

void NormalPlaylistView::initAnimate(QString name)
{
    initFade(
        name, [this](double shown) { setShown(shown); }, [this] { hideWhenClosed(); });
}

void NormalPlaylistView::startAnimate(QString name, bool forward)
{
    QAbstractAnimation *way = animate(name);
    if (way == nullptr)
        return;
    // Cut to its shape, the card can't move: the window would have to be cut anew at each step.
    if (isCompact()) {
        way->stop();
        setShown(forward ? 1.0 : 0.0);
        hideWhenClosed();
        return;
    }
    startFade(name, m_shown, forward, {OpenMs, CloseMs},
              forward ? QEasingCurve::OutCubic : QEasingCurve::InCubic);
}

void NormalPlaylistView::setShown(double part)
{
    m_shown = part;
    placeCard();
}

void NormalPlaylistView::hideWhenClosed()
{
    if (!m_isOpen)
        disappear();
}

void NormalPlaylistView::compactChanged()
{
    stopAll();
    setShown(m_isOpen ? 1.0 : 0.0);
    hideWhenClosed();
}

// ---- place and ground

QSize NormalPlaylistView::sizeHint() const
{
    return {Look::px(kWidth) + Look::px(kRightMargin), Look::px(kHeight)};
}

QRect NormalPlaylistView::cardRect() const
{
    const double out = isCompact() ? 0.0 : 1.0 - m_shown;
    return rect().adjusted(0, 0, -Look::px(kRightMargin), 0).translated(qRound(out * width()), 0);
}

void NormalPlaylistView::placeCard()
{
    m_card->setGeometry(cardRect());
    update();
}

void NormalPlaylistView::resizeEvent(QResizeEvent *event)
{
    OverlayWidget::resizeEvent(event);
    placeCard();
    placeTiles();
}

void NormalPlaylistView::placeTiles()
{
    // The layout of a wall goes by the widest that the viewport may become.
    const int wall = qMin(m_grid->viewport()->width(), m_grid->maximumViewportSize().width()) - 1;
    const QSize tile = NormalPlaylistIconDelegate::tileFor(wall);
    m_iconDelegate->setTile(tile);
    if (m_grid->gridSize() != tile)
        m_grid->setGridSize(tile);
}

QPainterPath NormalPlaylistView::opaqueShape() const
{
    QPainterPath path;
    path.addRoundedRect(cardRect(), Look::px(Look::CornerDialog), Look::px(Look::CornerDialog));
    return path;
}

bool NormalPlaylistView::takesMouseAt(const QPoint &position) const
{
    return cardRect().contains(position);
}

void NormalPlaylistView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = Look::color(Look::Panel);
    if (!isCompact())
        ground.setAlphaF(kGroundOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawPath(opaqueShape());
    const double line = Look::px(m_isDropping ? kFrame : 1);
    const double corner = Look::px(Look::CornerDialog) - line / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(m_isDropping ? Look::Accent : Look::NoteLine), line));
    painter.drawRoundedRect(QRectF(cardRect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), corner,
                            corner);
}

// ---- looks

QueueDelegate *NormalPlaylistView::delegateInUse() const
{
    if (isGrid())
        return m_iconDelegate;
    return m_listDelegate;
}

QAbstractItemView *NormalPlaylistView::viewInUse() const
{
    if (isGrid())
        return m_grid;
    return m_list;
}

bool NormalPlaylistView::isGrid() const
{
    return m_head->lookButton()->isChecked();
}

void NormalPlaylistView::setGrid(bool isGrid)
{
    m_head->lookButton()->setChecked(isGrid);
    if (isGrid && m_grid->model() == nullptr) {
        // Not before it is looked at: a wall is laid out anew with every batch of rows.
        m_grid->setModel(m_queue->model());
        QItemSelectionModel *own = m_grid->selectionModel();
        m_grid->setSelectionModel(m_list->selectionModel());
        delete own;
    }
    showMark();
    showPage();
}

void NormalPlaylistView::showPage()
{
    m_head->setCount(m_queue->count());
    QWidget *page = isGrid() ? m_grid->parentWidget() : m_list;
    if (m_queue->count() == 0)
        page = m_empty;
    m_pages->setCurrentWidget(page);
}

void NormalPlaylistView::showMark()
{
    for (QueueDelegate *delegate :
         {static_cast<QueueDelegate *>(m_listDelegate), static_cast<QueueDelegate *>(m_iconDelegate)}) {
        delegate->setCurrentIndex(m_queue->playNode());
        delegate->setMark(m_queue->markedNode(), m_queue->mark());
    }
    m_list->viewport()->update();
    m_grid->viewport()->update();
}

// ---- what plays

void NormalPlaylistView::slot_autoPlayNext()
{
    m_queue->autoPlayNext(delegateInUse()->currentIndex());
}

void NormalPlaylistView::slot_playNext()
{
    m_queue->playNext(delegateInUse()->currentIndex());
}

void NormalPlaylistView::slot_playLast()
{
    m_queue->playLast(delegateInUse()->currentIndex());
}

void NormalPlaylistView::slot_changeExpandState(QModelIndex index)
{
    m_list->setExpanded(index, !m_list->isExpanded(index));
}

void NormalPlaylistView::slot_removeDiscList(QString strPath)
{
    m_queue->removeDisc(strPath);
}

void NormalPlaylistView::slot_addMusicPlaylist(QList<QString> lstPaths)
{
    m_queue->add(lstPaths);
}

void NormalPlaylistView::slot_setPlayStatus(QPlayer::QPlayerStatus status)
{
    m_queue->setStatus(status);
}

void NormalPlaylistView::slot_setMetaInfo(QPlayer::QPlayerMetaType type, QString strInfo)
{
    m_queue->setMetaInfo(type, strInfo);
}
