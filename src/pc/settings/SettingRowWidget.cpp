#include "SettingRowWidget.h"

#include "ColorButton.h"
#include "FolderEdit.h"
#include "RadioColumn.h"
#include "SettingCombo.h"
#include "SettingsLook.h"
#include "SwitchBox.h"

#include "dialogs/DialogSlider.h"
#include "ui/LookTokens.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

namespace {

// Design pixels.
constexpr int ValueWidth = 56;
constexpr int Gap = 16;

QLabel *makeLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

} // namespace

SettingRowWidget::SettingRowWidget(SettingBinding &binding, QWidget *parent)
    : QWidget(parent)
    , m_binding(binding)
    , m_grid(new QGridLayout(this))
    , m_name(makeLabel(SettingsLook::Name, this))
{
    m_grid->setContentsMargins(0, Look::px(3), 0, Look::px(4));
    m_grid->setHorizontalSpacing(Look::px(Gap));
    m_grid->setVerticalSpacing(0);
    m_grid->setColumnStretch(0, 1);
    m_grid->setRowMinimumHeight(0, Look::px(SettingsLook::RowHeight - 7));

    QWidget *shown = makeControl();
    m_name->setBuddy(m_control);
    const SettingControl kind = binding.row().control;
    const bool isNarrow = kind == SettingControl::Switch;
    if (!isNarrow)
        shown->setFixedWidth(Look::px(SettingsLook::ControlWidth));
    m_grid->addWidget(m_name, 0, 0,
                      kind == SettingControl::Radio ? Qt::AlignTop | Qt::AlignLeft : Qt::AlignVCenter);
    m_grid->addWidget(shown, 0, 1, Qt::AlignRight | Qt::AlignVCenter);
    if (kind == SettingControl::Radio)
        m_name->setContentsMargins(0, Look::px(5), 0, 0);
    if (isNarrow)
        m_name->installEventFilter(this);

    connect(&m_binding, &SettingBinding::valueChanged, this, &SettingRowWidget::display);
    connect(&m_binding, &SettingBinding::problemChanged, this, &SettingRowWidget::showProblem);
    retranslate();
    display(m_binding.value());
    showProblem(m_binding.problem());
}

QWidget *SettingRowWidget::makeControl()
{
    switch (m_binding.row().control) {
    case SettingControl::Switch: {
        auto *box = new SwitchBox(this);
        connect(box, &SwitchBox::clicked, this, [this](bool isOn) { edit(isOn); });
        return m_control = box;
    }
    case SettingControl::Slider:
        return makeSlider();
    case SettingControl::Folder: {
        auto *folder = new FolderEdit(this);
        connect(folder, &FolderEdit::folderChanged, this, [this](const QString &path) { edit(path); });
        return m_control = folder;
    }
    case SettingControl::Color: {
        auto *color = new ColorButton(this);
        connect(color, &ColorButton::colorChosen, this,
                [this](const QColor &chosen) { edit(chosen.name()); });
        return m_control = color;
    }
    case SettingControl::Radio: {
        auto *radio = new RadioColumn(int(m_binding.row().choices.size()), this);
        connect(radio, &RadioColumn::chosen, this,
                [this](int index) { edit(m_binding.row().choices[std::size_t(index)].value); });
        return m_control = radio;
    }
    case SettingControl::FontFamily:
        return makeFontFamily();
    case SettingControl::Text:
        return makeLine(false);
    case SettingControl::Secret:
        return makeLine(true);
    default:
        return makeChoice();
    }
}

QWidget *SettingRowWidget::makeSlider()
{
    auto *field = new QWidget(this);
    auto *slider = new DialogSlider(field);
    m_value = makeLabel(SettingsLook::Value, field);
    m_value->setWordWrap(false);
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_value->setFixedWidth(Look::px(ValueWidth));
    const SettingRow &row = m_binding.row();
    slider->setRange(row.minimum, row.maximum);
    slider->setPageStep(qMax(1, (row.maximum - row.minimum) / 10));
    slider->setNeutralValue(row.standard.toInt());
    slider->installEventFilter(this);
    auto *layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(slider, 1);
    layout->addWidget(m_value);
    connect(slider, &QSlider::valueChanged, this, [this](int value) { edit(value); });
    m_control = slider;
    return field;
}

QWidget *SettingRowWidget::makeChoice()
{
    auto *combo = new SettingCombo(this);
    connect(combo, QOverload<int>::of(&QComboBox::activated), this,
            [this, combo](int index) { edit(combo->itemData(index)); });
    return m_control = combo;
}

// Hundreds of families are read when somebody looks for one.
QWidget *SettingRowWidget::makeFontFamily()
{
    makeChoice();
    connect(as<SettingCombo>(), &SettingCombo::aboutToShow, this, &SettingRowWidget::fillFamilies);
    return m_control;
}

QWidget *SettingRowWidget::makeLine(bool isSecret)
{
    auto *line = new QLineEdit(this);
    line->setObjectName(QLatin1String(SettingsLook::Field));
    if (isSecret)
        line->setEchoMode(QLineEdit::Password);
    connect(line, &QLineEdit::textEdited, this, [this](const QString &text) { edit(text); });
    return m_control = line;
}

