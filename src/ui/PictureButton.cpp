#include "PictureButton.h"

#include "DisplayScale.h"
#include "StyleLoader.h"

namespace {

QIcon named(const QString &name)
{
    return QIcon(QLatin1String(StyleLoader::kPicturePrefix) + name + QLatin1String(".png"));
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
    m_plain = named(picture);
    m_hover = named(picture + QLatin1String("_hover"));
    setIcon(underMouse() ? m_hover : m_plain);
}

void PictureButton::setDesignSize(const QSize &button, int picture)
{
    const auto *scale = DisplayScale::instance();
    setFixedSize(scale->scaleWidth(button.width()), scale->scaleHeight(button.height()));
    setIconSize({scale->scaleWidth(picture), scale->scaleHeight(picture)});
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
