#include "platform/linux/X11.h"

#include <QGuiApplication>

xcb_connection_t *X11::connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t X11::rootOf(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_atom_t X11::atom(xcb_connection_t *connection, QByteArrayView name)
{
    const auto question =
        xcb_intern_atom(connection, kNo, static_cast<uint16_t>(name.size()), name.data());
    const auto answer = owned(xcb_intern_atom_reply(connection, question, nullptr));
    return answer ? answer->atom : xcb_atom_t(XCB_ATOM_NONE);
}
