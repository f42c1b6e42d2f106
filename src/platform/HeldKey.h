#pragma once

#include <QtGlobal>

class QKeyEvent;

/// Tells the automatic repeats of a held key from new presses. The X server repeats a key by
/// sending a release and a press with the same timestamp. When the two do not arrive together, Qt
/// reports them as the end of one press and the start of another.
class HeldKey final
{
public:
    /// Notes a release of a key, which may be part of a repeat.
    void letGo(const QKeyEvent &release);

    /// Whether this press is a repeat.
    [[nodiscard]] bool isRepeatedBy(const QKeyEvent &press) const;

private:
    /// The scan code and the timestamp of the last release.
    quint32 _number = 0;
    quint64 _moment = 0;
};
