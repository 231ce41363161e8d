#include "Screen.h"

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <vector>

namespace {

struct Freed {
    void operator()(void *memory) const { std::free(memory); }
};
template<typename T>
using Reply = std::unique_ptr<T, Freed>;

constexpr int GridColumns = 12;
constexpr int GridRows = 9;
// Scaling and the conversion from YUV move a colour a little.
constexpr int Tolerance = 14;

using Clock = std::chrono::steady_clock;

bool matches(const std::uint8_t *bgrx, const Screen::Colour &colour)
{
    return std::abs(bgrx[2] - colour.red) <= Tolerance && std::abs(bgrx[1] - colour.green) <= Tolerance
           && std::abs(bgrx[0] - colour.blue) <= Tolerance;
}

} // namespace

Screen::Screen()
{
    int number = 0;
    m_connection = xcb_connect(nullptr, &number);
    if (xcb_connection_has_error(m_connection))
        return;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    m_root = screens.data->root;
    m_width = screens.data->width_in_pixels;
    m_height = screens.data->height_in_pixels;

    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(m_connection, &xcb_damage_id);
    if (!extension || !extension->present || screens.data->root_depth < 24)
        return;
    // The extension is only usable once a version was asked for.
    const Reply<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
    if (!version)
        return;
    m_damage = xcb_generate_id(m_connection);
    xcb_damage_create(m_connection, m_damage, m_root, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_flush(m_connection);
    m_valid = true;
}

Screen::~Screen()
{
    xcb_disconnect(m_connection);
}

bool Screen::waitForColour(const Colour &colour, double seconds)
{
    return waitUntil(colour, true, seconds);
}

bool Screen::waitForNoColour(const Colour &colour, double seconds)
{
    return waitUntil(colour, false, seconds);
}

bool Screen::waitUntil(const Colour &colour, bool shown, double seconds)
{
    const auto until =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    for (;;) {
        // Rearmed before the look, so that what is drawn during it is told again.
        xcb_damage_subtract(m_connection, m_damage, XCB_NONE, XCB_NONE);
        if (showsColour(colour) == shown)
            return true;
        for (bool drawn = false; !drawn;) {
            while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
                std::free(event);
                drawn = true;
            }
            if (drawn)
                break;
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(until - Clock::now()).count();
            pollfd ready{xcb_get_file_descriptor(m_connection), POLLIN, 0};
            if (left <= 0 || poll(&ready, 1, int(left)) <= 0 || xcb_connection_has_error(m_connection))
                return showsColour(colour) == shown;
        }
    }
}

bool Screen::showsColour(const Colour &colour) const
{
    std::vector<xcb_get_image_cookie_t> asked;
    for (int row = 1; row <= GridRows; ++row) {
        for (int column = 1; column <= GridColumns; ++column) {
            asked.push_back(xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root,
                                          std::int16_t(m_width * column / (GridColumns + 1)),
                                          std::int16_t(m_height * row / (GridRows + 1)), 1, 1, ~0u));
        }
    }
    bool found = false;
    for (const xcb_get_image_cookie_t &cookie : asked) {
        const Reply<xcb_get_image_reply_t> pixel(xcb_get_image_reply(m_connection, cookie, nullptr));
        found = found || (pixel && matches(xcb_get_image_data(pixel.get()), colour));
    }
    return found;
}

std::optional<int> Screen::widthOfColour(const Colour &colour) const
{
    int longest = 0;
    for (int row = 1; row <= GridRows; ++row) {
        const Reply<xcb_get_image_reply_t> line(xcb_get_image_reply(
            m_connection,
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, 0,
                          std::int16_t(m_height * row / (GridRows + 1)), std::uint16_t(m_width), 1, ~0u),
            nullptr));
        if (!line)
            continue;
        const std::uint8_t *pixels = xcb_get_image_data(line.get());
        int run = 0;
        for (int x = 0; x < m_width; ++x) {
            run = matches(pixels + 4 * x, colour) ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    }
    return longest > 0 ? std::optional<int>(longest) : std::nullopt;
}

void Screen::closeWindowsOf(pid_t process)
{
    const auto values = [this](std::uint32_t window, std::uint32_t property) {
        const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            m_connection, xcb_get_property(m_connection, 0, window, property, XCB_ATOM_ANY, 0, 1024),
            nullptr));
        if (!reply || reply->format != 32)
            return std::vector<std::uint32_t>();
        const auto *first = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
        return std::vector<std::uint32_t>(first, first + reply->value_len);
    };
    for (const std::uint32_t window : values(m_root, atom("_NET_CLIENT_LIST"))) {
        const std::vector<std::uint32_t> owner = values(window, atom("_NET_WM_PID"));
        // What belongs to another window goes with it.
        if (owner.empty() || owner.front() != std::uint32_t(process)
            || !values(window, XCB_ATOM_WM_TRANSIENT_FOR).empty())
            continue;
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atom("_NET_CLOSE_WINDOW");
        message.data.data32[1] = 2; // asked for by a pager, that is, by the user
        xcb_send_event(m_connection, 0, m_root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&message));
    }
    xcb_flush(m_connection);
}

std::uint32_t Screen::openWindow(int width, int height)
{
    const std::uint32_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, std::uint16_t(width),
                      std::uint16_t(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0,
                      nullptr);
    xcb_map_window(m_connection, window);
    xcb_flush(m_connection);
    return window;
}

void Screen::destroyWindow(std::uint32_t window)
{
    xcb_destroy_window(m_connection, window);
    xcb_flush(m_connection);
}

std::uint32_t Screen::atom(const char *name) const
{
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, std::uint16_t(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : std::uint32_t(XCB_ATOM_NONE);
}
