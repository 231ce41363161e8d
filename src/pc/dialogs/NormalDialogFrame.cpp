#include "NormalDialogFrame.h"

#include "DialogLook.h"

#include "ui/LookTokens.h"
#include "ui/PictureButton.h"
#include "ui/RoundCorners.h"
#include "ui/StyleLoader.h"
#include "ui/WindowShadow.h"

#include <QFrame>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace {

// Design pixels.
constexpr QSize CloseSize{36, 32};
constexpr int CloseIcon = 20;

} // namespace

NormalDialogFrame::NormalDialogFrame(const QString &title, QWidget *parent)
    : QMoveableNoBordersWnd(parent)
{
    setTitleHeight(Look::px(DialogLook::TitleHeight));
    setFont(Look::font(14));

    m_shadow = new WindowShadow(this, QShadowPainter::Set::SubWindow);
    connect(m_shadow, &WindowShadow::shown, this, &NormalDialogFrame::meetShadow);

    m_panel = new QFrame(this);
    m_panel->setObjectName(QLatin1String(DialogLook::Panel));
    RoundCorners::prepare(this, m_panel);
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_panel);

    m_title = new QLabel(m_panel);
    m_title->setObjectName(QLatin1String(DialogLook::Title));
    auto *closeButton = new PictureButton(QStringLiteral("window_close"), m_panel);
    closeButton->setObjectName(QLatin1String(DialogLook::CloseButton));
    closeButton->setDesignSize(CloseSize, CloseIcon);
    closeButton->setToolTip(tr("Close"));
    closeButton->setAccessibleName(tr("Close"));
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &NormalDialogFrame::slot_close);

    auto *titleRow = new QHBoxLayout;
    titleRow->setContentsMargins(Look::px(16), Look::px(6), Look::px(6), Look::px(6));
    titleRow->addWidget(m_title, 1);
    titleRow->addWidget(closeButton);

    m_body = new QVBoxLayout;
    m_body->setContentsMargins(Look::px(DialogLook::SideMargin), Look::px(8),
                               Look::px(DialogLook::SideMargin), Look::px(DialogLook::BottomMargin));
    m_body->setSpacing(0);

    auto *layout = new QVBoxLayout(m_panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(titleRow);
    layout->addLayout(m_body, 1);

    setTitle(title);
    setStyleSheet(DialogLook::styleSheet());
}

NormalDialogFrame::~NormalDialogFrame() = default;

void NormalDialogFrame::setTitle(const QString &title)
{
    m_title->setText(title);
    setWindowTitle(title);
    setAccessibleName(title);
}

QString NormalDialogFrame::title() const
{
    return m_title->text();
}

QPushButton *NormalDialogFrame::makeButton(const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(DialogLook::Button));
    return button;
}

int NormalDialogFrame::screenHeight() const
{
    const QWidget *place = parentWidget() ? parentWidget()->window() : this;
    const QWindow *window = place->windowHandle();
    const QScreen *screen = window ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry().height() : Look::px(1080);
}

void NormalDialogFrame::slot_close()
{
    QMoveableNoBordersWnd::reject();
}

void NormalDialogFrame::reject()
{
    slot_close();
}

void NormalDialogFrame::relayOut()
{
    for (QWidget *part : m_panel->findChildren<QWidget *>())
        part->ensurePolished();
    // The outer layout keeps the panel's size until it is told.
    m_panel->layout()->invalidate();
    m_panel->layout()->activate();
    layout()->invalidate();
    layout()->activate();
}

void NormalDialogFrame::fit()
{
    relayOut();
    resizeTo(qMax(minimumWidth(), layout()->totalSizeHint().width()));
}

void NormalDialogFrame::resizeTo(int width)
{
    const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                     : layout()->totalSizeHint().height();
    resize(width, qMax(height, minimumHeight()));
}

void NormalDialogFrame::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        fit();
    QMoveableNoBordersWnd::showEvent(event);
}

// The colour of the shadow where it touches the window.
void NormalDialogFrame::meetShadow()
{
    const QImage side(QLatin1String(StyleLoader::kPicturePrefix) + QLatin1String("shadow_sub_left.png"));
    if (!side.isNull())
        m_shadowEdge = side.pixelColor(side.width() - 1, side.height() / 2);
    update();
}

// The shadow ends at the window's rectangle; outside the panel's round corners it goes on in here.
void NormalDialogFrame::paintEvent(QPaintEvent *)
{
    if (m_shadow->isShown())
        QPainter(this).fillRect(rect(), m_shadowEdge);
}
