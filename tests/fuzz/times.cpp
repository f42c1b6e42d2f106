#include "rules/TimeText.h"
#include "tests/fuzz/Check.h"

#include <QString>

#include <array>
#include <cstring>

namespace
{
constexpr std::array kUnits{TimeText::Unit::Days, TimeText::Unit::Hours, TimeText::Unit::Minutes,
                            TimeText::Unit::Seconds};
constexpr std::array kLetters{u'd', u'h', u'm', u's'};

void checkNumber(const QString &text)
{
    const bool begun = TimeText::isNumberBegun(text);
    check(!begun || TimeText::isNumberBegun(QStringView(text).chopped(text.isEmpty() ? 0 : 1)),
          "the beginning of a number without its last character is one, too");
    check(!TimeText::isNumber(text) || !TimeText::read(text),
          "a number without a unit is not a time");
}

void checkTime(const QString &text)
{
    const std::optional<TimeText::Time> time = TimeText::read(text);
    if (!time)
        return;
    check(time->hours >= 0 && time->minutes >= 0 && time->seconds >= 0, "no time is negative");
    const QString withUnits =
        QStringLiteral("%1h %2m %3s").arg(time->hours).arg(time->minutes).arg(time->seconds);
    check(TimeText::read(withUnits) == time, "a time with units reads as itself");
    const QString clock =
        QStringLiteral("%1:%2:%3").arg(time->hours).arg(time->minutes).arg(time->seconds);
    check(TimeText::read(clock) == time, "a time with colons reads as itself");
}

void checkFraction(const QString &text)
{
    for (std::size_t i = 0; i < kUnits.size(); ++i) {
        const std::optional<TimeText::Time> time = TimeText::spread(text, kUnits.at(i));
        const bool isShort = text.size() < 90;
        check(!time || !isShort || TimeText::read(text + QChar(kLetters.at(i))) == time,
              "a fraction of a unit equals the number with that unit");
    }
}

void checkText(const QString &text)
{
    checkNumber(text);
    checkTime(text);
    checkFraction(text);
    check(!TimeText::unitNamed(text) || text.size() <= 7, "names of units are short");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    checkText(QString::fromUtf8(bytes));
    // The same bytes as UTF-16, which may be invalid, such as half of a surrogate pair.
    QString units(bytes.size() / 2, Qt::Uninitialized);
    std::memcpy(units.data(), bytes.constData(), std::size_t(units.size()) * sizeof(QChar));
    checkText(units);
    return 0;
}
