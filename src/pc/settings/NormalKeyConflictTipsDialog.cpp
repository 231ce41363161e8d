#include "NormalKeyConflictTipsDialog.h"

#include "ui/LookTokens.h"

#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr int Width = 320;
constexpr int ShiftLeft = 21;
constexpr int Margin = 12;

constexpr int ShownMs = 6000;

} // namespace

NormalKeyConflictTipsDialog::NormalKeyConflictTipsDialog(QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint)
    , m_label(new QLabel(this))
    , m_end(new QTimer(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    m_label->setWordWrap(true);
    m_label->setFont(Look::font(13));
    auto *layout = new QVBoxLayout(this);
    const int margin = Look::px(Margin);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_label);
    m_end->setSingleShot(true);
    connect(m_end, &QTimer::timeout, this, &QWidget::hide);
    retranslate();
}

void NormalKeyConflictTipsDialog::retranslate()
{
    m_label->setText(tr("The hotkey you just chose was previously used for another action. That one has been "
                        "rendered useless."));
    setAccessibleName(m_label->text());
    SLOT_setSize();
}

void NormalKeyConflictTipsDialog::SLOT_setSize()
{
    const int width = Look::px(Width);
    setFixedSize(width, layout()->heightForWidth(width));
}

void NormalKeyConflictTipsDialog::showAt(const QPoint &globalPoint)
{
    SLOT_setSize();
    move(globalPoint - QPoint(Look::px(ShiftLeft), 0));
    show();
    raise();
    m_end->start(ShownMs);
}

void NormalKeyConflictTipsDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Look::color(Look::Line));
    painter.setBrush(Look::color(Look::Raised));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Look::px(Look::CornerCard),
                            Look::px(Look::CornerCard));
}

void NormalKeyConflictTipsDialog::mousePressEvent(QMouseEvent *)
{
    hide();
}
