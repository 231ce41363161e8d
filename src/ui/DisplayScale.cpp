#include "DisplayScale.h"

#include "core/ApplicationInfoManager.h"

namespace {

constexpr int kTvMode = 2;

QPixmap scaled(const QPixmap &pixmap, float x, float y)
{
    if (pixmap.isNull() || (x == 1.0F && y == 1.0F))
        return pixmap;
    return pixmap.scaled(int(float(pixmap.width()) * x), int(float(pixmap.height()) * y),
                         Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

DisplayScale *DisplayScale::instance()
{
    static DisplayScale scale;
    return &scale;
}

int DisplayScale::scaleWidth(int designPixels) const
{
    return int(float(designPixels) * ratioWidth());
}

int DisplayScale::scaleHeight(int designPixels) const
{
    return int(float(designPixels) * ratioHeight());
}

float DisplayScale::ratioWidth() const
{
    if (ApplicationInfoManager::instance()->runMode() != kTvMode)
        return float(ApplicationInfoManager::instance()->screenDpi() / 96.0);
    QReadLocker lock(&m_lock);
    return m_ratioX;
}

float DisplayScale::ratioHeight() const
{
    if (ApplicationInfoManager::instance()->runMode() != kTvMode)
        return float(ApplicationInfoManager::instance()->screenDpi() / 96.0);
    QReadLocker lock(&m_lock);
    return m_ratioY;
}

void DisplayScale::setScreenSize(int width, int height)
{
    QWriteLocker lock(&m_lock);
    m_ratioX = float(width) / float(designSize().width());
    m_ratioY = float(height) / float(designSize().height());
}

QPixmap DisplayScale::scalePixmap(const QPixmap &pixmap) const
{
    return scaled(pixmap, ratioWidth(), ratioHeight());
}

QPixmap DisplayScale::scalePixmapByWidth(const QPixmap &pixmap) const
{
    return scaled(pixmap, ratioWidth(), ratioWidth());
}
