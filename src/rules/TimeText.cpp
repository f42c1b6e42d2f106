#include "rules/TimeText.h"

#include "base/Integers.h"

#include <QCoreApplication>
#include <QList>

#include <algorithm>
#include <array>

namespace
{
/// Longer texts are not read as a time.
constexpr qsizetype kLongest = 100;

class Texts final
{
    Q_DECLARE_TR_FUNCTIONS(TimeText)
};

/// The English words for the units, in the order of the units.
constexpr std::array kWords{
    //: Words and letters for days that users type after a number, separated by blanks. The English
    //: ones are always understood; give those of your language. One word must not stand for two
    //: units.
    QT_TRANSLATE_NOOP("TimeText", "d day days"),
    //: The same for hours.
    QT_TRANSLATE_NOOP("TimeText", "h hr hrs hour hours"),
    //: The same for minutes.
    QT_TRANSLATE_NOOP("TimeText", "m min mins minute minutes"),
    //: The same for seconds.
    QT_TRANSLATE_NOOP("TimeText", "s sec secs second seconds"),
};

bool isAmong(const QString &words, QStringView word)
{
    const QList<QStringView> each = QStringView(words).split(u' ', Qt::SkipEmptyParts);
    return std::ranges::any_of(
        each, [word](QStringView known) { return known.compare(word, Qt::CaseInsensitive) == 0; });
}

/// The unit whose words, which the function makes of the English ones, contain this word.
template<class Words> std::optional<TimeText::Unit> unitIn(QStringView word, Words words)
{
    const auto *found = std::ranges::find_if(
        kWords, [&](const char *english) { return isAmong(words(english), word); });
    return found == kWords.end() ? std::nullopt
                                 : std::optional(TimeText::Unit(found - kWords.begin()));
}

/// Seconds in a unit, in the order of the units.
constexpr std::array kSecondsIn{86400, 3600, 60, 1};

/// A number without a sign, in decimal: a binary fraction could not hold 0.1 exactly.
struct Decimal
{
    qint64 whole = 0;
    qint64 fraction = 0;
    /// The denominator of the fraction; 1 if there is no fraction.
    qint64 parts = 1;
};

bool isDecimalMark(QChar character)
{
    constexpr char16_t arabicMark = 0x066B;
    return character == u'.' || character == u',' || character == arabicMark;
}

bool isSign(QChar character)
{
    return character == u'-' || character == u'+';
}

template<class Condition> QStringView takeWhile(QStringView &text, Condition condition)
{
    const auto end = std::ranges::find_if_not(text, condition);
    const QStringView taken = text.first(end - text.begin());
    text = text.sliced(taken.size());
    return taken;
}

QStringView takeDigits(QStringView &text)
{
    return takeWhile(text, [](QChar each) { return each.isDigit(); });
}

/// The number that the digits form, limited to a bit more than 32 bits hold.
qint64 numberIn(QStringView digits)
{
    constexpr qint64 most = 10'000'000'000;
    qint64 number = 0;
    for (const QChar digit : digits)
        number = std::min(number * 10 + digit.digitValue(), most);
    return number;
}

/// Takes the number at the beginning of the text; nothing if there is none.
std::optional<Decimal> takeDecimal(QStringView &text)
{
    // More places would not change the result by a second.
    constexpr qsizetype mostPlaces = 9;
    QStringView rest = text;
    const QStringView whole = takeDigits(rest);
    Decimal number{.whole = numberIn(whole)};
    QStringView places;
    if (rest.size() > 1 && isDecimalMark(rest.front()) && rest.at(1).isDigit()) {
        rest = rest.sliced(1);
        places = takeDigits(rest);
        for (const QChar digit : places.first(std::min(places.size(), mostPlaces))) {
            number.fraction = number.fraction * 10 + digit.digitValue();
            number.parts *= 10;
        }
    }
    if (whole.isEmpty() && places.isEmpty())
        return std::nullopt;
    text = rest;
    return number;
}

/// The fraction of the number, rounded to whole seconds. Fractions of a second are cut.
qint64 secondsOfFraction(const Decimal &number, TimeText::Unit unit)
{
    if (unit == TimeText::Unit::Seconds)
        return 0;
    const qint64 seconds = kSecondsIn.at(std::size_t(unit));
    return (number.fraction * seconds + number.parts / 2) / number.parts;
}

/// Sums up numbers with units.
class Sum final
{
public:
    void add(const Decimal &number, TimeText::Unit unit)
    {
        const qint64 rest = secondsOfFraction(number, unit);
        switch (unit) {
        case TimeText::Unit::Days:
            _hours += number.whole * 24;
            break;
        case TimeText::Unit::Hours:
            _hours += number.whole;
            break;
        case TimeText::Unit::Minutes:
            _minutes += number.whole;
            break;
        case TimeText::Unit::Seconds:
            _seconds += number.whole;
            break;
        }
        _hours += rest / 3600;
        _minutes += rest % 3600 / 60;
        _seconds += rest % 60;
    }

