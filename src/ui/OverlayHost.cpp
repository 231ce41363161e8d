#include "OverlayHost.h"

#include "LookTokens.h"
#include "OverlayWidget.h"

#include "platform/Compositing.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

constexpr Qt::WindowFlags kOverlayFlags =
    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint;

QRegion regionOf(const QPainterPath &path)
{
    QRegion region;
    const QList<QPolygonF> polygons = path.toFillPolygons();
    for (const QPolygonF &polygon : polygons)
        region += QRegion(polygon.toPolygon(), Qt::WindingFill);
    return region;
}

} // namespace

OverlayHost::OverlayHost(QWidget *mainWindow, QWidget *area)
    : QObject(mainWindow)
    , m_mainWindow(mainWindow)
    , m_query(&Compositing::isActive)
{
    readCompositing();
    mainWindow->installEventFilter(this);
    setArea(area);
    followScreen();
}

OverlayHost::~OverlayHost() = default;

void OverlayHost::setArea(QWidget *area)
{
    if (m_area && m_area != m_mainWindow)
        m_area->removeEventFilter(this);
    m_area = area != nullptr ? area : m_mainWindow.data();
    if (m_area != m_mainWindow)
        m_area->installEventFilter(this);
    applyAll();
}

void OverlayHost::setCompositingQuery(CompositingQuery query)
{
    m_query = std::move(query);
    readCompositing();
}

void OverlayHost::add(QWidget *overlay, const OverlayRule &rule)
{
    if (find(overlay) != nullptr)
        return;
    overlay->setAttribute(Qt::WA_TranslucentBackground);
    overlay->setAttribute(Qt::WA_ShowWithoutActivating);
    overlay->setParent(m_mainWindow, kOverlayFlags);
    overlay->installEventFilter(this);

    auto entry = std::make_unique<Entry>();
    Entry *added = entry.get();
    added->widget = overlay;
    added->rule = rule;
    added->fade = std::make_unique<QVariantAnimation>();
    added->fade->setEasingCurve(QEasingCurve::OutCubic);
    connect(added->fade.get(), &QVariantAnimation::valueChanged, overlay, [overlay](const QVariant &opacity) {
        overlay->setWindowOpacity(opacity.toDouble());
        Compositing::flush();
    });
    connect(added->fade.get(), &QVariantAnimation::finished, this, [this, added] { finishFade(*added); });
    connect(overlay, &QObject::destroyed, this, &OverlayHost::forget);
    const auto higher = std::find_if(m_entries.begin(), m_entries.end(),
                                     [&](const auto &other) { return other->rule.level > rule.level; });
    m_entries.insert(higher, std::move(entry));

    if (auto *own = qobject_cast<OverlayWidget *>(overlay)) {
        own->setHosted(true);
        own->setCompact(!m_blending);
        connect(own, &OverlayWidget::sig_wantedChanged, this,
                [this, own](bool wanted) { wanted ? show(own) : hide(own); });
        connect(own, &OverlayWidget::sig_shapeChanged, this, [this, own] {
            if (Entry *changed = find(own))
                place(*changed);
        });
        if (own->isWanted())
            show(own);
    }
}

void OverlayHost::setRule(QWidget *overlay, const OverlayRule &rule)
{
    Entry *entry = find(overlay);
    if (entry == nullptr)
        return;
    entry->rule = rule;
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const auto &a, const auto &b) { return a->rule.level < b->rule.level; });
    place(*entry);
    restack();
}

void OverlayHost::show(QWidget *overlay)
{
    Entry *entry = find(overlay);
    if (entry == nullptr)
        return;
    entry->wanted = true;
    readCompositing();
    apply(*entry, true);
}

void OverlayHost::hide(QWidget *overlay)
{
    Entry *entry = find(overlay);
    if (entry == nullptr)
        return;
    entry->wanted = false;
    apply(*entry, true);
}

