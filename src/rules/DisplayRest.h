#pragma once

#include <utility>

/// Whether the display of a timer is kept up to date. A display that is out of sight may rest: it
/// is not refreshed and keeps its last texts.
class DisplayRest final
{
public:
    [[nodiscard]] bool isUnseen() const { return _unseen; }
    [[nodiscard]] bool isResting() const { return _resting; }

    /// Records whether the window system reports the display as out of sight. Returns true if this
    /// ends a rest: the display must then be refreshed.
    [[nodiscard]] bool setUnseen(bool unseen)
    {
        _unseen = unseen;
        return !unseen && std::exchange(_resting, false);
    }

    /// Starts or ends the rest. A display in sight does not rest.
    void setResting(bool resting) { _resting = resting && _unseen; }

private:
    bool _unseen = false;
    bool _resting = false;
};
