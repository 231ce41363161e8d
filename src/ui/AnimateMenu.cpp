#include "AnimateMenu.h"

#include "LookTokens.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>

namespace {

const QString AnimateKey = QStringLiteral("animate");

// The curves are fixed by their numbers in QEasingCurve::Type.
constexpr auto OpenCurve = static_cast<QEasingCurve::Type>(38);
constexpr auto CloseCurve = static_cast<QEasingCurve::Type>(22);

// Design pixels.
constexpr int Width = 240;
constexpr int TopMargin = 8;
constexpr int SideMargin = 8;
constexpr int RowHeight = 40;
constexpr int LineHeight = 17;
constexpr int TextIndent = 16;

int heightOf(const AnimateMenu::Row &row)
{
    return Look::px(row.kind == AnimateMenu::Kind::Line ? LineHeight : RowHeight);
}

} // namespace

AnimateMenu::AnimateMenu(QWidget *parent)
    : QWidget(parent)
    , m_rows(mainRows())
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setFont(Look::font(13));
    setAccessibleName(tr("Menu"));
    hide();
}

AnimateMenu::~AnimateMenu()
{
    // Before the widget goes: the animation sets its property.
    deleteAll();
}

QVector<AnimateMenu::Row> AnimateMenu::mainRows()
{
    const Row line{Kind::Line, {}, {}, false};
    return {
        {Kind::Dialog, PopDlgTyle::OpenMedia, tr("Open Media..."), true},
        line,
        {Kind::Dialog, PopDlgTyle::VideoControl, tr("Video Control..."), true},
        {Kind::Dialog, PopDlgTyle::ColorAdjust, tr("Color Adjust..."), true},
        {Kind::Dialog, PopDlgTyle::LoadSubtitle, tr("Load Subtitle..."), true},
        {Kind::Dialog, PopDlgTyle::SubtitleSetting, tr("Subtitle Setting..."), true},
        line,
        {Kind::Dialog, PopDlgTyle::Setting, tr("Settings..."), true},
        {Kind::CheckVersion, {}, tr("Check for Updates"), true},
        {Kind::Dialog, PopDlgTyle::Feedback, tr("Feedback"), true},
        {Kind::Dialog, PopDlgTyle::Forum, tr("Forum"), true},
        {Kind::Dialog, PopDlgTyle::About, tr("About"), true},
    };
}

void AnimateMenu::setRows(const QVector<Row> &rows)
{
    m_rows = rows;
    m_hovered = m_pressed = NoRow;
    updateGeometry();
    update();
}

void AnimateMenu::setOpenGeometry(const QRect &geometry, Qt::Edge edge)
{
    m_openRect = geometry;
    m_edge = edge;
    if (m_isOpen && !(animate(AnimateKey) && animate(AnimateKey)->state() == QAbstractAnimation::Running))
        setGeometryF(geometry);
}

QRect AnimateMenu::openRect() const
{
    if (m_openRect.isValid())
        return m_openRect;
    const QSize size = sizeHint();
    return {QPoint(0, 0), QSize(size.width(), parentWidget() ? parentWidget()->height() : size.height())};
}

QRectF AnimateMenu::closedRect() const
{
    const QRectF place = openRect();
    const double left = m_edge == Qt::RightEdge ? place.x() + place.width() : place.x();
    return {left, place.y(), 0.0, place.height()};
}

QSize AnimateMenu::sizeHint() const
{
    int height = 2 * Look::px(TopMargin);
    for (const Row &row : m_rows)
        height += heightOf(row);
    return {Look::px(Width), height};
}

void AnimateMenu::setColLineColor(const QColor &color)
{
    m_lineColor = color;
    update();
}

void AnimateMenu::setGeometryF(const QRectF &geometry)
{
    m_geometry = geometry;
    setGeometry(geometry.toRect());
    update();
}

void AnimateMenu::slideIn()
{
    if (m_isOpen)
        return;
    m_isOpen = true;
    if (!isVisible()) {
        show();
        raise();
    }
    setFocus(Qt::PopupFocusReason);
    runAnimate(AnimateKey, true);
}

void AnimateMenu::slideOut()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_pressed = NoRow;
    setHovered(NoRow);
    runAnimate(AnimateKey, false);
}

void AnimateMenu::initAnimate(QString name)
{
    if (hasAnimate(name))
        return;
    auto slide = QSharedPointer<QPropertyAnimation>::create(this, QByteArrayLiteral("geometryF"));
    connect(slide.data(), &QAbstractAnimation::finished, this, &AnimateMenu::slot_animateFinished);
    setAnimate(name, slide);
}

