#include "rules/FigureText.h"
#include "rules/MenuText.h"
#include "rules/NumberText.h"
#include "rules/Preset.h"
#include "rules/SoundHistory.h"
#include "rules/TimeFields.h"
#include "rules/TimeFormat.h"
#include "rules/TimerSettings.h"
#include "tests/fuzz/Check.h"

#include <array>
#include <cmath>
#include <cstring>

namespace
{
/// Locales with different decimal and group separators and digits.
constexpr std::array kLocales{"C", "de_CH", "fr_FR", "ar_EG", "sv_SE", "en_IN"};

void checkFigure(const QString &text, const QLocale &locale)
{
    const QString begun = FigureText::begun(text, locale);
    check(text.startsWith(begun), "the begun part is a prefix of the text");
    check(FigureText::begun(begun, locale) == begun, "the begun part is begun as a whole");
    const float number = FigureText::read(text, locale);
    check(std::isfinite(number), "a figure is finite");
    const QString written = FigureText::write(number, locale);
    check(FigureText::read(written, locale) == number, "a written number reads as itself");
    const QString rounded = FigureText::writeRounded(number, locale);
    check(rounded.size() <= written.size(), "a rounded number is no longer than the whole one");
    check(FigureText::begun(rounded, locale) == rounded, "a rounded number is a number");
}

void checkMenuText(const QString &text)
{
    constexpr qsizetype longest = 2 * 81;
    const QString shown = menuText(text);
    check(shown.size() <= longest, "a menu item is short");
    check(!shown.contains(QLatin1Char('\n')) && !shown.contains(QLatin1Char('\t')),
          "a menu item is one line without a shortcut");
    QString rest = shown;
    rest.remove(QStringLiteral("&&"));
    check(!rest.contains(QLatin1Char('&')), "a menu item has no mnemonic");
}

void checkTitle(const QString &text)
{
    checkMenuText(text);
    const QString title = SoundHistory::displayTitle(text);
    check(title == QLatin1String("/") || !title.contains(QLatin1Char('/')), "a title has no slash");
    TimerSettings settings;
    settings.title = text;
    check(text.isEmpty() || Preset::text(settings).startsWith(text),
          "a preset begins with its name");
}

void checkTime(double seconds)
{
    check(TimeFormat::stringForTime(seconds).size() < 64, "a time is short");
    check(TimeFormat::msStringForTime(seconds).size() <= 4, "milliseconds are short");
    const TimeFields fields = TimeFields::fromSeconds(seconds);
    check(std::abs(fields.minutes) < 60 && std::abs(fields.seconds) < 60.001F,
          "fields hold less than the next unit");
    const QString shown = NumberText::fromSeconds(fields.seconds);
    check(NumberText::integerFrom(shown) == qint32(fields.seconds), "seconds are not rounded up");
    check(!TimeFormat::hmsString(fields.hours, fields.minutes, qint32(fields.seconds)).isEmpty(),
          "a duration has a text");
}

void checkText(const QString &text)
{
    const qint32 number = NumberText::integerFrom(text);
    check(NumberText::integerFrom(QString::number(number)) == number, "a number reads as itself");
    for (const char *locale : kLocales)
        checkFigure(text, QLocale(QString::fromLatin1(locale)));
    checkTitle(text);
    checkTime(TimeFields::total(number, number, number));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    double seconds = 0;
    if (size >= sizeof seconds) {
        std::memcpy(&seconds, data, sizeof seconds);
        checkTime(seconds);
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    checkText(QString::fromUtf8(bytes));
    // The same bytes as UTF-16, which may be invalid, such as half of a surrogate pair.
    QString units(bytes.size() / 2, Qt::Uninitialized);
    std::memcpy(units.data(), bytes.constData(), std::size_t(units.size()) * sizeof(QChar));
    checkText(units);
    return 0;
}
