// A recent source on the start page: its last picture, its name, and where it lies.
//
// As a card the text stands below the picture, as a line beside it. A source that is gone is dimmed, and can
// be clicked all the same. GUI thread.
#pragma once

#include "playcontrol/RecentFiles.h"
#include "ui/HoverHeat.h"

#include <QAbstractButton>
#include <QPixmap>

class RecentCard final : public QAbstractButton {
    Q_OBJECT

public:
    explicit RecentCard(RecentFiles::Entry entry, QWidget *parent = nullptr);

    [[nodiscard]] const RecentFiles::Entry &entry() const { return m_entry; }

    void setLine(bool line);
    void setMissing(bool missing);
    [[nodiscard]] bool isMissing() const { return m_isMissing; }

    void retranslate();

    // Where the source lies, and the kind of file, as they are shown.
    [[nodiscard]] QString folderText() const;
    [[nodiscard]] QString typeText() const;

signals:
    // An arrow key, by columns and rows.
    void moveWanted(int columns, int rows);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QRect pictureRect() const;
    [[nodiscard]] QRect textRect() const;
    void paintPicture(QPainter &painter);
    void paintPlaceholder(QPainter &painter, const QRect &rect) const;
    void paintPosition(QPainter &painter, const QRect &rect) const;
    void paintPlayMark(QPainter &painter, const QRect &rect) const;
    void paintTexts(QPainter &painter) const;

    RecentFiles::Entry m_entry;
    QPixmap m_picture;
    // In the size shown; made anew when that changes.
    QPixmap m_scaled;
    bool m_isLine{false};
    bool m_isMissing{false};
    HoverHeat m_heat;
};
