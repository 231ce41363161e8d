#include "NormalWaitingDlg.h"

#include "core/ApplicationInfoManager.h"
#include "ui/AnimationWaittingBar.h"
#include "ui/LookTokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Width = 420; // design pixels

} // namespace

NormalWaitingDlg::NormalWaitingDlg(QWidget *parent)
    : NormalDialogFrame(ApplicationInfoManager::productName(), parent)
    , m_text(new QLabel(panel()))
    , m_bar(new AnimationWaittingBar(panel()))
{
    setMinimumWidth(Look::px(Width));
    m_text->setWordWrap(true);
    m_text->hide();
    m_bar->setFixedHeight(Look::px(8));
    QPushButton *cancel = makeButton(tr("Cancel"), panel());
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &NormalWaitingDlg::signal_cancelClicked);

    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(cancel);
    body()->addWidget(m_text);
    body()->addSpacing(Look::px(20));
    body()->addWidget(m_bar);
    body()->addStretch(1);
    body()->addSpacing(Look::px(20));
    body()->addLayout(foot);
    cancel->setFocus();
}

void NormalWaitingDlg::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setHidden(text.isEmpty());
    setAccessibleDescription(text);
}

QString NormalWaitingDlg::text() const
{
    return m_text->text();
}

void NormalWaitingDlg::slot_close()
{
    emit signal_closeClicked();
    NormalDialogFrame::slot_close();
}

void NormalWaitingDlg::showEvent(QShowEvent *event)
{
    NormalDialogFrame::showEvent(event);
    m_bar->SLOT_start();
}

void NormalWaitingDlg::hideEvent(QHideEvent *event)
{
    m_bar->SLOT_stop();
    NormalDialogFrame::hideEvent(event);
}
