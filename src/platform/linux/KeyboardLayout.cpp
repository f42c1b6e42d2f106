#include "platform/KeyboardLayout.h"

#include "platform/linux/X11.h"

#include <QKeyEvent>

#include <span>

quint32 KeyboardLayout::numberOf(const QKeyEvent &press)
{
    return press.nativeScanCode();
}

std::vector<quint32> KeyboardLayout::symbolsOf(quint32 keyNumber, quint32 state)
{
    constexpr std::size_t levels = 2;
    // Bits 13 and 14 of the state hold the number of the layout. The keyboard map has only the
    // first two layouts at fixed positions.
    const std::size_t layout = (state >> 13) & 3;
    xcb_connection_t *connection = X11::connection();
    if (!connection || layout > 1)
        return {};
    const auto question =
        xcb_get_keyboard_mapping(connection, static_cast<xcb_keycode_t>(keyNumber), 1);
    const auto answer = X11::owned(xcb_get_keyboard_mapping_reply(connection, question, nullptr));
    if (!answer || answer->keysyms_per_keycode < (layout + 1) * levels)
        return {};
    const std::span<const xcb_keysym_t> symbols(xcb_get_keyboard_mapping_keysyms(answer.get()),
                                                answer->keysyms_per_keycode);
    const auto own = symbols.subspan(layout * levels, levels);
    return {own.begin(), own.end()};
}
