#include "NormalPlayView.h"

#include "ui/AnimationWaittingBar.h"
#include "ui/DisplayScale.h"
#include "ui/VideoSurface.h"

#include <QPalette>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr QSize kWaitPanel{240, 32};

} // namespace

NormalPlayView::NormalPlayView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("playView"));
    setAttribute(Qt::WA_StyledBackground);
    setMouseTracking(true);

    m_surface = new VideoSurface(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_surface);

    // Only a native window can lie over the surface.
    m_waitPanel = new QWidget(this);
    m_waitPanel->setAttribute(Qt::WA_DontCreateNativeAncestors);
    m_waitPanel->setAttribute(Qt::WA_NativeWindow);
    QPalette black = m_waitPanel->palette();
    black.setColor(QPalette::Window, Qt::black);
    m_waitPanel->setPalette(black);
    m_waitPanel->setAutoFillBackground(true);
    m_waitBar = new AnimationWaittingBar(m_waitPanel);
    auto *inner = new QVBoxLayout(m_waitPanel);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(m_waitBar);
    m_waitPanel->hide();
}

void NormalPlayView::showWaiting(bool shown)
{
    m_waitPanel->setVisible(shown);
    if (shown) {
        placeWaiting();
        m_waitPanel->raise();
        m_waitBar->SLOT_start();
    } else {
        m_waitBar->SLOT_stop();
    }
}

bool NormalPlayView::isWaitingShown() const
{
    return !m_waitPanel->isHidden();
}

void NormalPlayView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeWaiting();
}

void NormalPlayView::placeWaiting()
{
    const auto *scale = DisplayScale::instance();
    const QSize size(qMin(width(), scale->scaleWidth(kWaitPanel.width())),
                     scale->scaleHeight(kWaitPanel.height()));
    m_waitPanel->setGeometry((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                             size.height());
}
