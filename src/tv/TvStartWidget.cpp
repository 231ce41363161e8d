#include "TvStartWidget.h"

#include "core/ApplicationInfoManager.h"
#include "ui/DisplayScale.h"
#include "ui/PictureLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTime>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr QSize kMark{192, 192};
constexpr int kSideMargin = 80;

QLabel *makeLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

TvStartWidget::TvStartWidget(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("tvStartPage"));
    setAttribute(Qt::WA_StyledBackground);
    m_name = makeLabel("tvProductName", this);
    m_clock = makeLabel("tvClock", this);
    m_headline = makeLabel("tvHeadline", this);
    m_note = makeLabel("tvNote", this);
    m_mark = new PictureLabel(QStringLiteral("start_mark"), kMark, this);
    m_mark->setObjectName(QStringLiteral("tvMark"));

    auto *top = new QHBoxLayout;
    top->addWidget(m_name);
    top->addStretch();
    top->addWidget(m_clock);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addStretch(4);
    layout->addWidget(m_mark, 0, Qt::AlignHCenter);
    layout->addWidget(m_headline, 0, Qt::AlignHCenter);
    layout->addWidget(m_note, 0, Qt::AlignHCenter);
    layout->addStretch(5);

    // The display shows minutes only.
    m_clockTimer.setInterval(1000);
    connect(&m_clockTimer, &QTimer::timeout, this, &TvStartWidget::showTime);
    retranslate();
    updateSizeAndFont();
}

void TvStartWidget::retranslate()
{
    m_name->setText(ApplicationInfoManager::productName());
    m_headline->setText(tr("Ready to play"));
    m_note->setText(tr("Open a film with the player to watch it here."));
    showTime();
}

void TvStartWidget::updateSizeAndFont()
{
    const auto *scale = DisplayScale::instance();
    const int margin = scale->scaleWidth(kSideMargin);
    layout()->setContentsMargins(margin, scale->scaleHeight(40), margin, scale->scaleHeight(40));
    layout()->setSpacing(scale->scaleHeight(24));
    m_mark->setPicture(QStringLiteral("start_mark"));
}

void TvStartWidget::showEvent(QShowEvent *event)
{
    showTime();
    m_clockTimer.start();
    QWidget::showEvent(event);
}

void TvStartWidget::hideEvent(QHideEvent *event)
{
    m_clockTimer.stop();
    QWidget::hideEvent(event);
}

void TvStartWidget::showTime()
{
    m_clock->setText(QTime::currentTime().toString(QStringLiteral("HH:mm")));
}
