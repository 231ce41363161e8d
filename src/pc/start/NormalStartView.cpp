#include "NormalStartView.h"

#include "DropFrame.h"
#include "PosterView.h"
#include "RecentCard.h"
#include "StartButton.h"
#include "StartHead.h"
#include "ui/FocusRing.h"

#include "core/ApplicationInfoManager.h"
#include "ui/DisplayScale.h"
#include "ui/LookTokens.h"

#include <QFocusEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace {

bool comesFromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

} // namespace

NormalStartView::NormalStartView(QWidget *parent)
    : QWidget(parent)
{
    makeParts();
}

NormalStartView::NormalStartView(FilePresence::Exists exists, QWidget *parent)
    : QWidget(parent)
    , m_presence(std::move(exists))
{
    makeParts();
}

NormalStartView::~NormalStartView() = default;

void NormalStartView::makeParts()
{
    setObjectName(QStringLiteral("startView"));
    m_poster = new PosterView(this);
    m_head = new StartHead(this);
    m_open = new StartButton("primaryButton", this);
    m_heading = new QLabel(this);
    m_heading->setObjectName(QStringLiteral("startHeading"));
    m_clear = new StartButton("startClear", this);
    m_wall = new QScrollArea(this);
    m_wall->setObjectName(QStringLiteral("startWall"));
    m_wall->setFrameShape(QFrame::NoFrame);
    m_wall->setFocusPolicy(Qt::NoFocus);
    m_wall->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_wallPage = new QWidget;
    m_wallPage->setObjectName(QStringLiteral("startWallPage"));
    m_wall->setWidget(m_wallPage);
    // The picture behind shows through; a scroll area would fill its ground.
    m_wall->viewport()->setAutoFillBackground(false);
    m_wallPage->setAutoFillBackground(false);
    m_drop = new DropFrame(this);

    connect(m_open, &QPushButton::clicked, this, &NormalStartView::openMediaClicked);
    connect(m_clear, &QPushButton::clicked, this, &NormalStartView::recentCleared);
    connect(&m_presence, &FilePresence::checked, this, &NormalStartView::showPresence);
    for (QWidget *part : {static_cast<QWidget *>(m_open), static_cast<QWidget *>(m_clear)})
        part->installEventFilter(this);
    setRecent({});
    retranslate();
}

void NormalStartView::setRecent(const QVector<RecentFiles::Entry> &recent)
{
    const bool hadCursor = m_wallPage->isAncestorOf(window()->focusWidget());
    for (RecentCard *card : qAsConst(m_cards)) {
        // One of them may be the reason of the call.
        card->hide();
        card->deleteLater();
    }
    m_cards.clear();
    QWidget *before = m_clear;
    for (const RecentFiles::Entry &entry : recent) {
        auto *card = new RecentCard(entry, m_wallPage);
        card->installEventFilter(this);
        connect(card, &QAbstractButton::clicked, this,
                [this, path = entry.path] { emit recentClicked(path); });
        connect(card, &RecentCard::moveWanted, this,
                [this, card](int columns, int rows) { moveCursor(card, columns, rows); });
        setTabOrder(before, card);
        before = card;
        m_cards << card;
        card->show();
    }
    for (QWidget *part :
         {static_cast<QWidget *>(m_heading), static_cast<QWidget *>(m_clear), static_cast<QWidget *>(m_wall)})
        part->setVisible(!m_cards.isEmpty());
    arrange();
    if (hadCursor)
        (m_cards.isEmpty() ? static_cast<QWidget *>(m_open) : m_cards.first())
            ->setFocus(Qt::OtherFocusReason);
    if (isVisible())
        checkPresence();
}

void NormalStartView::setPoster(const QVariant &picture, bool animate)
{
    m_poster->setPoster(picture, animate);
}

void NormalStartView::setDropping(bool dropping)
{
    m_drop->setVisible(dropping);
    if (dropping)
        m_drop->raise();
}

