#include "StartHead.h"

#include "ui/LookTokens.h"
#include "ui/StyleLoader.h"

#include <QIcon>
#include <QPainter>

namespace {

constexpr int kNotePixels = 13; // design pixels
constexpr char kMark[] = "start_mark.png";

// From the largest form that there is: scaling down looks better than scaling up.
QPixmap markPicture(int side, qreal ratio)
{
    QPixmap pixmap =
        QIcon(QLatin1String(StyleLoader::kPicturePrefix) + QLatin1String(kMark)).pixmap(QSize(1, 1) * 4096);
    if (pixmap.isNull())
        return {};
    pixmap.setDevicePixelRatio(1.0);
    pixmap = pixmap.scaled(QSize(side, side) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

StartHead::StartHead(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void StartHead::setTexts(const QString &name, const QString &note)
{
    m_nameText = name;
    m_noteText = note;
    setAccessibleName(name);
    setAccessibleDescription(note);
    update();
}

void StartHead::setLayoutOf(const StartLayout &layout)
{
    if (m_picture.isNull() || m_mark.size() != layout.mark().size())
        m_picture = markPicture(layout.mark().width(), devicePixelRatioF());
    m_mark = layout.mark();
    m_name = layout.name();
    m_note = layout.note();
    m_namePixels = layout.namePixels();
    m_isCentred = layout.isCentred();
    update();
}

void StartHead::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(m_mark.topLeft(), m_picture);
    const auto line = [&](const QRect &place, const QFont &font, QRgb color, const QString &text) {
        if (place.isEmpty())
            return;
        painter.setFont(font);
        painter.setPen(Look::color(color));
        const QFontMetrics metrics = painter.fontMetrics();
        const QString shown = metrics.elidedText(text, Qt::ElideRight, place.width());
        const int left = m_isCentred ? place.left() + (place.width() - metrics.horizontalAdvance(shown)) / 2
                                     : place.left();
        painter.drawText(left, Look::baseline(place, metrics), shown);
    };
    line(m_name, Look::font(m_namePixels, QFont::DemiBold), Look::Text, m_nameText);
    line(m_note, Look::font(kNotePixels), Look::Soft, m_noteText);
}
