#include "FileAssociationPage.h"

#include "SettingsLook.h"

#include "ui/LookTokens.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>

namespace {

constexpr int BoxHeight = 180; // design pixels

} // namespace

FileAssociationPage::FileAssociationPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::FileAssociation, parent)
    , m_box(new QPlainTextEdit(this))
    , m_problem(new QLabel(this))
{
    addNote(QT_TRANSLATE_NOOP(
        "NormalSettingPage",
        "Files with these extensions open with Quorin Player 6 when they are double clicked."));
    auto *gap = new QWidget(this);
    gap->setFixedHeight(Look::px(10));
    addPart(gap);
    m_box->setObjectName(QLatin1String(SettingsLook::Field));
    m_box->setTabChangesFocus(true);
    m_box->setFixedHeight(Look::px(BoxHeight));
    addPart(m_box);
    m_problem->setObjectName(QLatin1String(SettingsLook::Problem));
    m_problem->setWordWrap(true);
    m_problem->setContentsMargins(0, Look::px(6), 0, 0);
    addPart(m_problem);
    if (model.facts().isWindows8OrLater) {
        addNote(QT_TRANSLATE_NOOP("NormalSettingPage",
                                  "To change your default apps, go to Settings > System > Default apps."));
        auto *foot = new QWidget(this);
        auto *layout = new QHBoxLayout(foot);
        layout->setContentsMargins(0, Look::px(12), 0, 0);
        QPushButton *system = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "System Settings"));
        layout->addWidget(system);
        layout->addStretch(1);
        addPart(foot);
        connect(system, &QPushButton::clicked, this, &FileAssociationPage::slot_jumpToSystemSetting);
    }
    connect(m_box, &QPlainTextEdit::textChanged, this, &FileAssociationPage::slot_fileAssociationTextChanged);
    connect(model.associations(), &FileAssociationList::changed, this, &FileAssociationPage::follow);
    retranslate();
    follow();
}

void FileAssociationPage::retranslate()
{
    SettingsPageWidget::retranslate();
    m_box->setAccessibleName(SettingRow::translated(SettingTables::pageTitle(page())));
    showProblem();
}

void FileAssociationPage::follow()
{
    const FileAssociationList *list = model().associations();
    if (m_box->toPlainText() != list->text()) {
        const QSignalBlocker quiet(m_box);
        m_box->setPlainText(list->text());
    }
    m_box->setEnabled(list->isEnabled());
    showProblem();
}

void FileAssociationPage::slot_fileAssociationTextChanged()
{
    model().associations()->setText(m_box->toPlainText());
    showProblem();
}

void FileAssociationPage::showProblem()
{
    const QString text = model().associations()->problemText();
    m_problem->setText(text);
    m_problem->setVisible(!text.isEmpty());
    if (m_box->property("wrong").toBool() == !text.isEmpty())
        return;
    m_box->setProperty("wrong", !text.isEmpty());
    m_box->setAccessibleDescription(text);
    m_box->style()->unpolish(m_box);
    m_box->style()->polish(m_box);
}

QString FileAssociationPage::problem() const
{
    return m_problem->text();
}

bool FileAssociationPage::focusProblem()
{
    if (m_problem->text().isEmpty())
        return false;
    m_box->setFocus(Qt::OtherFocusReason);
    return true;
}

void FileAssociationPage::slot_jumpToSystemSetting()
{
    model().host().openSystemSettings();
}
