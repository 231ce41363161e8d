// The window of PC mode in the hands of a user: real keys and a real pointer, through the X server.
// Everything is in pixels of the screen.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

class PcWindow final {
public:
    explicit PcWindow(qint64 processId);
    ~PcWindow();
    PcWindow(const PcWindow &) = delete;
    PcWindow &operator=(const PcWindow &) = delete;

    // Waits for the main window under a title, which ends in the product's name.
    [[nodiscard]] bool waitForTitle(const QString &title, int timeoutMs = 20000);
    [[nodiscard]] qulonglong id() const { return m_id; }
    [[nodiscard]] QRect rect() const;
    // The transport bar where it is shown, else a null one.
    [[nodiscard]] QRect bar() const;
    // A shown overlay whose size fits into these bounds, else a null one.
    [[nodiscard]] QRect overlay(const QSize &smallest, const QSize &largest) const;
    // All that is shown over the picture.
    [[nodiscard]] QList<QRect> overlays() const;

    void moveTo(const QPoint &point) const;
    void click(const QPoint &point) const;
    void rightClick(const QPoint &point) const;
    void doubleClick(const QPoint &point) const;
    void drag(const QPoint &from, const QPoint &to) const;
    // One notch of the wheel.
    void wheel(const QPoint &point, bool up) const;
    void key(const QString &name) const;
    void type(const QString &text) const;

    // False while the pointer shows nothing at all.
    [[nodiscard]] bool isPointerShown() const;

private:
    qint64 m_process;
    qulonglong m_id{0};
    struct xcb_connection_t *m_connection{nullptr};
};
