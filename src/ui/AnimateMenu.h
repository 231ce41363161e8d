// The main menu of PC mode: a panel that opens from a side of its window, with lines that it paints itself.
//
// Its place is held in floating point and moved by the animation; the lines stand still at the inner edge
// while the panel uncovers them. It is a child of its window, or a popup, which a press beside it closes. GUI
// thread.
#pragma once

#include "AnimateObject.h"
#include "PopDlgTyle.h"

#include <QColor>
#include <QRectF>
#include <QVector>
#include <QWidget>

class AnimateMenu final : public QWidget, public AnimateObject {
    Q_OBJECT
    Q_PROPERTY(QColor colLineColor READ colLineColor WRITE setColLineColor)
    Q_PROPERTY(QRectF geometryF READ geometryF WRITE setGeometryF)

public:
    enum class Kind { Dialog, CheckVersion, Line };

    struct Row {
        Kind kind{Kind::Dialog};
        PopDlgTyle dialog{PopDlgTyle::OpenMedia}; // for Kind::Dialog
        QString text;
        bool isEnabled{true};
    };

    static constexpr int OpenMs = 1000;
    static constexpr int CloseMs = 500;
    static constexpr int NoRow = -1;

    explicit AnimateMenu(QWidget *parent = nullptr);
    ~AnimateMenu() override;

    // The lines of the main menu.
    [[nodiscard]] static QVector<Row> mainRows();

    void setRows(const QVector<Row> &rows);
    [[nodiscard]] const QVector<Row> &rows() const { return m_rows; }
    // Where the open panel stands, in the coordinates of its parent, or of the screen as a window; and the
    // side it opens from. Without a place it is the left side of the parent.
    void setOpenGeometry(const QRect &geometry, Qt::Edge edge = Qt::LeftEdge);

    // Slides in or out; a panel on its way turns round.
    void slideIn();
    void slideOut();
    [[nodiscard]] bool isOpen() const { return m_isOpen; }

    [[nodiscard]] QColor colLineColor() const { return m_lineColor; }
    void setColLineColor(const QColor &color);
    [[nodiscard]] QRectF geometryF() const { return m_geometry; }
    void setGeometryF(const QRectF &geometry);

    [[nodiscard]] int hoveredRow() const { return m_hovered; }
    [[nodiscard]] int pressedRow() const { return m_pressed; }
    // The rectangle of a line, and the line at a point that can be chosen; one pair for painting and mouse.
    [[nodiscard]] QRect rowRect(int row) const;
    [[nodiscard]] int rowAt(const QPoint &point) const;
    [[nodiscard]] QSize sizeHint() const override;

    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

signals:
    void sig_showDialog(PopDlgTyle dlgTyle);
    void sig_checkVersion();

public slots:
    void slot_animateFinished();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QRect openRect() const;
    [[nodiscard]] QRectF closedRect() const;
    void setHovered(int row);
    void stepHovered(int direction);
    void choose(int row);

    QVector<Row> m_rows;
    QRect m_openRect;
    Qt::Edge m_edge{Qt::LeftEdge};
    QRectF m_geometry;
    QColor m_lineColor{0x2b, 0x39, 0x47};
    int m_hovered{NoRow};
    int m_pressed{NoRow};
    bool m_isOpen{false};
};
