// The note beside a key that was taken from another operation. Goes by itself, takes no focus. GUI thread.
#pragma once

#include "core/ILanguageBase.h"

#include <QDialog>

class QLabel;
class QTimer;

class NormalKeyConflictTipsDialog final : public QDialog, public ILanguageBase {
    Q_OBJECT

public:
    explicit NormalKeyConflictTipsDialog(QWidget *parent = nullptr);

    void retranslate() override;
    // Shows it with its corner a little to the left of a point of the screen.
    void showAt(const QPoint &globalPoint);

public slots:
    // Takes the size of its text.
    void SLOT_setSize();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QLabel *m_label;
    QTimer *m_end;
};
