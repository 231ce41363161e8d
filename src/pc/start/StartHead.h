// Mark, name and note of the start page. Draws only; where each stands is the page's business. GUI thread.
#pragma once

#include "StartLayout.h"

#include <QPixmap>
#include <QWidget>

class StartHead final : public QWidget {
    Q_OBJECT

public:
    explicit StartHead(QWidget *parent = nullptr);

    void setTexts(const QString &name, const QString &note);
    // The widget has the size of the page.
    void setLayoutOf(const StartLayout &layout);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_nameText;
    QString m_noteText;
    QRect m_mark;
    QRect m_name;
    QRect m_note;
    int m_namePixels{20};
    bool m_isCentred{true};
    QPixmap m_picture;
};
