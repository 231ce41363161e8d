// How warm a control is: it warms up while the pointer is on it, cools down when the pointer has gone, and
// draws itself by the number.
//
// Repaints the control at each step; stands in the control that it is made for. GUI thread.
#pragma once

#include <QVariantAnimation>

class QWidget;

class HoverHeat final {
public:
    // Both times in milliseconds.
    HoverHeat(QWidget *control, int upMs, int downMs);

    // From 0.0, cold, to 1.0.
    [[nodiscard]] double value() const { return m_way.currentValue().toDouble(); }
    void warm(bool up);
    // At once.
    void cool();

private:
    int m_upMs;
    int m_downMs;
    QVariantAnimation m_way;
};
