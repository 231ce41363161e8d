#include "NormalMessageBox.h"

#include "DialogLook.h"
#include "MessageText.h"

#include "core/ApplicationInfoManager.h"
#include "ui/LookTokens.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>

namespace {

constexpr char ButtonId[] = "buttonId";

// Design pixels.
constexpr QSize Smallest{550, 220};
constexpr int WideWidth = 720; // for a text that would become a tall column
constexpr int TallText = 260;

int idOf(const QPushButton *button)
{
    return button->property(ButtonId).toInt();
}

} // namespace

NormalMessageBox::NormalMessageBox(QWidget *parent)
    : NormalDialogFrame(ApplicationInfoManager::productName(), parent)
{
    setMinimumSize(Look::px(Smallest.width()), Look::px(Smallest.height()));

    m_head = new QLabel(panel());
    m_head->setObjectName(QLatin1String(DialogLook::Head));
    m_head->setWordWrap(true);
    m_head->hide();
    m_text = new MessageText(panel());

    m_checkBox = new QCheckBox(tr("Don't show again"), panel());
    m_buttonRow = new QWidget(panel());
    m_buttonLayout = new QHBoxLayout(m_buttonRow);
    m_buttonLayout->setContentsMargins(0, 0, 0, 0);
    m_buttonLayout->setSpacing(Look::px(12));

    auto *foot = new QHBoxLayout;
    foot->setSpacing(Look::px(16));
    foot->addWidget(m_checkBox);
    foot->addStretch(1);
    foot->addWidget(m_buttonRow);

    body()->setSpacing(Look::px(8));
    body()->addWidget(m_head);
    body()->addWidget(m_text);
    body()->addStretch(1);
    body()->addSpacing(Look::px(12));
    body()->addLayout(foot);
}

void NormalMessageBox::setHeadText(const QString &text)
{
    m_head->setText(text);
    m_head->show();
    if (isVisible())
        fit();
}

void NormalMessageBox::setText(const QString &text)
{
    m_text->setMessage(text);
    setAccessibleDescription(m_text->toPlainText());
    if (isVisible())
        fit();
}

void NormalMessageBox::setCheckBoxText(const QString &text)
{
    m_checkBox->setText(text);
}

void NormalMessageBox::setCheckBoxHidden(bool hidden)
{
    m_checkBox->setHidden(hidden);
}

bool NormalMessageBox::isCheckBoxChecked() const
{
    return m_checkBox->isChecked();
}

int NormalMessageBox::addButton(const QString &text, Callback callback, bool closeAfter)
{
    const int id = m_nextButtonId++;
    QPushButton *button = makeButton(text, m_buttonRow);
    button->setProperty(ButtonId, id);
    m_buttonLayout->addWidget(button);
    button->adjustSize();
    m_buttons.append(button);
    connect(button, &QPushButton::clicked, this, [this, button, callback = std::move(callback), closeAfter] {
        press(idOf(button), callback, closeAfter);
    });
    return id;
}

void NormalMessageBox::press(int id, const Callback &callback, bool closeAfter)
{
    m_result = id;
    if (callback) {
        const QPointer<NormalMessageBox> self(this);
        const Callback running = callback;
        running(this);
        // The callback may have ended the box itself, or be its end altogether.
        if (!self || m_isEnded || !closeAfter)
            return;
    }
    done(m_result);
}

void NormalMessageBox::setDefaultButton(int id)
{
    QPushButton *chosen = button(id);
    if (!chosen)
        return;
    m_defaultId = id;
    m_buttonLayout->removeWidget(chosen);
    m_buttonLayout->addWidget(chosen);
}

QPushButton *NormalMessageBox::button(int id) const
{
    for (QPushButton *candidate : m_buttons) {
        if (idOf(candidate) == id)
            return candidate;
    }
    return nullptr;
}

void NormalMessageBox::slot_close()
{
    m_result = NoButton;
    done(NoButton);
}

void NormalMessageBox::done(int result)
{
    m_isEnded = true;
    NormalDialogFrame::done(result);
}

void NormalMessageBox::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        m_isEnded = false;
        m_result = NoButton;
        orderFocus();
    }
    NormalDialogFrame::showEvent(event);
}

void NormalMessageBox::orderFocus()
{
    if (m_buttons.isEmpty())
        return;
    QWidget *previous = m_checkBox;
    setTabOrder(m_text, m_checkBox);
    for (int i = 0; i < m_buttonLayout->count(); ++i) {
        QWidget *next = m_buttonLayout->itemAt(i)->widget();
        setTabOrder(previous, next);
        previous = next;
    }
    QPushButton *chosen = m_defaultId == NoButton ? m_buttons.constLast() : button(m_defaultId);
    chosen->setDefault(true);
    chosen->setFocus();
}

void NormalMessageBox::fit()
{
    const int limit = screenHeight() / 2;
    const int margins = 2 * Look::px(DialogLook::SideMargin) + 2;
    relayOut();
    int width = qMax(minimumWidth(), layout()->minimumSize().width());
    if (m_text->heightFor(width - margins) > Look::px(TallText))
        width = qMax(width, Look::px(WideWidth));
    m_text->fit(width - margins, limit);
    relayOut();
    resizeTo(width);
}
