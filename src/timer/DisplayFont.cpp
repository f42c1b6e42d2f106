#include "timer/DisplayFont.h"

#include "rules/TimerTexts.h"

#include <QFontDatabase>
#include <QStandardPaths>

namespace
{
/// The typeface to use where none is called Courier: better to read than the hairline that most
/// systems substitute.
constexpr QStringView kSecondChoice = u"Courier Prime";

/// In Debian's package, all cuts of Courier Prime bear the name of the regular one, and Qt would
/// take any of them. A cut that is loaded after those of the system precedes them.
void loadRegularCut()
{
    const QString file =
        QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                               QStringLiteral("fonts/opentype/courier-prime/Courier Prime.otf"));
    if (!file.isEmpty())
        QFontDatabase::addApplicationFont(file);
}

/// The typefaces of the display. Where none is installed, the system substitutes one for the first.
const QStringList &families()
{
    static const QStringList families = [] {
        // This look-up makes Qt read the fonts of the system.
        if (!QFontDatabase::hasFamily(kResultLabelFont.toString()))
            loadRegularCut();
        return QStringList{kResultLabelFont.toString(), kSecondChoice.toString()};
    }();
    return families;
}
} // namespace

void DisplayFont::apply(QWidget &label, double points)
{
    if (label.font().pointSizeF() == points && label.font().family() == kResultLabelFont)
        return;
    QFont font(families());
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPointSizeF(points);
    label.setFont(font);
}
