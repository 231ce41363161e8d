// A row of the tables with the value that its control shows: reads it from the store, writes it there, and
// keeps rubbish out in both directions.
//
// The value lives here, not in a control, so that a page can be made when it is first looked at. Knows no
// widget. GUI thread.
#pragma once

#include "SettingRow.h"

#include <QObject>

#include <functional>

class SettingsManager;

class SettingBinding final : public QObject {
    Q_OBJECT

public:
    using Code = std::function<QVariant(const QVariant &)>;

    explicit SettingBinding(SettingRow row, QObject *parent = nullptr);

    [[nodiscard]] const SettingRow &row() const { return m_row; }
    [[nodiscard]] QString key() const;

    [[nodiscard]] QVariant value() const { return m_value; }
    // Takes a value that the row can hold; anything else changes nothing.
    void setValue(const QVariant &value);

    void load(const SettingsManager &store);
    void setDefault();
    // Stores the value, unless it is the one that is stored already, in whatever form. False when the key is
    // not to be touched.
    bool save(SettingsManager &store);
    // Whether the value is another than the one that load() found or took as the default.
    [[nodiscard]] bool isChanged() const { return m_value != m_loaded; }

    // A binding that is kept leaves the store as it is.
    void setKept(bool kept) { m_isKept = kept; }
    // One whose stored form goes by more than its value is written even if the value is not changed.
    void setAlwaysWritten(bool always) { m_isAlwaysWritten = always; }
    // For a value that is stored in another form than it is shown in.
    void setCode(Code fromStore, Code toStore);

    // Why the value can't be stored, for the user; empty when it can.
    [[nodiscard]] QString problem() const { return m_problem; }
    void setProblem(const QString &problem);

    // The value as the row holds it; invalid for one that it can't hold.
    [[nodiscard]] QVariant accepted(const QVariant &value) const;

signals:
    void valueChanged(const QVariant &value);
    void problemChanged(const QString &problem);

private:
    [[nodiscard]] QVariant acceptedChoice(const QVariant &value) const;

    SettingRow m_row;
    QVariant m_value;
    QVariant m_loaded;
    QString m_problem;
    bool m_isKept{false};
    bool m_isAlwaysWritten{false};
    Code m_fromStore;
    Code m_toStore;
};