void AnimateMenu::startAnimate(QString name, bool forward)
{
    auto *slide = static_cast<QPropertyAnimation *>(animate(name));
    if (!slide)
        return;
    slide->stop();
    slide->setStartValue(m_geometry);
    slide->setEndValue(forward ? QRectF(openRect()) : closedRect());
    slide->setEasingCurve(forward ? OpenCurve : CloseCurve);
    slide->setDuration(forward ? OpenMs : CloseMs);
    slide->start();
}

void AnimateMenu::slot_animateFinished()
{
    if (!m_isOpen)
        hide();
}

void AnimateMenu::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        setGeometryF(closedRect());
    QWidget::showEvent(event);
}

// A popup is also closed from outside.
void AnimateMenu::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    m_isOpen = false;
    m_pressed = NoRow;
    stopAll();
}

QRect AnimateMenu::rowRect(int row) const
{
    if (row < 0 || row >= m_rows.size())
        return {};
    int top = Look::px(TopMargin);
    for (int i = 0; i < row; ++i)
        top += heightOf(m_rows.at(i));
    // The lines keep the width of the open panel: what is uncovered moves with the free edge.
    const int fullWidth = openRect().width();
    const int left = m_edge == Qt::RightEdge ? 0 : width() - fullWidth;
    return {left + Look::px(SideMargin), top, fullWidth - 2 * Look::px(SideMargin), heightOf(m_rows.at(row))};
}

int AnimateMenu::rowAt(const QPoint &point) const
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row).kind != Kind::Line && m_rows.at(row).isEnabled && rowRect(row).contains(point))
            return row;
    }
    return NoRow;
}

void AnimateMenu::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Look::color(Look::Panel));
    const int edge = m_edge == Qt::RightEdge ? 0 : width() - Look::px(1);
    painter.fillRect(QRect(edge, 0, Look::px(1), height()), m_lineColor);
    painter.setFont(font());
    for (int row = 0; row < m_rows.size(); ++row) {
        const Row &line = m_rows.at(row);
        const QRect place = rowRect(row);
        if (line.kind == Kind::Line) {
            painter.fillRect(QRect(place.left() + Look::px(TextIndent), place.center().y(),
                                   place.width() - 2 * Look::px(TextIndent), Look::px(1)),
                             m_lineColor);
            continue;
        }
        const bool isHovered = row == m_hovered;
        const bool isPressed = row == m_pressed && isHovered;
        if (isHovered || isPressed) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Look::color(isPressed ? Look::Line : Look::Raised));
            painter.drawRoundedRect(place, Look::px(Look::CornerControl), Look::px(Look::CornerControl));
            painter.setBrush(Look::color(Look::Accent));
            painter.drawRoundedRect(QRectF(place.left(), place.top() + Look::px(10), Look::px(3),
                                           place.height() - 2 * Look::px(10)),
                                    Look::px(3) / 2.0, Look::px(3) / 2.0);
        }
        painter.setPen(Look::color(!line.isEnabled ? Look::Mute
                                   : isHovered     ? Look::ControlBright
                                                   : Look::Text));
        painter.drawText(place.adjusted(Look::px(TextIndent), 0, -Look::px(TextIndent), 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(line.text, Qt::ElideRight,
                                                          place.width() - 2 * Look::px(TextIndent)));
    }
}

void AnimateMenu::setHovered(int row)
{
    if (row == m_hovered)
        return;
    m_hovered = row;
    setAccessibleDescription(row == NoRow ? QString() : m_rows.at(row).text);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
    update();
}

void AnimateMenu::stepHovered(int direction)
{
    int row = m_hovered == NoRow && direction < 0 ? 0 : m_hovered;
    for (int tried = 0; tried < m_rows.size(); ++tried) {
        row = (row + direction + m_rows.size()) % m_rows.size();
        if (m_rows.at(row).kind != Kind::Line && m_rows.at(row).isEnabled) {
            setHovered(row);
            return;
        }
    }
}

void AnimateMenu::choose(int row)
{
    const Row chosen = m_rows.at(row);
    // What is chosen may be a dialog, and a popup would keep mouse and keyboard until it has slid out.
    if (windowType() == Qt::Popup)
        hide();
    else
        slideOut();
    if (chosen.kind == Kind::CheckVersion)
        emit sig_checkVersion();
    else
        emit sig_showDialog(chosen.dialog);
}

void AnimateMenu::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = rowAt(event->pos());
    setHovered(m_pressed);
    update();
}

void AnimateMenu::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(rowAt(event->pos()));
}

void AnimateMenu::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int pressed = m_pressed;
    m_pressed = NoRow;
    update();
    if (m_isOpen && pressed != NoRow && rowAt(event->pos()) == pressed)
        choose(pressed);
}

void AnimateMenu::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    setHovered(NoRow);
}

void AnimateMenu::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        stepHovered(1);
        break;
    case Qt::Key_Up:
        stepHovered(-1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_isOpen && m_hovered != NoRow)
            choose(m_hovered);
        break;
    case Qt::Key_Escape:
        slideOut();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