void SettingRowWidget::fillFamilies()
{
    auto *combo = as<SettingCombo>();
    if (combo->count() > 2)
        return;
    QList<QPair<QString, QVariant>> entries;
    const QStringList families = QFontDatabase().families();
    for (const QString &family : families) {
        if (!QFontDatabase().isPrivateFamily(family))
            entries.append({family, family});
    }
    setEntries(entries, tr("Default"));
}

void SettingRowWidget::setEntries(const QList<QPair<QString, QVariant>> &entries, const QString &emptyText)
{
    auto *combo = as<SettingCombo>();
    if (!combo)
        return;
    combo->clear();
    if (!emptyText.isEmpty())
        combo->addItem(emptyText, QString());
    for (const auto &entry : entries)
        combo->addItem(entry.first, entry.second);
    display(m_binding.value());
}

void SettingRowWidget::setHelp(const QString &text)
{
    if (!m_help) {
        m_help = makeLabel(SettingsLook::Soft, this);
        m_grid->addWidget(m_help, 2, 0, 1, 2);
        m_help->setContentsMargins(0, Look::px(2), 0, Look::px(8));
    }
    m_help->setText(text);
    m_help->setVisible(!text.isEmpty());
}

void SettingRowWidget::edit(const QVariant &value)
{
    const QVariant taken = m_binding.accepted(value);
    if (!taken.isValid() || taken == m_binding.value())
        return;
    emit aboutToEdit();
    m_binding.setValue(taken);
    emit edited();
}

void SettingRowWidget::display(const QVariant &value)
{
    const QSignalBlocker quiet(m_control);
    const SettingRow &row = m_binding.row();
    if (auto *box = as<SwitchBox>()) {
        box->setChecked(value.toBool());
    } else if (auto *slider = as<DialogSlider>()) {
        slider->setValue(value.toInt());
        m_value->setText(row.valueText ? row.valueText(value.toInt()) : QString::number(value.toInt()));
    } else if (auto *folder = as<FolderEdit>()) {
        folder->setFolder(value.toString());
    } else if (auto *color = as<ColorButton>()) {
        color->setColor(QColor(value.toString()));
    } else if (auto *line = as<QLineEdit>()) {
        if (line->text() != value.toString())
            line->setText(value.toString());
    } else if (auto *radio = as<RadioColumn>()) {
        for (std::size_t index = 0; index < row.choices.size(); ++index) {
            if (row.choices[index].value == value)
                radio->setCurrent(int(index));
        }
    } else if (auto *combo = as<SettingCombo>()) {
        int index = combo->findData(value);
        if (index < 0 && row.control == SettingControl::FontFamily && !value.toString().isEmpty()) {
            combo->addItem(value.toString(), value);
            index = combo->count() - 1;
        }
        combo->setCurrentIndex(index);
        combo->setToolTip(combo->currentText());
        combo->update();
    }
}

void SettingRowWidget::showProblem(const QString &problem)
{
    if (problem.isEmpty() && !m_problem)
        return;
    if (!m_problem) {
        m_problem = makeLabel(SettingsLook::Problem, this);
        m_problem->setFixedWidth(Look::px(SettingsLook::ControlWidth));
        m_problem->setContentsMargins(0, Look::px(4), 0, Look::px(4));
        m_grid->addWidget(m_problem, 1, 1, Qt::AlignRight);
    }
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
    QWidget *field = as<FolderEdit>() ? as<FolderEdit>()->line() : m_control;
    field->setAccessibleDescription(problem);
    field->setProperty("wrong", !problem.isEmpty());
    field->style()->unpolish(field);
    field->style()->polish(field);
}

void SettingRowWidget::retranslate()
{
    const SettingRow &row = m_binding.row();
    const QString name = SettingRow::translated(row.text).trimmed();
    m_name->setText(name);
    m_control->setAccessibleName(name);
    if (auto *folder = as<FolderEdit>()) {
        folder->retranslate();
        folder->setName(name);
    }
    if (auto *radio = as<RadioColumn>()) {
        QStringList texts;
        for (const SettingChoice &choice : row.choices)
            texts.append(choice.shown());
        radio->setTexts(texts);
    }
    auto *combo = as<SettingCombo>();
    if (combo && row.control == SettingControl::Choice) {
        QList<QPair<QString, QVariant>> entries;
        for (const SettingChoice &choice : row.choices)
            entries.append({choice.shown(), choice.value});
        setEntries(entries);
    }
    if (combo && row.control == SettingControl::FontFamily && combo->count() <= 2) {
        setEntries({}, tr("Default"));
    } else if (combo && row.control == SettingControl::FontFamily) {
        combo->setItemText(0, tr("Default"));
    }
    display(m_binding.value());
}

// A hair line parts the rows.
void SettingRowWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), QColor(255, 255, 255, 13));
}

bool SettingRowWidget::eventFilter(QObject *watched, QEvent *event)
{
    // A click on the name of a switch is one on the switch.
    if (watched == m_name && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && m_control->isEnabled()
            && m_name->rect().contains(mouse->pos()))
            as<SwitchBox>()->click();
        return true;
    }
    if (watched == m_name && event->type() == QEvent::MouseButtonPress)
        return true;
    // The wheel turns the page, unless the slider is what the user works with.
    if (watched == m_control && event->type() == QEvent::Wheel && !m_control->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
