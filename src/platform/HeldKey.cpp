#include "platform/HeldKey.h"

#include <QKeyEvent>

void HeldKey::letGo(const QKeyEvent &release)
{
    _number = release.nativeScanCode();
    _moment = release.timestamp();
}

bool HeldKey::isRepeatedBy(const QKeyEvent &press) const
{
    // An event without a scan code does not come from a keyboard.
    const bool isSameKey = _number != 0 && press.nativeScanCode() == _number;
    return press.isAutoRepeat() || (isSameKey && press.timestamp() == _moment);
}
