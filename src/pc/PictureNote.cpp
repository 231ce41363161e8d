#include "PictureNote.h"

#include "platform/Compositing.h"
#include "ui/LookTokens.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPainterPath>
#include <QVariantAnimation>

namespace {

const QString AnimateKey = QStringLiteral("animate");

QPainterPath cardShape(const QRectF &rect)
{
    QPainterPath path;
    path.addRoundedRect(rect, Look::px(Look::CornerCard), Look::px(Look::CornerCard));
    return path;
}

} // namespace

PictureNote::PictureNote(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
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
    show();
    raise();
    runAnimate(AnimateKey, true);
}

void PictureNote::dismiss()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    runAnimate(AnimateKey, false);
}

void PictureNote::initAnimate(QString name)
{
    if (hasAnimate(name))
        return;
    auto fade = QSharedPointer<QVariantAnimation>::create();
    connect(fade.data(), &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setShown(value.toDouble()); });
    connect(fade.data(), &QVariantAnimation::finished, this, [this] {
        if (!m_isOpen)
            hide();
    });
    setAnimate(name, fade);
}

void PictureNote::startAnimate(QString name, bool forward)
{
    auto *fade = static_cast<QVariantAnimation *>(animate(name));
    fade->stop();
    fade->setStartValue(m_shown);
    fade->setEndValue(forward ? 1.0 : 0.0);
    fade->setDuration(forward ? Look::FadeInMs : Look::FadeOutMs);
    fade->setEasingCurve(QEasingCurve::OutCubic);
    fade->start();
}

void PictureNote::setShown(double value)
{
    m_shown = value;
    if (isWindow()) {
        setWindowOpacity(value);
        return;
    }
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(graphicsEffect());
    if (!effect) {
        effect = new QGraphicsOpacityEffect(this);
        setGraphicsEffect(effect);
    }
    effect->setOpacity(value);
    effect->setEnabled(value < 1.0);
}

void PictureNote::paintCard(QPainter &painter)
{
    const bool isBlended = !isWindow() || Compositing::isActive();
    QColor ground = Look::color(Look::Panel);
    if (isBlended)
        ground.setAlphaF(0.94);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawPath(cardShape(card()));
    const double half = Look::px(1) / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(Look::NoteLine), Look::px(1)));
    painter.drawPath(cardShape(QRectF(card()).adjusted(half, half, -half, -half)));
}

void PictureNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintCard(painter);
}

void PictureNote::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    cutToShape();
}

void PictureNote::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    cutToShape();
}

void PictureNote::cutToShape()
{
    if (isWindow() && !Compositing::isActive())
        setMask(QRegion(cardShape(rect()).toFillPolygon().toPolygon()));
    else
        clearMask();
}