    [[nodiscard]] TimeText::Time time() const
    {
        return {limitedToInteger(_hours), limitedToInteger(_minutes), limitedToInteger(_seconds)};
    }

private:
    qint64 _hours = 0;
    qint64 _minutes = 0;
    qint64 _seconds = 0;
};

/// Skips what may separate two numbers with units: "1 hour, 5 minutes", "1 hour and 5".
void skipSeparators(QStringView &text)
{
    takeWhile(text, [](QChar each) { return each.isSpace() || each == u',' || each == u'、'; });
    //: The word between two units: “1 hour and 5 minutes”.
    for (const QString &word : {QStringLiteral("and"), Texts::tr("and")}) {
        if (text.startsWith(word + u' ', Qt::CaseInsensitive)) {
            text = text.sliced(word.size()).trimmed();
            return;
        }
    }
}

/// Takes the unit after a number. The last number may have none; then it is the next smaller unit
/// after the one before.
std::optional<TimeText::Unit> takeUnit(QStringView &text, std::optional<TimeText::Unit> before)
{
    text = text.trimmed();
    if (text.isEmpty() && before && *before != TimeText::Unit::Seconds)
        return TimeText::Unit(int(*before) + 1);
    const auto unit =
        TimeText::unitNamed(takeWhile(text, [](QChar each) { return each.isLetter(); }));
    if (text.startsWith(u'.'))
        text = text.sliced(1);
    return unit;
}

/// Reads "1h 5m".
std::optional<TimeText::Time> readWithUnits(QStringView text)
{
    Sum sum;
    std::optional<TimeText::Unit> before;
    while (!text.isEmpty()) {
        const std::optional<Decimal> number = takeDecimal(text);
        const std::optional<TimeText::Unit> unit = takeUnit(text, before);
        if (!number || !unit || (before && *unit <= *before))
            return std::nullopt;
        sum.add(*number, *unit);
        before = unit;
        skipSeparators(text);
    }
    return before ? std::optional(sum.time()) : std::nullopt;
}

/// Reads one of the numbers between colons. An empty one counts as 0: ":30".
std::optional<Decimal> numberOfClock(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return Decimal{};
    const std::optional<Decimal> number = takeDecimal(text);
    return text.isEmpty() ? number : std::nullopt;
}

/// Reads "1:02:03".
std::optional<TimeText::Time> readAsClock(QStringView text)
{
    const bool hasColons = text.contains(u':');
    const auto parts = hasColons ? text.split(u':') : text.split(u' ', Qt::SkipEmptyParts);
    const bool isEmpty = std::ranges::all_of(text, [](QChar each) { return !each.isDigit(); });
    if (parts.size() < 2 || parts.size() > 3 || isEmpty)
        return std::nullopt;
    Sum sum;
    auto unit = TimeText::Unit(int(TimeText::Unit::Seconds) + 1 - int(parts.size()));
    for (const QStringView part : parts) {
        const std::optional<Decimal> number = numberOfClock(part);
        if (!number || (number->parts > 1 && unit != TimeText::Unit::Seconds))
            return std::nullopt;
        sum.add(*number, unit);
        unit = TimeText::Unit(int(unit) + 1);
    }
    return sum.time();
}
} // namespace

bool TimeText::isNumberBegun(QStringView text)
{
    if (!text.isEmpty() && isSign(text.front()))
        text = text.sliced(1);
    takeDigits(text);
    if (!text.isEmpty() && isDecimalMark(text.front()))
        text = text.sliced(1);
    takeDigits(text);
    return text.isEmpty();
}

bool TimeText::isNumber(QStringView text)
{
    text = text.trimmed();
    return text.size() <= kLongest && isNumberBegun(text) &&
           std::ranges::any_of(text, [](QChar each) { return each.isDigit(); });
}

std::optional<TimeText::Unit> TimeText::unitNamed(QStringView word)
{
    // English words mean the same in every language, so they come first.
    const std::optional<Unit> unit =
        unitIn(word, [](const char *words) { return QString::fromLatin1(words); });
    return unit ? unit : unitIn(word, [](const char *words) { return Texts::tr(words); });
}

std::optional<TimeText::Time> TimeText::read(QStringView text)
{
    text = text.trimmed();
    if (text.size() > kLongest)
        return std::nullopt;
    // East Asian keyboards also type wide forms of digits, colons and letters.
    const QString plain = text.toString().normalized(QString::NormalizationForm_KC);
    const std::optional<Time> time = readAsClock(plain);
    return time ? time : readWithUnits(plain);
}

std::optional<TimeText::Time> TimeText::spread(QStringView number, Unit unit)
{
    const std::optional<Decimal> decimal = takeDecimal(number);
    if (!decimal || decimal->parts == 1 || !number.isEmpty())
        return std::nullopt;
    Sum sum;
    sum.add(*decimal, unit);
    return sum.time();
}
