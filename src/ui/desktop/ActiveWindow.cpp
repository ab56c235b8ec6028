#include "ui/desktop/ActiveWindow.h"

#include <QGuiApplication>
#include <QWindow>
#include <QtGui/qguiapplication_platform.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace lullet {

namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T> using Reply = std::unique_ptr<T, FreeReply>;

// The names the question needs. An atom is the X server's for as long as the connection lasts,
// so they are interned once, in one round trip: each minute's question then costs two.
struct Atoms {
    xcb_atom_t activeWindow = XCB_ATOM_NONE;
    xcb_atom_t wmState = XCB_ATOM_NONE;
    xcb_atom_t fullScreen = XCB_ATOM_NONE;
};

const Atoms& atoms(xcb_connection_t* connection)
{
    static const Atoms interned = [connection] {
        const char* names[] = {"_NET_ACTIVE_WINDOW", "_NET_WM_STATE", "_NET_WM_STATE_FULLSCREEN"};
        xcb_intern_atom_cookie_t cookies[3];
        for (int i = 0; i < 3; ++i)
            cookies[i] = xcb_intern_atom(connection, 1, uint16_t(qstrlen(names[i])), names[i]);
        xcb_atom_t found[3];
        for (int i = 0; i < 3; ++i) {
            const Reply<xcb_intern_atom_reply_t> reply(
                xcb_intern_atom_reply(connection, cookies[i], nullptr));
            found[i] = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        }
        return Atoms{found[0], found[1], found[2]};
    }();
    return interned;
}

// The values of a property made of 32-bit items (windows, atoms), at most `count` of them.
Reply<xcb_get_property_reply_t> property(xcb_connection_t* connection, xcb_window_t window,
                                         xcb_atom_t name, xcb_atom_t type, uint32_t count)
{
    Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, name, type, 0, count), nullptr));
    if (reply && reply->format != 32)
        reply.reset();
    return reply;
}

bool isOurs(xcb_window_t window)
{
    const auto windows = QGuiApplication::topLevelWindows();
    for (const QWindow* ours : windows) {
        if (ours->handle() && ours->winId() == window)
            return true;
    }
    return false;
}

} // namespace

bool ActiveWindow::isOtherProgramFullScreen()
{
    const auto* x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return false;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    if (!screen)
        return false;
    const Atoms& names = atoms(connection);
    if (names.activeWindow == XCB_ATOM_NONE || names.fullScreen == XCB_ATOM_NONE)
        return false;
    const auto active = property(connection, screen->root, names.activeWindow, XCB_ATOM_WINDOW, 1);
    if (!active || xcb_get_property_value_length(active.get()) < 4)
        return false;
    const xcb_window_t window =
        *static_cast<const xcb_window_t*>(xcb_get_property_value(active.get()));
    if (window == XCB_WINDOW_NONE || isOurs(window))
        return false;
    const auto state = property(connection, window, names.wmState, XCB_ATOM_ATOM, 32);
    if (!state)
        return false;
    const auto* held = static_cast<const xcb_atom_t*>(xcb_get_property_value(state.get()));
    const int count = xcb_get_property_value_length(state.get()) / int(sizeof(xcb_atom_t));
    return std::find(held, held + count, names.fullScreen) != held + count;
}

} // namespace lullet
