#include "HotKeysPage.h"

#include "KeyMapDelegate.h"
#include "KeyMapModel.h"
#include "NormalKeyConflictTipsDialog.h"
#include "SettingsLook.h"

#include "ui/LookTokens.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

namespace {

// Design pixels.
constexpr int RowHeight = 36;
constexpr int KeyWidth = 220;
constexpr int LeastHeight = 240;

constexpr const char *ModeTexts[] = {QT_TRANSLATE_NOOP("NormalSettingPage", "PC Mode"),
                                     QT_TRANSLATE_NOOP("NormalSettingPage", "TV Mode")};

} // namespace

HotKeysPage::HotKeysPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::HotKeys, parent)
    , m_table(new QTableView(this))
    , m_delegate(new KeyMapDelegate(this))
    , m_note(new QLabel(this))
{
    auto *top = new QWidget(this);
    auto *topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(0, Look::px(4), 0, Look::px(8));
    topLayout->setSpacing(Look::px(4));
    auto *group = new QButtonGroup(this);
    for (std::size_t mode = 0; mode < m_tabs.size(); ++mode) {
        QPushButton *tab = makeButton(ModeTexts[mode]);
        tab->setObjectName(QLatin1String(SettingsLook::Tab));
        tab->setCheckable(true);
        tab->setChecked(mode == 0);
        tab->setAutoDefault(false);
        group->addButton(tab);
        topLayout->addWidget(tab);
        connect(tab, &QPushButton::clicked, this, [this, mode] { showMode(KeyMapTables::Mode(mode)); });
        m_tabs[mode] = tab;
    }
    topLayout->addStretch(1);
    m_reset = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Reset"));
    m_resetAll = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Reset All"));
    topLayout->addWidget(m_reset);
    topLayout->addSpacing(Look::px(4));
    topLayout->addWidget(m_resetAll);
    addPart(top);

    m_table->setObjectName(QLatin1String(SettingsLook::Table));
    m_table->setItemDelegate(m_delegate);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
                             | QAbstractItemView::EditKeyPressed);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->setCornerButtonEnabled(false);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(Look::px(RowHeight));
    m_table->verticalHeader()->setMinimumSectionSize(Look::px(RowHeight));
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setSectionsClickable(false);
    m_table->setMinimumHeight(Look::px(LeastHeight));
    m_table->installEventFilter(this);
    addPart(m_table);
    body()->setStretchFactor(m_table, 1);
    body()->setStretch(body()->count() - 1, 0);

    auto *foot = new QWidget(this);
    auto *footLayout = new QHBoxLayout(foot);
    footLayout->setContentsMargins(0, Look::px(8), 0, 0);
    footLayout->setSpacing(Look::px(12));
    m_note->setObjectName(QLatin1String(SettingsLook::Soft));
    m_note->setWordWrap(true);
    m_undo = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Undo"));
    footLayout->addWidget(m_note, 1);
    footLayout->addWidget(m_undo);
    foot->setMinimumHeight(Look::px(44));
    addPart(foot);

    connect(m_delegate, &KeyMapDelegate::SIG_KeyConflictIndex, this, &HotKeysPage::slot_KeyConflictIndex);
    connect(m_delegate, &KeyMapDelegate::SIG_KeyConflictList, this, &HotKeysPage::slot_KeyConflictList);
    connect(m_reset, &QPushButton::clicked, this, &HotKeysPage::resetCurrent);
    connect(m_resetAll, &QPushButton::clicked, this, &HotKeysPage::resetAll);
    connect(m_undo, &QPushButton::clicked, this, &HotKeysPage::undo);
    for (const auto mode : {KeyMapTables::Mode::Pc, KeyMapTables::Mode::Tv}) {
        KeyMapModel *each = model.keys(mode);
        connect(each, &KeyMapModel::keysTaken, this, [this, each](int row, const QList<int> &operations) {
            if (each == keys())
                tellTaken(row, operations);
        });
        connect(each, &KeyMapModel::dataChanged, this, &HotKeysPage::updateButtons);
    }
    showMode(KeyMapTables::Mode::Pc);
}

KeyMapModel *HotKeysPage::keys() const
{
    return model().keys(m_mode);
}

