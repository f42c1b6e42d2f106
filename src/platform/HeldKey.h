#pragma once

#include <QtGlobal>

class QKeyEvent;

/// Tells the repeats of a key that is held down from presses. The X server repeats a key by letting
/// it go and pressing it at the same moment. Where the two do not arrive together they look like
/// the end of one press and the beginning of another.
class HeldKey final
{
public:
    /// Takes note that a key was let go, or seems to be.
    void letGo(const QKeyEvent &release);

    /// Whether this press is a repeat.
    [[nodiscard]] bool isRepeatedBy(const QKeyEvent &press) const;

private:
    /// The number of the key that was let go last, and when that was.
    quint32 _number = 0;
    quint64 _moment = 0;
};
