// The close button of a window's frame on an X display.
#pragma once

#include <xcb/xcb.h>

#include <QWidget>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace velmora::test {

/// Asks a window to close as the window manager does when its button is pressed or Alt+F4: by a message over
/// a connection of its own, which the window's program reads like any other event (ICCCM, WM_DELETE_WINDOW).
inline void pressCloseButton(const QWidget& window) {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> manager(xcb_connect(nullptr, nullptr),
                                                                               &xcb_disconnect);
    const auto atom = [&manager](std::string_view name) {
        const auto length = static_cast<std::uint16_t>(name.size());
        const xcb_intern_atom_cookie_t asked = xcb_intern_atom(manager.get(), 0, length, name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(manager.get(), asked, nullptr), &std::free);
        return reply->atom;
    };
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = atom("WM_PROTOCOLS");
    message.data.data32[0] = atom("WM_DELETE_WINDOW");
    message.data.data32[1] = XCB_CURRENT_TIME;
    const xcb_void_cookie_t sent = xcb_send_event_checked(
        manager.get(), 0, message.window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
    // Waits until the display has it.
    std::free(xcb_request_check(manager.get(), sent));
}

}  // namespace velmora::test
