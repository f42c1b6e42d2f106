#include "platform/linux/XSettings.h"

#include "platform/linux/X11.h"

#include <QtEndian>

namespace
{
/// Reads the numbers and names of a table one after the other. After the end, or the first part
/// that is longer than the table, all that it reads is empty.
class Reader final
{
public:
    explicit Reader(QByteArrayView table) : _rest(table)
    {
        constexpr uchar mostSignificantFirst = 1;
        constexpr qsizetype unused = 3;
        _bigEndian = number<uchar>() == mostSignificantFirst;
        skip(unused);
    }

    template<class Number> [[nodiscard]] Number number()
    {
        const QByteArrayView bytes = take(sizeof(Number));
        if (bytes.isEmpty())
            return 0;
        return _bigEndian ? qFromBigEndian<Number>(bytes.data())
                          : qFromLittleEndian<Number>(bytes.data());
    }

    /// Texts are filled up to a multiple of four bytes.
    [[nodiscard]] QByteArrayView text(qsizetype length)
    {
        constexpr qsizetype unit = 4;
        const QByteArrayView bytes = take(length);
        skip((unit - length % unit) % unit);
        return bytes;
    }

    void skip(qsizetype length) { [[maybe_unused]] const QByteArrayView skipped = take(length); }

    [[nodiscard]] bool has(qsizetype length) const { return _rest.size() >= length; }

private:
    [[nodiscard]] QByteArrayView take(qsizetype length)
    {
        const bool enough = length <= _rest.size();
        const QByteArrayView bytes = enough ? _rest.first(length) : QByteArrayView();
        _rest = enough ? _rest.sliced(length) : QByteArrayView();
        return bytes;
    }

    QByteArrayView _rest;
    bool _bigEndian = false;
};

enum class Type : uchar { Number = 0, Text = 1, Color = 2 };

/// Reads the value of a setting; only numbers have one here.
std::optional<int> valueFrom(Reader &reader, Type type)
{
    constexpr qsizetype lengthOfColor = 8;
    switch (type) {
    case Type::Number:
        if (reader.has(sizeof(qint32)))
            return reader.number<qint32>();
        break;
    case Type::Text: {
        const auto length = reader.number<quint32>();
        [[maybe_unused]] const QByteArrayView text = reader.text(length);
        break;
    }
    case Type::Color:
        reader.skip(lengthOfColor);
        break;
    }
    return std::nullopt;
}

/// The window of the program that publishes the settings.
xcb_window_t publisher(xcb_connection_t *connection)
{
    const auto question =
        xcb_get_selection_owner(connection, X11::atom(connection, "_XSETTINGS_S0"));
    const auto answer = X11::owned(xcb_get_selection_owner_reply(connection, question, nullptr));
    return answer ? answer->owner : xcb_window_t(XCB_WINDOW_NONE);
}
} // namespace

std::optional<int> XSettings::numberIn(QByteArrayView table, QByteArrayView name)
{
    constexpr qsizetype unused = 1;
    constexpr qsizetype serial = 4;
    Reader reader(table);
    reader.skip(serial);
    const auto count = reader.number<quint32>();
    for (quint32 i = 0; i < count && reader.has(1); ++i) {
        const auto type = static_cast<Type>(reader.number<uchar>());
        reader.skip(unused);
        const QByteArrayView each = reader.text(reader.number<quint16>());
        reader.skip(serial);
        const std::optional<int> value = valueFrom(reader, type);
        if (each == name)
            return value;
    }
    return std::nullopt;
}

std::optional<int> XSettings::number(QByteArrayView name)
{
    constexpr uint32_t maxLength = 65536;
    xcb_connection_t *connection = X11::connection();
    if (!connection)
        return std::nullopt;
    const xcb_window_t window = publisher(connection);
    if (window == XCB_WINDOW_NONE)
        return std::nullopt;
    const xcb_atom_t table = X11::atom(connection, "_XSETTINGS_SETTINGS");
    const auto question =
        xcb_get_property(connection, X11::kNo, window, table, table, 0, maxLength);
    const auto answer = X11::owned(xcb_get_property_reply(connection, question, nullptr));
    if (!answer)
        return std::nullopt;
    return numberIn({static_cast<const char *>(xcb_get_property_value(answer.get())),
                     xcb_get_property_value_length(answer.get())},
                    name);
}
