#include "Screen.h"

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <unordered_map>
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
// Rows of a window that are looked at, and the part of their pixels that must differ from its commonest
// colour.
constexpr int PaintedRows = 24;
constexpr double PaintedShare = 0.005;

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
    return waitUntil([&] { return showsColour(colour); }, seconds);
}

bool Screen::waitForNoColour(const Colour &colour, double seconds)
{
    return waitUntil([&] { return !showsColour(colour); }, seconds);
}

bool Screen::waitForPaintedWindow(pid_t process, double seconds)
{
    return waitUntil(
        [&] {
            const std::vector<std::uint32_t> windows = mainWindowsOf(process);
            return std::any_of(windows.begin(), windows.end(),
                               [this](std::uint32_t window) { return showsPainted(window); });
        },
        seconds);
}

bool Screen::hasWindow(pid_t process) const
{
    return !mainWindowsOf(process).empty();
}

bool Screen::waitUntil(const std::function<bool()> &isTrue, double seconds)
{
    const auto until =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    for (;;) {
        if (isTrue())
            return true;
        const double left = std::chrono::duration<double>(until - Clock::now()).count();
        if (left <= 0 || !waitForDrawing(left))
            return isTrue();
    }
}

bool Screen::waitForDrawing(double seconds, int otherDescriptor)
{
    pollfd ready[] = {{xcb_get_file_descriptor(m_connection), POLLIN, 0}, {otherDescriptor, POLLIN, 0}};
    const auto until =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    for (bool drawn = false;;) {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
            std::free(event);
            drawn = true;
        }
        if (drawn) {
            // Rearmed before the look that follows, so that what is drawn during it is told again.
            xcb_damage_subtract(m_connection, m_damage, XCB_NONE, XCB_NONE);
            xcb_flush(m_connection);
            return true;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(until - Clock::now()).count();
        if (left <= 0 || poll(ready, 2, int(left)) <= 0 || xcb_connection_has_error(m_connection))
            return false;
        if (ready[1].revents != 0)
            return true;
    }
}

// A window that is there and still of one colour shows nothing. Rows all over it are looked at on the screen
// itself, where what covers it counts as well.
bool Screen::showsPainted(std::uint32_t window) const
{
    const Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    const Reply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, m_root, 0, 0), nullptr));
    const Reply<xcb_get_window_attributes_reply_t> state(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    if (!size || !place || !state || state->map_state != XCB_MAP_STATE_VIEWABLE)
        return false;
    const int left = std::max(0, int(place->dst_x));
    const int right = std::min(m_width, place->dst_x + size->width);
    if (right <= left)
        return false;
    std::vector<xcb_get_image_cookie_t> asked;
    for (int row = 1; row <= PaintedRows; ++row) {
        const int y = place->dst_y + size->height * row / (PaintedRows + 1);
        if (y >= 0 && y < m_height) {
            asked.push_back(xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, std::int16_t(left),
                                          std::int16_t(y), std::uint16_t(right - left), 1, ~0u));
        }
    }
    std::unordered_map<std::uint32_t, int> counts;
    int all = 0;
    for (const xcb_get_image_cookie_t &cookie : asked) {
        const Reply<xcb_get_image_reply_t> line(xcb_get_image_reply(m_connection, cookie, nullptr));
        if (!line)
            continue;
        const auto *pixels = reinterpret_cast<const std::uint32_t *>(xcb_get_image_data(line.get()));
        for (int x = 0; x < right - left; ++x)
            ++counts[pixels[x] & 0xffffffU];
        all += right - left;
    }
    int most = 0;
    for (const auto &[colour, count] : counts)
        most = std::max(most, count);
    return all > 0 && double(all - most) / all >= PaintedShare;
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

std::vector<std::uint8_t> Screen::brightnessOfRow(int x, int y, int width) const
{
    const Reply<xcb_get_image_reply_t> line(
        xcb_get_image_reply(m_connection,
                            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, std::int16_t(x),
                                          std::int16_t(y), std::uint16_t(width), 1, ~0u),
                            nullptr));
    std::vector<std::uint8_t> result;
    if (!line)
        return result;
    const std::uint8_t *pixels = xcb_get_image_data(line.get());
    for (int i = 0; i < width; ++i)
        result.push_back(std::uint8_t((pixels[4 * i] + pixels[4 * i + 1] + pixels[4 * i + 2]) / 3));
    return result;
}

void Screen::movePointer(int x, int y)
{
    xcb_warp_pointer(m_connection, XCB_NONE, m_root, 0, 0, 0, 0, std::int16_t(x), std::int16_t(y));
    xcb_flush(m_connection);
}

std::vector<std::uint32_t> Screen::valuesOf(std::uint32_t window, std::uint32_t property) const
{
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, window, property, XCB_ATOM_ANY, 0, 1024), nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *first = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::vector<std::uint32_t> Screen::mainWindowsOf(pid_t process) const
{
    const std::uint32_t owner = atom("_NET_WM_PID");
    std::vector<std::uint32_t> found;
    for (const std::uint32_t window : valuesOf(m_root, atom("_NET_CLIENT_LIST"))) {
        const std::vector<std::uint32_t> id = valuesOf(window, owner);
        if (!id.empty() && id.front() == std::uint32_t(process)
            && valuesOf(window, XCB_ATOM_WM_TRANSIENT_FOR).empty())
            found.push_back(window);
    }
    return found;
}

void Screen::closeWindowsOf(pid_t process)
{
    // What belongs to another window goes with it.
    for (const std::uint32_t window : mainWindowsOf(process)) {
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