void OverlayHost::hideAll()
{
    for (const auto &entry : m_entries) {
        entry->wanted = false;
        // An overlay that shows itself later must find that it is hidden now.
        if (auto *own = qobject_cast<OverlayWidget *>(entry->widget.data()))
            own->disappear();
        apply(*entry, false);
    }
}

bool OverlayHost::isShown(const QWidget *overlay) const
{
    const Entry *entry = find(overlay);
    return entry != nullptr && entry->wanted;
}

bool OverlayHost::covers(const QPoint &globalPosition) const
{
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const auto &entry) {
        const QWidget *widget = entry->widget;
        return widget != nullptr && entry->wanted && widget->isVisible()
               && widget->geometry().contains(globalPosition);
    });
}

QRect OverlayHost::areaRect() const
{
    if (!m_area)
        return {};
    return {m_area->mapToGlobal(QPoint(0, 0)), m_area->size()};
}

void OverlayHost::updatePlaces()
{
    for (const auto &entry : m_entries)
        place(*entry);
}

bool OverlayHost::isAreaVisible() const
{
    return m_mainWindow && m_mainWindow->isVisible() && !m_mainWindow->isMinimized() && m_area
           && m_area->isVisible();
}

OverlayHost::Entry *OverlayHost::find(const QObject *overlay)
{
    const auto hit = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&](const auto &entry) { return entry->widget == overlay; });
    return hit != m_entries.end() ? hit->get() : nullptr;
}

const OverlayHost::Entry *OverlayHost::find(const QObject *overlay) const
{
    return const_cast<OverlayHost *>(this)->find(overlay);
}

void OverlayHost::forget(QObject *)
{
    // By now the pointer of the entry is null.
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                   [](const auto &entry) { return entry->widget.isNull(); }),
                    m_entries.end());
}

void OverlayHost::apply(Entry &entry, bool animated)
{
    if (entry.wanted && isAreaVisible())
        reveal(entry, animated);
    else
        conceal(entry, animated && isAreaVisible());
}

void OverlayHost::applyAll()
{
    for (const auto &entry : m_entries)
        apply(*entry, false);
}

void OverlayHost::place(Entry &entry)
{
    QWidget *widget = entry.widget;
    if (widget == nullptr || !m_area)
        return;
    if (entry.rule.anchor != OverlayRule::Anchor::Free) {
        const QSize hint = widget->sizeHint();
        const QRect place = entry.rule.placed(areaRect(), hint.isValid() ? hint : widget->size(),
                                              DisplayScale::instance()->ratioWidth());
        if (widget->geometry() != place)
            widget->setGeometry(place);
    }
    cut(entry);
}

void OverlayHost::cut(Entry &entry)
{
    QWidget *widget = entry.widget;
    const auto *own = qobject_cast<const OverlayWidget *>(widget);
    if (own == nullptr)
        return;
    if (m_blending) {
        if (!widget->mask().isEmpty())
            widget->clearMask();
        return;
    }
    const QRegion shape = regionOf(own->opaqueShape());
    if (widget->mask() != shape)
        widget->setMask(shape);
}

void OverlayHost::reveal(Entry &entry, bool animated)
{
    QWidget *widget = entry.widget;
    if (widget == nullptr)
        return;
    place(entry);
    const bool wasVisible = widget->isVisible();
    const bool fades = animated && m_blending;
    if (!wasVisible) {
        widget->setWindowOpacity(fades ? 0.0 : 1.0);
        widget->show();
        restack();
    }
    entry.fade->stop();
    if (!fades) {
        widget->setWindowOpacity(1.0);
        return;
    }
    if (qFuzzyCompare(widget->windowOpacity(), 1.0))
        return;
    entry.fade->setStartValue(widget->windowOpacity());
    entry.fade->setEndValue(1.0);
    entry.fade->setDuration(Look::FadeInMs);
    entry.fade->start();
}

