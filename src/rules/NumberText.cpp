#include "rules/NumberText.h"

#include "base/Integers.h"

#include <algorithm>
#include <cmath>

qint32 NumberText::integerFrom(QStringView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith(QLatin1Char('-'));
    if (negative || text.startsWith(QLatin1Char('+')))
        text = text.sliced(1);

    // Larger than any 32-bit number. Counting further would change nothing and could overflow.
    constexpr qint64 tooLarge = 10'000'000'000;
    qint64 number = 0;
    for (const QChar character : text) {
        if (!character.isDigit())
            break;
        number = std::min(number * 10 + character.digitValue(), tooLarge);
    }
    return limitedToInteger(negative ? -number : number);
}

QString NumberText::fromSeconds(float seconds)
{
    constexpr double perSecond = 1000.0;
    const double whole = std::trunc(static_cast<double>(seconds));
    const double fraction = static_cast<double>(seconds) - whole;
    const double limit = perSecond - 1.0;
    const double thousandths = std::clamp(std::round(fraction * perSecond), -limit, limit);
    // 12 significant digits hold every 32-bit integer. They cut off thousandths only where a float
    // has none.
    return QString::number(whole + thousandths / perSecond, 'g', 12);
}
