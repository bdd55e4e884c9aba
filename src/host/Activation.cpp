#include "host/Activation.h"

#include <QGuiApplication>
#include <QWidget>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace zarvil::host {

namespace {

xcb_atom_t atomOf(xcb_connection_t* display, std::string_view name) {
    const auto question =
        xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> answer(
        xcb_intern_atom_reply(display, question, nullptr), &std::free);
    return answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Asks in the user's name. What the user pressed went to another process, so that the time of the
/// last input here is an old one, and window managers keep a window behind that asks with it.
void askWindowManager(xcb_connection_t* display, xcb_window_t window) {
    constexpr std::uint32_t byUser = 2; // the source of the wish, numbered by the EWMH
    constexpr std::uint32_t mask =
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    xcb_client_message_event_t wish{};
    wish.response_type = XCB_CLIENT_MESSAGE;
    wish.format = 32;
    wish.window = window;
    wish.type = atomOf(display, "_NET_ACTIVE_WINDOW");
    wish.data.data32[0] = byUser;
    wish.data.data32[1] = XCB_CURRENT_TIME;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    xcb_send_event(display, 0, root, mask, reinterpret_cast<const char*>(&wish));
    xcb_flush(display);
}

} // namespace

void bringToUser(QWidget& window) {
    if (window.isMinimized())
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    // A platform without a display has the interface, too.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (xcb_connection_t* display = x11 ? x11->connection() : nullptr)
        askWindowManager(display, static_cast<xcb_window_t>(window.winId()));
}

} // namespace zarvil::host
