#include "SettingsHand.h"

#include "support/Eventually.h"

#include "dialogs/DialogSlider.h"
#include "settings/ColorButton.h"
#include "settings/FolderEdit.h"
#include "settings/HotKeysPage.h"
#include "settings/KeyMapModel.h"
#include "settings/KeySequenceEditWidget.h"
#include "settings/NormalSettingPage.h"
#include "settings/RadioColumn.h"
#include "settings/SettingCombo.h"
#include "settings/SettingRowWidget.h"
#include "settings/SwitchBox.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

namespace {

SettingRowWidget *rowOf(NormalSettingPage &dialog, const char *key)
{
    for (int page = 0; page < SettingsPageCount; ++page) {
        for (const SettingBinding *binding : dialog.model().bindings(SettingsPageId(page))) {
            if (qstrcmp(binding->row().key, key) == 0)
                return dialog.page(SettingsPageId(page))->row(key);
        }
    }
    return nullptr;
}

void type(QLineEdit &line, const QString &text)
{
    line.setFocus();
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    QTest::keyClicks(&line, text);
}

// Opens the list and picks an entry with the keyboard.
bool pick(SettingCombo &combo, const QVariant &value)
{
    combo.setFocus();
    combo.showPopup();
    const int index = combo.findData(value);
    QAbstractItemView *list = combo.view();
    if (index >= 0) {
        list->setCurrentIndex(combo.model()->index(index, combo.modelColumn(), combo.rootModelIndex()));
        QTest::keyClick(list, Qt::Key_Return);
    }
    combo.hidePopup();
    return index >= 0;
}

// The box of colours is modal: it is answered from inside its own loop.
void pick(ColorButton &button, const QColor &color)
{
    QTimer::singleShot(0, &button, [color] {
        auto *box = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        box->setCurrentColor(color);
        box->accept();
    });
    button.click();
}

bool choose(RadioColumn &radio, const SettingRow &row, const QVariant &value)
{
    for (std::size_t index = 0; index < row.choices.size(); ++index) {
        if (row.choices[index].value == value) {
            radio.button(int(index))->click();
            return true;
        }
    }
    return false;
}

QVariant shownBy(const SettingRowWidget &row)
{
    if (const auto *box = row.as<SwitchBox>())
        return box->isChecked();
    if (const auto *slider = row.as<DialogSlider>())
        return slider->value();
    if (const auto *folder = row.as<FolderEdit>())
        return folder->folder();
    if (const auto *color = row.as<ColorButton>())
        return color->color().name();
    if (const auto *line = row.as<QLineEdit>())
        return line->text();
    if (const auto *radio = row.as<RadioColumn>())
        return row.binding().row().choices[std::size_t(qMax(0, radio->current()))].value;
    if (const auto *combo = row.as<SettingCombo>())
        return combo->currentData();
    return {};
}

} // namespace

bool SettingsHand::set(NormalSettingPage &dialog, const char *key, const QVariant &value)
{
    const SettingRowWidget *row = rowOf(dialog, key);
    if (row == nullptr || !row->control()->isEnabled())
        return false;
    bool isTaken = true;
    if (auto *box = row->as<SwitchBox>()) {
        if (box->isChecked() != value.toBool())
            box->click();
    } else if (auto *slider = row->as<DialogSlider>()) {
        slider->setValue(value.toInt());
    } else if (auto *folder = row->as<FolderEdit>()) {
        type(*folder->line(), value.toString());
    } else if (auto *color = row->as<ColorButton>()) {
        pick(*color, QColor(value.toString()));
    } else if (auto *line = row->as<QLineEdit>()) {
        type(*line, value.toString());
    } else if (auto *radio = row->as<RadioColumn>()) {
        isTaken = choose(*radio, row->binding().row(), value);
    } else if (auto *combo = row->as<SettingCombo>()) {
        isTaken = pick(*combo, value);
    } else {
        isTaken = false;
    }
    return isTaken && shownBy(*row) == value;
}

QVariant SettingsHand::shown(NormalSettingPage &dialog, const char *key)
{
    const SettingRowWidget *row = rowOf(dialog, key);
    return row != nullptr ? shownBy(*row) : QVariant();
}

bool SettingsHand::setKey(NormalSettingPage &dialog, int operation, int key)
{
    dialog.slot_changeTabPage(int(SettingsPageId::HotKeys));
    auto *page = qobject_cast<HotKeysPage *>(dialog.page(SettingsPageId::HotKeys));
    QTableView *table = page->table();
    const QAbstractItemModel *keys = table->model();
    for (int row = 0; row < keys->rowCount(); ++row) {
        if (keys->index(row, 0).data(KeyMapModel::OperationRole).toInt() != operation)
            continue;
        table->setFocus();
        table->setCurrentIndex(keys->index(row, KeyMapModel::KeyColumn));
        QTest::keyPress(table, Qt::Key_Return);
        auto *editor = table->findChild<KeySequenceEditWidget *>();
        if (editor == nullptr)
            return false;
        QTest::keyPress(editor, Qt::Key(key));
        QTest::keyRelease(editor, Qt::Key(key));
        return keys->index(row, KeyMapModel::KeyColumn).data(KeyMapModel::KeyRole).toInt() == key;
    }
    return false;
}
