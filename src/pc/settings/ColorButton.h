// Shows a colour with its number and lets the user choose another. GUI thread.
#pragma once

#include <QColor>
#include <QPushButton>

class ColorButton final : public QPushButton {
    Q_OBJECT

public:
    explicit ColorButton(QWidget *parent = nullptr);

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);
    // Opens the box of colours under a title; the chosen one comes with colorChosen().
    void choose(const QString &title);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void colorChosen(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color{Qt::white};
};
