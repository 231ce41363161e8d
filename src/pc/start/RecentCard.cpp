#include "RecentCard.h"

#include "ui/FixedDigits.h"
#include "ui/FocusRing.h"
#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

// Design pixels.
constexpr int kNamePixels = 13;
constexpr int kSoftPixels = 12;
constexpr int kTextGap = 8;
constexpr int kNameHeight = 20;
constexpr int kSoftHeight = 18;
constexpr int kLineInset = 4;
constexpr int kLineTextGap = 12;
constexpr int kIcon = 40;
constexpr int kLineIcon = 24;
constexpr int kPlayMark = 44;
constexpr int kLinePlayMark = 28;
constexpr int kFrame = 2;
constexpr int kChipHeight = 20;
constexpr int kChipPadding = 6;
constexpr int kChipInset = 6;

constexpr double kMissingOpacity = 0.35;
constexpr double kShade = 0.28;

QString iconOf(const RecentFiles::Entry &entry)
{
    if (entry.type == RecentFiles::Disc || entry.path.size() == 1)
        return QStringLiteral("media_disc");
    if (entry.type == RecentFiles::Folder)
        return QStringLiteral("media_folder");
    return TransportIcons::nameOfFile(entry.path);
}

QPainterPath rounded(const QRectF &rect, int designPixels)
{
    QPainterPath path;
    path.addRoundedRect(rect, Look::px(designPixels), Look::px(designPixels));
    return path;
}

// Fills the rectangle; what stands over is cut off at both sides alike.
QPixmap covering(const QPixmap &picture, const QSize &size, qreal ratio)
{
    const QSize pixels = size * ratio;
    QPixmap scaled = picture.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    scaled = scaled.copy((scaled.width() - pixels.width()) / 2, (scaled.height() - pixels.height()) / 2,
                         pixels.width(), pixels.height());
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

} // namespace

RecentCard::RecentCard(RecentFiles::Entry entry, QWidget *parent)
    : QAbstractButton(parent)
    , m_entry(std::move(entry))
    , m_heat(this, Look::FadeInMs, Look::FadeOutMs)
{
    // By the keyboard alone: what is clicked does not hold the keys of the window back.
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    // A stored picture may be broken; then it counts as none.
    m_picture.loadFromData(m_entry.picture);
    retranslate();
}

void RecentCard::setLine(bool line)
{
    if (m_isLine == line)
        return;
    m_isLine = line;
    m_scaled = {};
    update();
}

void RecentCard::setMissing(bool missing)
{
    if (m_isMissing == missing)
        return;
    m_isMissing = missing;
    retranslate();
    update();
}

