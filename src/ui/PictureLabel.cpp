#include "PictureLabel.h"

#include "DisplayScale.h"
#include "StyleLoader.h"

#include <QIcon>

PictureLabel::PictureLabel(const QString &picture, const QSize &designSize, QWidget *parent)
    : QLabel(parent)
    , m_designSize(designSize)
{
    setAlignment(Qt::AlignCenter);
    setPicture(picture);
}

void PictureLabel::setPicture(const QString &picture)
{
    const auto *scale = DisplayScale::instance();
    const QSize size(scale->scaleWidth(m_designSize.width()), scale->scaleHeight(m_designSize.height()));
    setFixedSize(size);
    const qreal ratio = devicePixelRatioF();
    // The sharp form is asked for even at a factor of 1.5: scaling down looks better than scaling up.
    const QIcon icon(QLatin1String(StyleLoader::kPicturePrefix) + picture + QLatin1String(".png"));
    QPixmap pixmap = icon.pixmap(QSize(1, 1) * 4096);
    if (pixmap.isNull())
        return;
    pixmap.setDevicePixelRatio(1.0);
    pixmap = pixmap.scaled(size * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}
