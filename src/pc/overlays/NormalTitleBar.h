// Title bar of the frameless main window: its text, the window buttons, and the area by which the window is
// moved.
//
// Knows no window state but what it is told; the window acts on its signals. GUI thread.
#pragma once

#include <QPoint>
#include <QWidget>

class PictureButton;
class QLabel;

class NormalTitleBar final : public QWidget {
    Q_OBJECT
public:
    explicit NormalTitleBar(QWidget *parent = nullptr);

    void setText(const QString &text);
    [[nodiscard]] QString text() const { return m_text; }
    // What a drag moves, where it is not the window that the bar stands in.
    void setMovedWindow(QWidget *window) { m_movedWindow = window; }
    // A maximised window offers to be restored.
    void setMaximized(bool maximized);

    void retranslate();

signals:
    void menuClicked();
    void minClicked();
    void maxClicked();
    void restoreClicked();
    void closeClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QWidget *movedWindow() const;
    void toggleMaximized();
    void showText();

    QLabel *m_label{nullptr};
    QWidget *m_movedWindow{nullptr};
    PictureButton *m_menu{nullptr};
    PictureButton *m_min{nullptr};
    PictureButton *m_max{nullptr};
    PictureButton *m_close{nullptr};
    QString m_text;
    bool m_maximized{false};
    bool m_dragging{false};
    QPoint m_dragOffset;
};
