// The page "File Association": which files open with the program. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class QPlainTextEdit;

class FileAssociationPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit FileAssociationPage(SettingsModel &model, QWidget *parent = nullptr);

    bool focusProblem() override;
    void retranslate() override;
    [[nodiscard]] QPlainTextEdit *box() const { return m_box; }
    [[nodiscard]] QString problem() const;

public slots:
    void slot_fileAssociationTextChanged();
    void slot_jumpToSystemSetting();

private:
    void follow();
    void showProblem();

    QPlainTextEdit *m_box;
    QLabel *m_problem;
};