void RecentCard::retranslate()
{
    QStringList lines{m_entry.path.size() == 1 ? m_entry.path + QLatin1Char(':')
                                               : QDir::toNativeSeparators(m_entry.path)};
    if (m_isMissing)
        lines << tr("Not found");
    if (m_entry.seconds > 0)
        lines << tr("Last playback at %1").arg(FixedDigits::clock(m_entry.seconds));
    setAccessibleName(m_entry.name);
    setAccessibleDescription(lines.join(QLatin1String(", ")));
    setToolTip(
        lines.join(QLatin1Char('\n')).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

QString RecentCard::folderText() const
{
    if (m_isMissing)
        return tr("Not found");
    if (m_entry.path.size() == 1)
        return m_entry.path.toUpper() + QLatin1Char(':');
    const QString path = QDir::cleanPath(QDir::fromNativeSeparators(m_entry.path));
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return QDir::toNativeSeparators(path.left(qMax(slash, slash == 0 ? 1 : 0)));
}

QString RecentCard::typeText() const
{
    if (m_entry.type == RecentFiles::File && m_entry.path.size() > 1)
        return QFileInfo(m_entry.path).suffix().left(8).toUpper();
    return {};
}

void RecentCard::enterEvent(QEvent *event)
{
    m_heat.warm(true);
    QAbstractButton::enterEvent(event);
}

void RecentCard::leaveEvent(QEvent *event)
{
    m_heat.warm(false);
    QAbstractButton::leaveEvent(event);
}

void RecentCard::resizeEvent(QResizeEvent *event)
{
    m_scaled = {};
    QAbstractButton::resizeEvent(event);
}

void RecentCard::keyPressEvent(QKeyEvent *event)
{
    struct Move {
        int key;
        int columns;
        int rows;
    };
    static constexpr Move moves[] = {
        {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};

    // Until the keyboard's cursor is seen, keys are meant for the window.
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!FocusRing::isOn(this) || !isPlain) {
        event->ignore();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    for (const Move &move : moves) {
        if (event->key() == move.key) {
            emit moveWanted(move.columns, move.rows);
            return;
        }
    }
    QAbstractButton::keyPressEvent(event);
}

QRect RecentCard::pictureRect() const
{
    if (!m_isLine)
        return {0, 0, width(), width() * 9 / 16};
    const int inset = Look::px(kLineInset);
    const int high = height() - 2 * inset;
    return {inset, inset, high * 16 / 9, high};
}

QRect RecentCard::textRect() const
{
    const QRect picture = pictureRect();
    if (!m_isLine)
        return {0, picture.bottom() + 1 + Look::px(kTextGap), width(), height() - picture.height()};
    const int left = picture.right() + 1 + Look::px(kLineTextGap);
    const int high = Look::px(kNameHeight) + Look::px(kSoftHeight);
    return {left, (height() - high) / 2, width() - left - Look::px(kLineInset), high};
}

void RecentCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const double warmth = m_heat.value();
    const bool hasCursor = FocusRing::isOn(this);
    if (m_isLine && (warmth > 0.0 || hasCursor)) {
        QColor ground = Look::color(Look::ControlGround);
        ground.setAlphaF(ground.alphaF() * (hasCursor ? 1.0 : warmth));
        painter.fillPath(rounded(rect(), Look::CornerCard), ground);
    }
    paintPicture(painter);
    paintTexts(painter);

    const double frame = hasCursor ? 1.0 : warmth;
    if (frame <= 0.0 || isDown())
        return;
    // Around the whole line, or around the picture of a card.
    const double line = Look::px(kFrame);
    const QRectF around =
        QRectF(m_isLine ? rect() : pictureRect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    QColor color = Look::color(hasCursor ? Look::AccentHover : Look::Accent);
    color.setAlphaF(m_isLine && !hasCursor ? 0.0 : frame);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, line));
    const double corner = Look::px(Look::CornerCard) - line / 2;
    painter.drawRoundedRect(around, corner, corner);
}

void RecentCard::paintPicture(QPainter &painter)
{
    const QRect rect = pictureRect();
    const QPainterPath shape = rounded(rect, m_isLine ? Look::CornerControl : Look::CornerCard);
    painter.save();
    painter.setOpacity(m_isMissing ? kMissingOpacity : 1.0);
    if (m_picture.isNull()) {
        paintPlaceholder(painter, rect);
    } else {
        if (m_scaled.isNull())
            m_scaled = covering(m_picture, rect.size(), devicePixelRatioF());
        // A brush and no clip, for smooth corners.
        QBrush brush(m_scaled);
        QTransform place = QTransform::fromTranslate(rect.x(), rect.y());
        place.scale(1.0 / m_scaled.devicePixelRatioF(), 1.0 / m_scaled.devicePixelRatioF());
        brush.setTransform(place);
        QPixmap plain = m_scaled;
        plain.setDevicePixelRatio(1.0);
        brush.setTexture(plain);
        painter.fillPath(shape, brush);
    }
    if (m_entry.seconds > 0 && !m_isLine)
        paintPosition(painter, rect);
    painter.restore();
    const double warmth = FocusRing::isOn(this) ? 1.0 : m_heat.value();
    if (warmth <= 0.0 || m_isMissing)
        return;
    painter.save();
    painter.setOpacity(warmth);
    QColor shade = Look::color(Look::Deep);
    shade.setAlphaF(kShade);
    painter.fillPath(shape, shade);
    paintPlayMark(painter, rect);
    painter.restore();
}

void RecentCard::paintPlaceholder(QPainter &painter, const QRect &rect) const
{
    QLinearGradient ground(rect.topLeft(), rect.bottomRight());
    ground.setColorAt(0.0, Look::color(Look::Raised));
    ground.setColorAt(1.0, Look::color(Look::Panel));
    painter.fillPath(rounded(rect, m_isLine ? Look::CornerControl : Look::CornerCard), ground);
    painter.strokePath(rounded(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5),
                               m_isLine ? Look::CornerControl : Look::CornerCard),
                       QPen(Look::color(Look::ControlGround), 1.0));
    const int icon = Look::px(m_isLine ? kLineIcon : kIcon);
    const QString type = m_isLine ? QString() : typeText();
    const int textHeight = type.isEmpty() ? 0 : Look::px(kSoftHeight);
    const int top = rect.top() + (rect.height() - icon - textHeight) / 2;
    const qreal ratio = devicePixelRatioF();
    QPixmap picture = TransportIcons::pixmap(iconOf(m_entry), qRound(icon * ratio), Look::color(Look::Mute));
    picture.setDevicePixelRatio(ratio);
    painter.drawPixmap(rect.left() + (rect.width() - icon) / 2, top, picture);
    if (type.isEmpty())
        return;
    QFont font = Look::font(kSoftPixels, QFont::DemiBold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, Look::px(1));
    painter.setFont(font);
    painter.setPen(Look::color(Look::Soft));
    painter.drawText(QRect(rect.left(), top + icon + Look::px(2), rect.width(), textHeight), Qt::AlignCenter,
                     type);
}

