#include "FadeWatch.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

struct Freed {
    void operator()(void *memory) const { std::free(memory); }
};
template<typename T>
using Reply = std::unique_ptr<T, Freed>;

// Steps further apart belong to two fades: bars rest for seconds between them.
constexpr std::uint32_t PauseMs = 1000;
// Of steps that come together only one can be seen.
constexpr std::uint32_t TogetherMs = 4;

} // namespace

FadeWatch::FadeWatch(pid_t process)
    : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection))
        return;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    m_owner = atom("_NET_WM_PID");
    m_opacity = atom("_NET_WM_WINDOW_OPACITY");
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &mask);
    for (const std::uint32_t window : valuesOf(m_root, atom("_NET_CLIENT_LIST"))) {
        const std::vector<std::uint32_t> owner = valuesOf(window, m_owner);
        if (!owner.empty() && owner.front() == std::uint32_t(process))
            m_program = programOf(window);
    }
    watchWindows();
}

FadeWatch::~FadeWatch()
{
    xcb_disconnect(m_connection);
}

int FadeWatch::descriptor() const
{
    return xcb_get_file_descriptor(m_connection);
}

void FadeWatch::read()
{
    bool isTreeChanged = false;
    while (xcb_generic_event_t *taken = xcb_poll_for_event(m_connection)) {
        const Reply<xcb_generic_event_t> event(taken);
        const int type = event->response_type & 0x7f;
        if (type != XCB_PROPERTY_NOTIFY) {
            isTreeChanged = true;
            // What was set before the window came is no step that anybody could see.
            if (type == XCB_MAP_NOTIFY)
                m_lastStep.erase(reinterpret_cast<const xcb_map_notify_event_t *>(taken)->window);
            continue;
        }
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(taken);
        if (change->atom != m_opacity)
            continue;
        const auto last = m_lastStep.find(change->window);
        const std::uint32_t since = last != m_lastStep.end() ? change->time - last->second : PauseMs + 1;
        if (since < TogetherMs)
            continue;
        if (since <= PauseMs)
            m_intervals.push_back(since);
        else
            ++m_fades;
        m_lastStep[change->window] = change->time;
    }
    if (isTreeChanged)
        watchWindows();
}

// A window that is shown stands in a frame of the window manager's, one that is not may stand on the screen
// itself.
void FadeWatch::watchWindows()
{
    if (m_program == 0)
        return;
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    for (const std::uint32_t frame : childrenOf(m_root)) {
        std::vector<std::uint32_t> windows = childrenOf(frame);
        windows.push_back(frame);
        for (const std::uint32_t window : windows) {
            if (programOf(window) == m_program)
                xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &mask);
        }
    }
    xcb_flush(m_connection);
}

std::vector<std::uint32_t> FadeWatch::childrenOf(std::uint32_t window) const
{
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    if (!tree)
        return {};
    const xcb_window_t *first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

std::uint32_t FadeWatch::programOf(std::uint32_t window) const
{
    return window & ~xcb_get_setup(m_connection)->resource_id_mask;
}

std::vector<std::uint32_t> FadeWatch::valuesOf(std::uint32_t window, std::uint32_t property) const
{
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, window, property, XCB_ATOM_ANY, 0, 1024), nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *first = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::uint32_t FadeWatch::atom(const char *name) const
{
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, std::uint16_t(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : std::uint32_t(XCB_ATOM_NONE);
}