void OverlayHost::conceal(Entry &entry, bool animated)
{
    QWidget *widget = entry.widget;
    entry.fade->stop();
    if (widget == nullptr || !widget->isVisible())
        return;
    if (!animated || !m_blending) {
        widget->hide();
        return;
    }
    entry.fade->setStartValue(widget->windowOpacity());
    entry.fade->setEndValue(0.0);
    entry.fade->setDuration(Look::FadeOutMs);
    entry.fade->start();
}

void OverlayHost::finishFade(Entry &entry)
{
    if (entry.widget && !entry.wanted)
        entry.widget->hide();
}

void OverlayHost::restack()
{
    for (const auto &entry : m_entries) {
        if (entry->widget && entry->widget->isVisible())
            entry->widget->raise();
    }
}

void OverlayHost::readCompositing()
{
    const bool blending = !m_query || m_query();
    if (blending == m_blending)
        return;
    m_blending = blending;
    for (const auto &entry : m_entries) {
        if (auto *own = qobject_cast<OverlayWidget *>(entry->widget.data()))
            own->setCompact(!m_blending);
        place(*entry);
        apply(*entry, false);
    }
}

void OverlayHost::followScreen()
{
    QWindow *window = m_mainWindow ? m_mainWindow->windowHandle() : nullptr;
    if (window == nullptr)
        return;
    disconnect(m_screenConnection);
    m_screenConnection = connect(window, &QWindow::screenChanged, this, &OverlayHost::updatePlaces);
}

bool OverlayHost::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_mainWindow) {
        onMainWindowEvent(event);
    } else if (watched == m_area) {
        const QEvent::Type type = event->type();
        if (type == QEvent::Move || type == QEvent::Resize)
            updatePlaces();
        else if (type == QEvent::Show || type == QEvent::Hide)
            applyAll();
    } else {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            return passToPicture(static_cast<QWidget *>(watched), static_cast<QMouseEvent *>(event));
        case QEvent::ContextMenu: {
            auto *menu = static_cast<QContextMenuEvent *>(event);
            const auto *own = qobject_cast<OverlayWidget *>(watched);
            if (own == nullptr || own->takesMouseAt(menu->pos()) || !m_area)
                break;
            QContextMenuEvent passed(menu->reason(), m_area->mapFromGlobal(menu->globalPos()),
                                     menu->globalPos(), menu->modifiers());
            QCoreApplication::sendEvent(m_area, &passed);
            return true;
        }
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

void OverlayHost::onMainWindowEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        updatePlaces();
        break;
    case QEvent::WindowActivate:
        readCompositing();
        restack();
        break;
    case QEvent::ZOrderChange:
        restack();
        break;
    case QEvent::Show:
    case QEvent::WinIdChange:
        followScreen();
        applyAll();
        break;
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        applyAll();
        break;
    default:
        break;
    }
}

bool OverlayHost::passToPicture(QWidget *overlay, QMouseEvent *event)
{
    const auto *own = qobject_cast<OverlayWidget *>(overlay);
    if (own == nullptr || !m_area)
        return false;
    // A press decides to whom the moves and the release that follow belong. Moves without a button stay:
    // whoever counts them has seen them once already.
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (isPress)
        m_mouseGrabber = own->takesMouseAt(event->pos()) ? nullptr : overlay;
    if (m_mouseGrabber != overlay || (event->type() == QEvent::MouseMove && event->buttons() == Qt::NoButton))
        return false;
    QMouseEvent passed(event->type(), m_area->mapFromGlobal(event->globalPos()), event->windowPos(),
                       event->screenPos(), event->button(), event->buttons(), event->modifiers(),
                       event->source());
    if (event->type() == QEvent::MouseButtonRelease && event->buttons() == Qt::NoButton)
        m_mouseGrabber = nullptr;
    QCoreApplication::sendEvent(m_area, &passed);
    return true;
}
