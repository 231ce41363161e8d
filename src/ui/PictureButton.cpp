#include "PictureButton.h"

#include "DisplayScale.h"
#include "StyleLoader.h"

namespace {

// The sharpest form of a picture, brought to the size that the button shows: an icon by itself never grows.
QIcon named(const QString &name, int size, qreal ratio)
{
    const QIcon icon(QLatin1String(StyleLoader::kPicturePrefix) + name + QLatin1String(".png"));
    QPixmap pixmap = icon.pixmap(QSize(1, 1) * 4096);
    if (pixmap.isNull() || size <= 0)
        return icon;
    pixmap.setDevicePixelRatio(1.0);
    pixmap = pixmap.scaled(QSize(size, size) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(ratio);
    return QIcon(pixmap);
}

} // namespace

PictureButton::PictureButton(const QString &picture, QWidget *parent)
    : QPushButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setPicture(picture);
}

void PictureButton::setPicture(const QString &picture)
{
    m_picture = picture;
    m_plain = named(picture, iconSize().width(), devicePixelRatioF());
    m_hover = named(picture + QLatin1String("_hover"), iconSize().width(), devicePixelRatioF());
    setIcon(underMouse() ? m_hover : m_plain);
}

void PictureButton::setDesignSize(const QSize &button, int picture)
{
    const auto *scale = DisplayScale::instance();
    setFixedSize(scale->scaleWidth(button.width()), scale->scaleHeight(button.height()));
    setIconSize({scale->scaleWidth(picture), scale->scaleHeight(picture)});
    setPicture(m_picture);
}

void PictureButton::enterEvent(QEvent *event)
{
    setIcon(m_hover);
    QPushButton::enterEvent(event);
}

void PictureButton::leaveEvent(QEvent *event)
{
    setIcon(m_plain);
    QPushButton::leaveEvent(event);
}
