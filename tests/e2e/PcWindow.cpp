#include "PcWindow.h"

#include "ProgramRun.h"

#include <QProcess>
#include <QVector>

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>

namespace {

struct Freed {
    void operator()(void *memory) const { std::free(memory); }
};
template<typename T>
using Reply = std::unique_ptr<T, Freed>;

constexpr QSize kBarAtLeast{400, 100};
constexpr int kBarAtMost = 200;
constexpr int kSteps = 20;

QString xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished(10000);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QStringList at(const QPoint &point)
{
    return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
}

QVector<xcb_window_t> childrenOf(xcb_connection_t *connection, xcb_window_t window)
{
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    QVector<xcb_window_t> children;
    if (tree) {
        const xcb_window_t *first = xcb_query_tree_children(tree.get());
        std::copy_n(first, xcb_query_tree_children_length(tree.get()), std::back_inserter(children));
    }
    return children;
}

QRect rectOf(xcb_connection_t *connection, xcb_window_t window)
{
    const Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!size)
        return {};
    const Reply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, size->root, 0, 0), nullptr));
    return place ? QRect(place->dst_x, place->dst_y, size->width, size->height) : QRect();
}

} // namespace

PcWindow::PcWindow(qint64 processId)
    : m_process(processId)
    , m_connection(xcb_connect(nullptr, nullptr))
{
    // The extension answers only who has asked for its version.
    const Reply<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(m_connection, xcb_xfixes_query_version(m_connection, 4, 0), nullptr));
}

PcWindow::~PcWindow()
{
    xcb_disconnect(m_connection);
}

bool PcWindow::waitForTitle(const QString &title, int timeoutMs)
{
    m_id = Desktop::waitForWindow(m_process, title, timeoutMs);
    return m_id != 0;
}

QRect PcWindow::rect() const
{
    return rectOf(m_connection, xcb_window_t(m_id));
}

// The window manager puts a window into a frame of its own; the numbers of one program's windows begin alike.
QList<QRect> PcWindow::overlays() const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection);
    const xcb_window_t root = xcb_setup_roots_iterator(setup).data->root;
    const QRect main = rect();
    QList<QRect> rects;
    for (const xcb_window_t frame : childrenOf(m_connection, root)) {
        QVector<xcb_window_t> windows = childrenOf(m_connection, frame);
        windows << frame;
        for (const xcb_window_t window : qAsConst(windows)) {
            const bool isOurs = ((window ^ xcb_window_t(m_id)) & ~setup->resource_id_mask) == 0;
            if (!isOurs || window == xcb_window_t(m_id))
                continue;
            const Reply<xcb_get_window_attributes_reply_t> state(xcb_get_window_attributes_reply(
                m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
            if (state && state->map_state == XCB_MAP_STATE_VIEWABLE
                && state->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT) {
                // Shadow and borders stand around it.
                const QRect place = rectOf(m_connection, window);
                if (main.contains(place))
                    rects << place;
            }
        }
    }
    return rects;
}

QRect PcWindow::overlay(const QSize &smallest, const QSize &largest) const
{
    const QList<QRect> all = overlays();
    const auto found = std::find_if(all.begin(), all.end(), [&](const QRect &one) {
        return one.width() >= smallest.width() && one.height() >= smallest.height()
               && one.width() <= largest.width() && one.height() <= largest.height();
    });
    return found != all.end() ? *found : QRect();
}

// Along the lower edge, as wide as the window.
QRect PcWindow::bar() const
{
    const QRect window = rect();
    const QList<QRect> all = overlays();
    const auto found = std::find_if(all.begin(), all.end(), [&](const QRect &one) {
        return one.width() == window.width() && one.bottom() == window.bottom()
               && one.width() >= kBarAtLeast.width() && one.height() >= kBarAtLeast.height()
               && one.height() <= kBarAtMost;
    });
    return found != all.end() ? *found : QRect();
}

void PcWindow::moveTo(const QPoint &point) const
{
    // A hand moves through points on its way; the program takes a few of them for a move.
    QStringList way;
    for (int step = kSteps; step >= 0; --step)
        way << at(point - step * QPoint(3, 2)) << QStringList{"sleep", "0.01"};
    xdotool(way);
}

void PcWindow::click(const QPoint &point) const
{
    xdotool(at(point) + QStringList{"click", "1"});
}

void PcWindow::rightClick(const QPoint &point) const
{
    xdotool(at(point) + QStringList{"click", "3"});
}

void PcWindow::doubleClick(const QPoint &point) const
{
    xdotool(at(point) + QStringList{"click", "--repeat", "2", "--delay", "60", "1"});
}

void PcWindow::drag(const QPoint &from, const QPoint &to) const
{
    const QPoint half = (from + to) / 2;
    xdotool(at(from) + QStringList{"mousedown", "1"} + at(half) + at(to) + QStringList{"mouseup", "1"});
}

void PcWindow::wheel(const QPoint &point, bool up) const
{
    xdotool(at(point) + QStringList{"click", up ? "4" : "5"});
}

void PcWindow::key(const QString &name) const
{
    Desktop::sendKey(m_id, name);
}

void PcWindow::type(const QString &text) const
{
    xdotool({"type", "--delay", "2", text});
}

bool PcWindow::isPointerShown() const
{
    const Reply<xcb_xfixes_get_cursor_image_reply_t> image(
        xcb_xfixes_get_cursor_image_reply(m_connection, xcb_xfixes_get_cursor_image(m_connection), nullptr));
    if (!image)
        return false;
    const std::uint32_t *pixels = xcb_xfixes_get_cursor_image_cursor_image(image.get());
    const int count = xcb_xfixes_get_cursor_image_cursor_image_length(image.get());
    return std::any_of(pixels, pixels + count, [](std::uint32_t pixel) { return (pixel >> 24) != 0; });
}
