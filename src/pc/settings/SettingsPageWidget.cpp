#include "SettingsPageWidget.h"

#include "SettingRowWidget.h"
#include "SettingsLook.h"

#include "ui/LookTokens.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr int TopMargin = 12;
constexpr int HeadAbove = 18;
constexpr int HeadBelow = 4;

} // namespace

SettingsPageWidget::SettingsPageWidget(SettingsModel &model, SettingsPageId page, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_page(page)
    , m_body(new QVBoxLayout(this))
{
    setObjectName(QLatin1String(SettingsLook::Page));
    const int side = Look::px(SettingsLook::PageMargin);
    m_body->setContentsMargins(side, Look::px(TopMargin), side, Look::px(TopMargin));
    m_body->setSpacing(0);
    m_body->addStretch(1);
    for (SettingBinding *binding : model.bindings(page)) {
        if (binding->row().control == SettingControl::None)
            continue;
        if (binding->row().head)
            addHead(binding->row().head);
        auto *row = new SettingRowWidget(*binding, this);
        addPart(row);
        m_rows.append(row);
    }
}

SettingRowWidget *SettingsPageWidget::row(const char *key) const
{
    for (SettingRowWidget *each : m_rows) {
        if (qstrcmp(each->binding().row().key, key) == 0)
            return each;
    }
    return nullptr;
}

bool SettingsPageWidget::focusProblem()
{
    for (SettingRowWidget *each : m_rows) {
        if (!each->binding().problem().isEmpty()) {
            each->control()->setFocus(Qt::OtherFocusReason);
            return true;
        }
    }
    return false;
}

void SettingsPageWidget::retranslate()
{
    for (const auto &[label, text] : m_labels)
        label->setText(SettingRow::translated(text));
    for (const auto &[button, text] : m_buttons)
        button->setText(SettingRow::translated(text));
    for (SettingRowWidget *each : m_rows)
        each->retranslate();
}

void SettingsPageWidget::addPart(QWidget *part)
{
    m_body->insertWidget(m_body->count() - 1, part);
}

QLabel *SettingsPageWidget::addHead(const char *text)
{
    auto *head = new QLabel(this);
    head->setObjectName(QLatin1String(SettingsLook::Head));
    // The first part is the stretch at the end.
    m_body->insertSpacing(m_body->count() - 1, Look::px(m_body->count() > 1 ? HeadAbove : HeadBelow));
    keepText(head, text);
    addPart(head);
    m_body->insertSpacing(m_body->count() - 1, Look::px(HeadBelow));
    return head;
}

QLabel *SettingsPageWidget::addNote(const char *text)
{
    auto *note = new QLabel(this);
    note->setObjectName(QLatin1String(SettingsLook::Soft));
    note->setWordWrap(true);
    note->setContentsMargins(0, Look::px(10), 0, 0);
    keepText(note, text);
    addPart(note);
    return note;
}

QPushButton *SettingsPageWidget::makeButton(const char *text)
{
    auto *button = new QPushButton(SettingRow::translated(text), this);
    button->setObjectName(QLatin1String(SettingsLook::SmallButton));
    m_buttons.append({button, text});
    return button;
}

void SettingsPageWidget::setRowEnabled(const char *key, bool enabled)
{
    if (SettingRowWidget *found = row(key))
        found->setEnabled(enabled);
}

void SettingsPageWidget::keepText(QLabel *label, const char *text)
{
    m_labels.append({label, text});
    label->setText(SettingRow::translated(text));
}
