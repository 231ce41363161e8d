#include "PictureNote.h"

#include "ui/LookTokens.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>

namespace {

const QString AnimateKey = QStringLiteral("animate");

constexpr int Rise = 8; // design pixels that the card moves while it comes
constexpr double GroundOpacity = 0.94;

} // namespace

PictureNote::PictureNote(QWidget *parent)
    : OverlayWidget(parent)
{
    setFont(Look::font(13));
    hide();
}

PictureNote::~PictureNote()
{
    // Before the widget goes: the animation calls back into it.
    deleteAll();
}

void PictureNote::open()
{
    m_isOpen = true;
    appear();
    if (!isWindow())
        raise();
    runAnimate(AnimateKey, true);
}

void PictureNote::dismiss()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    runAnimate(AnimateKey, false);
    // A host fades what no longer wants to be seen, so the card sinks meanwhile.
    if (isWindow())
        disappear();
}

void PictureNote::initAnimate(QString name)
{
    initFade(
        name, [this](double shown) { setShown(shown); },
        [this] {
            if (!m_isOpen)
                disappear();
        });
}

void PictureNote::startAnimate(QString name, bool forward)
{
    startFade(name, m_shown, forward, {Look::FadeInMs, Look::FadeOutMs});
}

void PictureNote::setShown(double value)
{
    m_shown = value;
    cardMoved();
    update();
    if (isWindow())
        return;
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(graphicsEffect());
    if (!effect) {
        effect = new QGraphicsOpacityEffect(this);
        setGraphicsEffect(effect);
    }
    effect->setOpacity(value);
    effect->setEnabled(value < 1.0);
}

QRect PictureNote::card() const
{
    // Cut to its shape, the card can't move: the window would have to be cut anew at each step.
    const int room = Look::px(Rise);
    const int down = isCompact() ? 0 : qRound((1.0 - m_shown) * room);
    return rect().adjusted(0, down, 0, down - room);
}

QSize PictureNote::sizeFor(const QSize &card)
{
    return card + QSize(0, Look::px(Rise));
}

QPainterPath PictureNote::shapeOf(const QRectF &rect) const
{
    QPainterPath path;
    path.addRoundedRect(rect, Look::px(cornerRadius()), Look::px(cornerRadius()));
    return path;
}

QPainterPath PictureNote::opaqueShape() const
{
    return shapeOf(card());
}

bool PictureNote::takesMouseAt(const QPoint &position) const
{
    return card().contains(position);
}

void PictureNote::paintCard(QPainter &painter)
{
    QColor ground = Look::color(Look::Panel);
    if (!isCompact())
        ground.setAlphaF(GroundOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawPath(shapeOf(card()));
    const double half = Look::px(1) / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(Look::NoteLine), Look::px(1)));
    painter.drawPath(shapeOf(QRectF(card()).adjusted(half, half, -half, -half)));
}

void PictureNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintCard(painter);
}

void PictureNote::resizeEvent(QResizeEvent *event)
{
    OverlayWidget::resizeEvent(event);
    cardMoved();
}