bool NormalStartView::isDropping() const
{
    return !m_drop->isHidden();
}

void NormalStartView::retranslate()
{
    m_head->setTexts(ApplicationInfoManager::productName(),
                     tr("Drop a film, a folder or a disc image here to play it."));
    m_open->setText(tr("Open Media..."));
    m_heading->setText(tr("Recently Played"));
    m_clear->setText(tr("Clear"));
    m_clear->setAccessibleName(tr("Clear the list of recently played files"));
    m_wall->setAccessibleName(m_heading->text());
    m_drop->setText(tr("Drop to play"));
    for (RecentCard *card : qAsConst(m_cards))
        card->retranslate();
    arrange();
}

void NormalStartView::arrange()
{
    const StartLayout layout({size(), m_cards.size(), m_open->sizeHint(), m_clear->sizeHint()},
                             double(DisplayScale::instance()->ratioHeight()));
    m_columns = qMax(1, layout.columns());
    for (QWidget *part :
         {static_cast<QWidget *>(m_poster), static_cast<QWidget *>(m_head), static_cast<QWidget *>(m_drop)})
        part->setGeometry(rect());
    m_head->setLayoutOf(layout);
    m_open->setGeometry(layout.openButton());
    m_heading->setGeometry(layout.heading());
    m_clear->setGeometry(layout.clearButton());
    m_wall->setGeometry(layout.wall());
    m_wallPage->resize(layout.wall().width() - m_wall->verticalScrollBar()->sizeHint().width(),
                       layout.wallHeight());
    m_wall->verticalScrollBar()->setSingleStep(Look::px(40));
    const QVector<QRect> places = layout.cards();
    for (int i = 0; i < places.size(); ++i) {
        m_cards.at(i)->setLine(layout.hasLines());
        m_cards.at(i)->setGeometry(places.at(i));
    }
}

void NormalStartView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void NormalStartView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The style sheet has come by now, and with it the sizes of the buttons.
    arrange();
    checkPresence();
}

// ---- sources that are gone

void NormalStartView::checkPresence()
{
    QStringList paths;
    for (const RecentCard *card : qAsConst(m_cards))
        paths << card->entry().path;
    m_presence.check(paths);
}

void NormalStartView::showPresence(const QString &path, bool isPresent)
{
    for (RecentCard *card : qAsConst(m_cards)) {
        if (card->entry().path == path)
            card->setMissing(!isPresent);
    }
}

// ---- keyboard

void NormalStartView::moveCursor(const RecentCard *from, int columns, int rows)
{
    const int index = m_cards.indexOf(const_cast<RecentCard *>(from)) + columns + rows * m_columns;
    if (index < 0 || index >= m_cards.size())
        return;
    m_cards.at(index)->setFocus(Qt::TabFocusReason);
}

bool NormalStartView::eventFilter(QObject *watched, QEvent *event)
{
    auto *part = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::MouseButtonPress) {
        setKeyboardUsed(false);
    } else if (event->type() == QEvent::FocusIn) {
        if (comesFromKeyboard(static_cast<QFocusEvent *>(event)->reason()))
            setKeyboardUsed(true);
        if (m_wallPage->isAncestorOf(part))
            m_wall->ensureWidgetVisible(part, 0, Look::px(16));
    }
    return QWidget::eventFilter(watched, event);
}

bool NormalStartView::focusNextPrevChild(bool next)
{
    // A window gives its first control the keyboard without showing it: the first Tab shows where that is.
    QWidget *now = window()->focusWidget();
    if (now != nullptr && isAncestorOf(now) && now->isVisible() && !FocusRing::isOn(now)) {
        setKeyboardUsed(true);
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

void NormalStartView::setKeyboardUsed(bool used)
{
    window()->setProperty(FocusRing::Property, used);
    if (QWidget *now = window()->focusWidget())
        now->update();
}
