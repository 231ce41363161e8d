#include "WindowStacking.h"

#include <QX11Info>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace {

constexpr char kMessage[] = "_NET_RESTACK_WINDOW";
constexpr std::uint32_t kFromUser = 2; // window managers heed this source

xcb_atom_t messageAtom(xcb_connection_t *connection)
{
    static const xcb_atom_t atom = [connection] {
        const auto cookie = xcb_intern_atom(connection, 0, std::strlen(kMessage), kMessage);
        auto *reply = xcb_intern_atom_reply(connection, cookie, nullptr);
        const xcb_atom_t known = reply != nullptr ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        std::free(reply);
        return known;
    }();
    return atom;
}

} // namespace

void WindowStacking::placeBelow(WId window, WId sibling)
{
    if (!QX11Info::isPlatformX11())
        return;
    auto *connection = QX11Info::connection();
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = xcb_window_t(window);
    message.type = messageAtom(connection);
    message.data.data32[0] = kFromUser;
    message.data.data32[1] = xcb_window_t(sibling);
    message.data.data32[2] = XCB_STACK_MODE_BELOW;
    if (message.type == XCB_ATOM_NONE)
        return;
    xcb_send_event(connection, 0, xcb_window_t(QX11Info::appRootWindow()),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}