void HotKeysPage::showMode(KeyMapTables::Mode mode)
{
    m_mode = mode;
    m_tabs[std::size_t(mode)]->setChecked(true);
    m_table->setModel(keys());
    m_table->horizontalHeader()->setSectionResizeMode(KeyMapModel::OperationColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(KeyMapModel::KeyColumn, QHeaderView::Fixed);
    m_table->setColumnWidth(KeyMapModel::KeyColumn, Look::px(KeyWidth));
    m_table->setCurrentIndex(keys()->index(0, KeyMapModel::KeyColumn));
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &HotKeysPage::updateButtons);
    setNote({});
    updateButtons();
}

void HotKeysPage::retranslate()
{
    SettingsPageWidget::retranslate();
    m_table->setAccessibleName(SettingRow::translated(SettingTables::pageTitle(page())));
    model().keys(KeyMapTables::Mode::Pc)->retranslate();
    model().keys(KeyMapTables::Mode::Tv)->retranslate();
    setNote({});
}

QString HotKeysPage::note() const
{
    return m_isNoteOfTaking ? m_note->text() : QString();
}

void HotKeysPage::setNote(const QString &text)
{
    m_isNoteOfTaking = !text.isEmpty();
    m_note->setText(
        text.isEmpty() ? tr("Press Enter on a row and then the new key. Delete takes the key away.") : text);
    m_undo->setVisible(m_isNoteOfTaking && keys()->canUndo());
}

// Names who has lost the key, so that nothing is lost without being seen.
void HotKeysPage::tellTaken(int row, const QList<int> &operations)
{
    QStringList names;
    for (int operation : operations)
        names.append(KeyMapTables::keyOperateName(operation));
    const QString key = keys()->index(row, KeyMapModel::KeyColumn).data().toString();
    setNote(
        tr("%1 was the key of \"%2\", which has none now.").arg(key, names.join(QStringLiteral("\", \""))));
}

void HotKeysPage::slot_KeyConflictIndex(const QModelIndex &index, const QRect &, int conflictValue)
{
    if (index.isValid() && conflictValue != 0)
        m_table->scrollTo(m_table->currentIndex());
}

void HotKeysPage::slot_KeyConflictList(const QList<QModelIndex> &conflictList, const QRect &indexRectInGlobal)
{
    if (conflictList.isEmpty())
        return;
    if (!m_tip)
        m_tip = new NormalKeyConflictTipsDialog(this);
    m_tip->showAt(indexRectInGlobal.topLeft() + QPoint(0, indexRectInGlobal.height()));
}

void HotKeysPage::resetCurrent()
{
    setNote({});
    keys()->reset(m_table->currentIndex().row());
}

void HotKeysPage::resetAll()
{
    keys()->setDefaults();
    setNote({});
}

void HotKeysPage::undo()
{
    keys()->undo();
    setNote({});
    if (m_tip)
        m_tip->hide();
    m_table->setFocus();
}

void HotKeysPage::updateButtons()
{
    const QModelIndex current = m_table->currentIndex();
    m_reset->setEnabled(current.isValid() && current.row() < keys()->rowCount()
                        && !keys()->isDefault(current.row()));
    if (m_isNoteOfTaking && !keys()->canUndo())
        setNote({});
}

void HotKeysPage::editCurrent()
{
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    const QModelIndex key = current.sibling(current.row(), KeyMapModel::KeyColumn);
    m_table->setCurrentIndex(key);
    m_table->edit(key);
}

void HotKeysPage::hideEvent(QHideEvent *event)
{
    if (m_tip)
        m_tip->hide();
    SettingsPageWidget::hideEvent(event);
}

bool HotKeysPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_table || event->type() != QEvent::KeyPress)
        return SettingsPageWidget::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    switch (press->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (press->modifiers() & ~Qt::KeypadModifier)
            return false;
        editCurrent();
        return true;
    case Qt::Key_Delete: {
        const QModelIndex current = m_table->currentIndex();
        setNote({});
        keys()->setData(keys()->index(current.row(), KeyMapModel::KeyColumn), 0, KeyMapModel::KeyRole);
        return true;
    }
    default:
        return false;
    }
}