void RecentCard::paintPosition(QPainter &painter, const QRect &rect) const
{
    painter.setFont(Look::font(kSoftPixels, QFont::Medium));
    const QString time = FixedDigits::clock(m_entry.seconds);
    const QSize size(FixedDigits::width(painter.fontMetrics(), time) + 2 * Look::px(kChipPadding),
                     Look::px(kChipHeight));
    const QPoint corner =
        rect.bottomRight() + QPoint(1, 1) - QPoint(Look::px(kChipInset), Look::px(kChipInset));
    const QRect chip(corner - QPoint(size.width(), size.height()), size);
    painter.fillPath(rounded(chip, Look::CornerControl), Look::color(Look::Note));
    painter.setPen(Look::color(Look::Text));
    FixedDigits::draw(painter, chip, Qt::AlignHCenter, time);
}

void RecentCard::paintPlayMark(QPainter &painter, const QRect &rect) const
{
    const double side = Look::px(m_isLine ? kLinePlayMark : kPlayMark);
    const QPointF centre = QRectF(rect).center();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::color(isDown() ? Look::AccentHover : Look::Accent));
    painter.drawEllipse(centre, side / 2, side / 2);
    // Its weight in the middle and not its box.
    const double high = side * 0.36;
    QPainterPath mark;
    mark.moveTo(centre + QPointF(-high * 0.36, -high / 2));
    mark.lineTo(centre + QPointF(high * 0.56, 0));
    mark.lineTo(centre + QPointF(-high * 0.36, high / 2));
    mark.closeSubpath();
    const QColor dark = Look::color(Look::Deep);
    painter.setBrush(dark);
    painter.setPen(QPen(dark, side * 0.04, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(mark);
}

void RecentCard::paintTexts(QPainter &painter) const
{
    const QRect rect = textRect();
    const auto line = [&](const QFont &font, QRgb color, QRect place, QString text, Qt::TextElideMode mode) {
        painter.setFont(font);
        painter.setPen(Look::color(color));
        const QFontMetrics metrics = painter.fontMetrics();
        painter.drawText(place.left(), Look::baseline(place, metrics),
                         metrics.elidedText(text, mode, place.width()));
    };
    QRect place(rect.topLeft(), QSize(rect.width(), Look::px(kNameHeight)));
    line(Look::font(kNamePixels, QFont::DemiBold), m_isMissing ? Look::Mute : Look::Text, place, m_entry.name,
         Qt::ElideMiddle);
    place.translate(0, place.height());
    place.setHeight(Look::px(kSoftHeight));
    if (m_isLine && m_entry.seconds > 0 && !m_isMissing) {
        painter.setFont(Look::font(kSoftPixels));
        painter.setPen(Look::color(Look::Soft));
        const QString time = FixedDigits::clock(m_entry.seconds);
        FixedDigits::draw(painter, place, Qt::AlignRight, time);
        place.setWidth(place.width() - FixedDigits::width(painter.fontMetrics(), time)
                       - Look::px(kLineTextGap));
    }
    line(Look::font(kSoftPixels), m_isMissing ? Look::Mute : Look::Soft, place, folderText(),
         Qt::ElideMiddle);
}
