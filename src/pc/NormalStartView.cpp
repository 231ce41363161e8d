#include "NormalStartView.h"

#include "core/ApplicationInfoManager.h"
#include "ui/DisplayScale.h"
#include "ui/PictureLabel.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr QSize kMark{96, 96};
constexpr int kPanelMargin = 24;

} // namespace

NormalStartView::NormalStartView(QWidget *parent)
    : QWidget(parent)
{
    const auto *scale = DisplayScale::instance();
    setObjectName(QStringLiteral("startView"));
    setAttribute(Qt::WA_StyledBackground);

    m_panel = new QFrame(this);
    m_panel->setObjectName(QStringLiteral("startPanel"));
    auto *mark = new PictureLabel(QStringLiteral("start_mark"), kMark, m_panel);
    mark->setObjectName(QStringLiteral("startMark"));
    m_name = new QLabel(m_panel);
    m_name->setObjectName(QStringLiteral("startName"));
    m_note = new QLabel(m_panel);
    m_note->setObjectName(QStringLiteral("startNote"));
    m_open = new QPushButton(m_panel);
    m_open->setObjectName(QStringLiteral("primaryButton"));
    // Keys belong to the window: a focused button would take the space bar.
    m_open->setFocusPolicy(Qt::NoFocus);
    m_open->setCursor(Qt::PointingHandCursor);
    connect(m_open, &QPushButton::clicked, this, &NormalStartView::openMediaClicked);

    auto *inner = new QVBoxLayout(m_panel);
    inner->setSpacing(0);
    inner->addStretch(5);
    inner->addWidget(mark, 0, Qt::AlignHCenter);
    inner->addSpacing(scale->scaleHeight(20));
    inner->addWidget(m_name, 0, Qt::AlignHCenter);
    inner->addSpacing(scale->scaleHeight(8));
    inner->addWidget(m_note, 0, Qt::AlignHCenter);
    inner->addSpacing(scale->scaleHeight(28));
    inner->addWidget(m_open, 0, Qt::AlignHCenter);
    inner->addStretch(6);

    auto *outer = new QVBoxLayout(this);
    const int margin = scale->scaleWidth(kPanelMargin);
    outer->setContentsMargins(margin, 0, margin, margin);
    outer->addWidget(m_panel);
    retranslate();
}

void NormalStartView::setDropping(bool dropping)
{
    if (m_panel->property("dropping").toBool() == dropping)
        return;
    m_panel->setProperty("dropping", dropping);
    m_panel->style()->unpolish(m_panel);
    m_panel->style()->polish(m_panel);
}

void NormalStartView::retranslate()
{
    m_name->setText(ApplicationInfoManager::productName());
    m_note->setText(tr("Drop a film, a folder or a disc image here to play it."));
    m_open->setText(tr("Open Media..."));
}
