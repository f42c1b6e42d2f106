#include "platform/linux/XSettings.h"
#include "support/TestMain.h"

#include <QDataStream>
#include <QIODevice>

namespace
{
using ByteOrder = QDataStream::ByteOrder;

/// A table of settings as a desktop publishes it.
class Table
{
public:
    explicit Table(int count, ByteOrder order = QDataStream::LittleEndian)
    {
        _stream.setByteOrder(order);
        _stream << quint32(order == QDataStream::BigEndian ? 0x01000000 : 0) << quint32(7)
                << quint32(count);
    }

    Table &number(const QByteArray &name, qint32 value)
    {
        begin(0, name);
        _stream << value;
        return *this;
    }
    Table &text(const QByteArray &name, const QByteArray &value)
    {
        begin(1, name);
        _stream << quint32(value.size());
        write(value);
        return *this;
    }
    Table &color(const QByteArray &name)
    {
        begin(2, name);
        _stream << quint64(0x0102030405060708);
        return *this;
    }

    [[nodiscard]] const QByteArray &bytes() const { return _bytes; }

private:
    void begin(quint8 type, const QByteArray &name)
    {
        _stream << type << quint8(0) << quint16(name.size());
        write(name);
        _stream << quint32(3);
    }
    /// Fills the text up to a multiple of four bytes.
    void write(const QByteArray &text)
    {
        _stream.writeRawData(text.constData(), int(text.size()));
        for (auto length = text.size(); length % 4 != 0; ++length)
            _stream << quint8(0);
    }

    QByteArray _bytes;
    QDataStream _stream{&_bytes, QIODevice::WriteOnly};
};

constexpr QByteArrayView kName = "Gtk/EnableAnimations";

/// A table in which the number comes last.
QByteArray example(ByteOrder order = QDataStream::LittleEndian)
{
    return Table(4, order)
        .text("Net/ThemeName", "Plain")
        .color("Gtk/ColorX")
        .number("Xft/DPI", 98304)
        .number(kName.toByteArray(), 1)
        .bytes();
}
} // namespace

/// Numbers in the table of settings that a desktop publishes.
class tst_XSettings final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberIsFoundBehindOtherSettings();
    void theOrderOfBytesIsThatOfTheTable();
    void aMissingNumberIsNone();
    void aTextIsNoNumber();
    void aTableThatEndsEarlyHasNoNumber();
    void lengthsBeyondTheTableEndIt();
    void withoutADesktopThereIsNone();
};

void tst_XSettings::aNumberIsFoundBehindOtherSettings()
{
    QCOMPARE(XSettings::numberIn(example(), kName), std::optional(1));
    QCOMPARE(XSettings::numberIn(example(), "Xft/DPI"), std::optional(98304));
    const QByteArray off = Table(1).number(kName.toByteArray(), 0).bytes();
    QCOMPARE(XSettings::numberIn(off, kName), std::optional(0));
}

void tst_XSettings::theOrderOfBytesIsThatOfTheTable()
{
    const QByteArray other = example(QDataStream::BigEndian);
    QCOMPARE(XSettings::numberIn(other, kName), std::optional(1));
    QCOMPARE(XSettings::numberIn(other, "Xft/DPI"), std::optional(98304));
}

void tst_XSettings::aMissingNumberIsNone()
{
    QCOMPARE(XSettings::numberIn(example(), "Gtk/Enable"), std::nullopt);
    QCOMPARE(XSettings::numberIn({}, kName), std::nullopt);
}

void tst_XSettings::aTextIsNoNumber()
{
    QCOMPARE(XSettings::numberIn(example(), "Net/ThemeName"), std::nullopt);
}

void tst_XSettings::aTableThatEndsEarlyHasNoNumber()
{
    const QByteArray whole = example();
    for (qsizetype length = 0; length < whole.size(); ++length)
        QCOMPARE(XSettings::numberIn(whole.first(length), kName), std::nullopt);
}

void tst_XSettings::lengthsBeyondTheTableEndIt()
{
    constexpr auto first = 12;
    for (qsizetype place = 8; place < first + 40; ++place) {
        QByteArray damaged = example();
        damaged.replace(place, 4, QByteArray(4, '\xFF'));
        // Either the number is still found, or none is.
        QCOMPARE(XSettings::numberIn(damaged, kName).value_or(1), 1);
    }
}

void tst_XSettings::withoutADesktopThereIsNone()
{
    QCOMPARE(XSettings::number(kName), std::nullopt);
}

WUFFER_TEST(tst_XSettings)
#include "tst_XSettings.moc"
