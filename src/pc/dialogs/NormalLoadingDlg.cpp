#include "NormalLoadingDlg.h"

#include "platform/Compositing.h"
#include "ui/AnimationWaittingBar.h"
#include "ui/LookTokens.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr char GroundColor[] = "#af000000";

// Design pixels.
constexpr QSize Smallest{260, 96};

} // namespace

NormalLoadingDlg::NormalLoadingDlg(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_bar(new AnimationWaittingBar(this))
{
    setAttribute(Qt::WA_TranslucentBackground, Compositing::isActive());
    setMinimumSize(Look::px(Smallest.width()), Look::px(Smallest.height()));
    auto *text = new QLabel(tr("Loading ..."), this);
    text->setFont(Look::font(15));
    text->setAlignment(Qt::AlignCenter);
    text->setStyleSheet(
        QStringLiteral("color: %1; background: transparent;").arg(Look::color(Look::Text).name()));
    m_bar->setFixedHeight(Look::px(8));
    setWindowTitle(text->text());
    setAccessibleName(text->text());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Look::px(24), Look::px(24), Look::px(24), Look::px(24));
    layout->setSpacing(Look::px(16));
    layout->addWidget(text);
    layout->addWidget(m_bar);
}

void NormalLoadingDlg::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor ground = QColor(QLatin1String(GroundColor));
    if (!testAttribute(Qt::WA_TranslucentBackground)) {
        // Nothing shines through here: the colour that the ground would have over the window.
        painter.fillRect(rect(), Look::color(Look::Ground));
        painter.fillRect(rect(), ground);
        return;
    }
    painter.setBrush(ground);
    painter.drawRoundedRect(rect(), Look::px(Look::CornerCard), Look::px(Look::CornerCard));
}

void NormalLoadingDlg::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_bar->SLOT_start();
}

void NormalLoadingDlg::hideEvent(QHideEvent *event)
{
    m_bar->SLOT_stop();
    QDialog::hideEvent(event);
}
