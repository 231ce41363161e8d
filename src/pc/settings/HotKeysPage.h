// The page "HotKeys": a table of operations and their keys for each face, and what became of a key that was
// taken from another operation. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

#include <QModelIndex>
#include <QRect>

#include <array>

class KeyMapDelegate;
class KeyMapModel;
class NormalKeyConflictTipsDialog;
class QTableView;

class HotKeysPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit HotKeysPage(SettingsModel &model, QWidget *parent = nullptr);

    void retranslate() override;
    [[nodiscard]] QTableView *table() const { return m_table; }
    // The sentence below the table; empty while there is none.
    [[nodiscard]] QString note() const;
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void showMode(KeyMapTables::Mode mode);
    void slot_KeyConflictIndex(const QModelIndex &index, const QRect &indexRectInGlobal, int conflictValue);
    void slot_KeyConflictList(const QList<QModelIndex> &conflictList, const QRect &indexRectInGlobal);
    void resetCurrent();
    void resetAll();
    void undo();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    [[nodiscard]] KeyMapModel *keys() const;
    void tellTaken(int row, const QList<int> &operations);
    void setNote(const QString &text);
    void updateButtons();
    void editCurrent();

    KeyMapTables::Mode m_mode{KeyMapTables::Mode::Pc};
    std::array<QPushButton *, 2> m_tabs{};
    QTableView *m_table;
    KeyMapDelegate *m_delegate;
    NormalKeyConflictTipsDialog *m_tip{nullptr};
    QLabel *m_note;
    QPushButton *m_undo;
    QPushButton *m_reset;
    QPushButton *m_resetAll;
    bool m_isNoteOfTaking{false};
};
