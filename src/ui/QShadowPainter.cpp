#include "QShadowPainter.h"

#include <QPainter>

namespace {

const char *const Sides[] = {"top",       "right",    "bottom",      "left",
                             "top_right", "top_left", "bottom_left", "bottom_right"};

QSize logicalSize(const QPixmap &pixmap)
{
    return (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
}

} // namespace

QShadowPainter::QShadowPainter(Set set, QObject *parent)
    : QObject(parent)
{
    const QString prefix = set == Set::Window ? QStringLiteral(":/Resources/origin/shadow_%1.png")
                                              : QStringLiteral(":/Resources/origin/shadow_sub_%1.png");
    for (const char *side : Sides)
        m_pictures.insert(QLatin1String(side), QPixmap(prefix.arg(QLatin1String(side))));
}

void QShadowPainter::paint(QPainter &painter, const QRect &rect) const
{
    const QSize topLeft = logicalSize(picture(QStringLiteral("top_left")));
    const QSize topRight = logicalSize(picture(QStringLiteral("top_right")));
    const QSize bottomLeft = logicalSize(picture(QStringLiteral("bottom_left")));
    const QSize bottomRight = logicalSize(picture(QStringLiteral("bottom_right")));
    const int right = rect.x() + rect.width();
    const int bottom = rect.y() + rect.height();
    const int top = logicalSize(picture(QStringLiteral("top"))).height();
    const int left = logicalSize(picture(QStringLiteral("left"))).width();
    const int rightWidth = logicalSize(picture(QStringLiteral("right"))).width();
    const int bottomHeight = logicalSize(picture(QStringLiteral("bottom"))).height();

    const struct {
        const char *side;
        QRect place;
    } parts[] = {
        {"top_left", {rect.topLeft(), topLeft}},
        {"top_right", {QPoint(right - topRight.width(), rect.y()), topRight}},
        {"bottom_left", {QPoint(rect.x(), bottom - bottomLeft.height()), bottomLeft}},
        {"bottom_right", {QPoint(right - bottomRight.width(), bottom - bottomRight.height()), bottomRight}},
        {"top",
         {rect.x() + topLeft.width(), rect.y(), rect.width() - topLeft.width() - topRight.width(), top}},
        {"bottom",
         {rect.x() + bottomLeft.width(), bottom - bottomHeight,
          rect.width() - bottomLeft.width() - bottomRight.width(), bottomHeight}},
        {"left",
         {rect.x(), rect.y() + topLeft.height(), left,
          rect.height() - topLeft.height() - bottomLeft.height()}},
        {"right",
         {right - rightWidth, rect.y() + topRight.height(), rightWidth,
          rect.height() - topRight.height() - bottomRight.height()}}};
    for (const auto &part : parts) {
        const QPixmap pixmap = picture(QLatin1String(part.side));
        if (!pixmap.isNull() && part.place.isValid())
            painter.drawPixmap(part.place, pixmap);
    }
}
