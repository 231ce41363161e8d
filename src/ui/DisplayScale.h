// The factor every size of the interface passes through.
//
// TV mode is drawn for a screen of 1920 by 1080 and stretched to the output; PC mode follows the display's
// dots per inch. One object a process; any thread may read, the GUI thread writes.
#pragma once

#include <QPixmap>
#include <QReadWriteLock>
#include <QSize>

class DisplayScale final {
public:
    static DisplayScale *instance();

    static constexpr QSize designSize() { return {1920, 1080}; }

    // Design pixels to screen pixels, cut to whole ones.
    [[nodiscard]] int scaleWidth(int designPixels) const;
    [[nodiscard]] int scaleHeight(int designPixels) const;

    [[nodiscard]] float ratioWidth() const;
    [[nodiscard]] float ratioHeight() const;

    // Size of the screen that TV mode occupies.
    void setScreenSize(int width, int height);

    // A picture in the screen's size; the same picture where there is nothing to scale.
    [[nodiscard]] QPixmap scalePixmap(const QPixmap &pixmap) const;
    [[nodiscard]] QPixmap scalePixmapByWidth(const QPixmap &pixmap) const;

private:
    DisplayScale() = default;

    mutable QReadWriteLock m_lock;
    float m_ratioX{1.0F};
    float m_ratioY{1.0F};
};
